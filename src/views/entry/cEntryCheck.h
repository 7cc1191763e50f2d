#pragma once

#include "views/entry/cEntryFields.h"

#include <QDate>
#include <QString>

class cAmountFormat;
class cDataAccess;
class cUser;

// The checks before an entry is stored, in the order in which the user is told.
class cEntryCheck
{
public:
    cEntryCheck(cDataAccess& data, cUser& user, const cAmountFormat* format, QDate today)
        : m_data(data),
          m_user(user),
          m_format(format),
          m_today(today)
    {
    }

    // Saved when nothing is wrong; the message of a refusal has been shown.
    [[nodiscard]] eEntrySaved Check(const cEntryFields& fields);

    // The row of the split table that the failure is about; -1 when it is about none.
    [[nodiscard]] int FailedPart() const { return m_failedPart; }

private:
    [[nodiscard]] eEntrySaved CheckAmounts(const cEntryFields& fields);
    [[nodiscard]] bool CheckChoices(const cEntryFields& fields);
    [[nodiscard]] bool HasCategory(const cEntryFields& fields);
    [[nodiscard]] bool CheckAccount(const cEntryFields& fields) const;
    [[nodiscard]] bool CheckParts(const cEntryFields& fields) const;
    [[nodiscard]] eEntrySaved CheckDays(const cEntryFields& fields) const;
    [[nodiscard]] bool Refuse(const QString& text) const;

    cDataAccess& m_data;
    cUser& m_user;
    const cAmountFormat* m_format;
    QDate m_today;
    int m_failedPart = -1;
};
