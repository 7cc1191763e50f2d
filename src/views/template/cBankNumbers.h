#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include <utility>

class cDataAccess;
class cSettings;

// The bank's numbers of an account, each kept in a setting "KTO:" + number that holds the account's name.
class cBankNumbers
{
public:
    cBankNumbers(cDataAccess& data, cSettings& settings) : m_data(data), m_settings(settings) {}

    // Every number with its account, in the order of the numbers.
    [[nodiscard]] QList<std::pair<QString, QString>> All() const;
    [[nodiscard]] QStringList Of(const QString& account) const;
    [[nodiscard]] QString AccountOf(const QString& number) const; // empty when nobody has it
    // Numbers of staged rows that no account has yet.
    [[nodiscard]] QStringList Unassigned() const;

    [[nodiscard]] bool Assign(const QString& number, const QString& account);
    [[nodiscard]] bool Release(const QString& number);
    // All numbers of one account go to another one, or nowhere.
    [[nodiscard]] bool Move(const QString& oldName, const QString& newName);
    [[nodiscard]] bool ReleaseAll(const QString& account);

    // The numbers of a text: one a line or separated by commas, without blanks, each once.
    [[nodiscard]] static QStringList Read(const QString& text);

private:
    cDataAccess& m_data;
    cSettings& m_settings;
};
