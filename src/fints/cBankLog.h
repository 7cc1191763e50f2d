#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

class cSecret;

// The messages of a run, with secrets masked before they get here.
class cBankLog
{
public:
    // What is never to be read in it, raw and escaped: PIN and TAN become a row of "P" each, the registration
    // identifier a dummy of the same length. Texts given here are kept masked, not in the clear.
    void AddRequest(const QByteArray& message, const QList<const cSecret*>& secrets, const QString& productId);
    void AddAnswer(const QByteArray& message, const QList<const cSecret*>& secrets, const QString& productId);
    void AddRemark(const QString& text); // why an exchange failed

    // For the maker's own eyes: with everything that the bank said.
    [[nodiscard]] QString Text() const { return m_text; }
    // For others: login, account numbers, IBANs, names and purposes are hidden too. `people` are texts to hide beside
    // those that the messages themselves show.
    [[nodiscard]] QString TextForOthers(const QStringList& people) const;

private:
    QString m_text;
};
