#pragma once

#include <QDate>
#include <QHash>
#include <QMap>
#include <QString>

struct cBookTools;
class cUndoStep;

// Up to which day the user has found an account to agree with the bank, kept in the settings "STIMMT:" + number.
class cReconciledDays
{
public:
    explicit cReconciledDays(const cBookTools& tools) : m_tools(tools) {}

    [[nodiscard]] QHash<QString, QDate> ByAccount() const;
    // False when the database refuses. An invalid day forgets it.
    bool Set(const QString& number, QDate day);

private:
    const cBookTools& m_tools;
};

// Looks after the days that agree with the bank while entries are changed: made before the first write, asked after the
// last.
class cReconciledGuard
{
public:
    explicit cReconciledGuard(const cBookTools& tools);

    // True when no account holds something else on one of these days now, or when the user wants it so: then the
    // account agrees up to the day before only. Else the caller takes its step back, with the day of an account that
    // the user has agreed to before.
    [[nodiscard]] bool Allows();

private:
    using cDays = QMap<QDate, qint64>; // what each day adds
    [[nodiscard]] cDays Read(const QString& account, QDate until) const;

    const cBookTools& m_tools;
    QHash<QString, QDate> m_until; // by account
    QHash<QString, cDays> m_before;
};
