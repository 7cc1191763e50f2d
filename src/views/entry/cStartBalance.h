#pragma once

#include "model/cEntryItem.h"
#include "views/entry/cEntryFields.h"

#include <QString>

class cDataAccess;

// The stored side of the start-balance face.
class cStartBalance
{
public:
    // `decimal` is the sign that shown amounts have.
    cStartBalance(cDataAccess& data, eDecimal decimal) : m_data(data), m_decimal(decimal) {}

    // True when this entry is the one that counts as start balance of its account.
    [[nodiscard]] bool IsOne(const cEntryItem& entry) const;

    // The face for an account, with what is stored; a day is only there when a start balance is.
    [[nodiscard]] cEntryFields Show(const QString& account) const;

    // Stores it as one step. The amount has its sign.
    [[nodiscard]] bool Save(const QString& account, qint64 cents, QDate day) const;

private:
    cDataAccess& m_data;
    eDecimal m_decimal;
};
