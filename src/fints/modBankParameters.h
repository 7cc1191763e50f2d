#pragma once

#include "model/bank/cBankAccount.h"
#include "model/bank/TanVerfahrenItem.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

// What the kept parameter segments of a bank say (HIBPA, HITANS, HIKAZS, HICAZS, HISPAS, HISALS, HIPINS).
namespace modBankParameters {

// The highest offered version of a segment among those up to `most`; 0 when the bank does not offer it.
[[nodiscard]] int Version(const QList<QByteArray>& parameters, QByteArrayView code, int most);
[[nodiscard]] bool Offers(const QList<QByteArray>& parameters, QByteArrayView code, int version);

// Every procedure with one row of the highest version in which its function is offered.
[[nodiscard]] QList<TanVerfahrenItem> Methods(const QList<QByteArray>& parameters);
[[nodiscard]] bool IsOneStepAllowed(const QList<QByteArray>& parameters);

// How the bookings of an account are asked for: the version of HKKAZ, else the format for HKCAZ (wire).
struct cStatementOrder
{
    int MT940 = 0;
    QByteArray Camt{};

    [[nodiscard]] bool IsNone() const { return MT940 == 0 && Camt.isEmpty(); }
};
// Bank and account have to know an order; each of the two lists has things that the other lacks.
[[nodiscard]] cStatementOrder StatementOrder(const QList<QByteArray>& parameters, const cBankAccount& account);
[[nodiscard]] bool IsAllowed(const cBankAccount& account, const QString& order);

[[nodiscard]] int StatementDays(const QList<QByteArray>& parameters,
                                QByteArrayView code);                             // HIKAZS, HICAZS; 0: not named
[[nodiscard]] QByteArray CamtFormat(const QList<QByteArray>& parameters);         // highest camt.052 of HICAZS; wire
[[nodiscard]] bool IsNationalAccountAllowed(const QList<QByteArray>& parameters); // HISPAS; true when not named
[[nodiscard]] QString UserIdLabel(const QList<QByteArray>& parameters);           // HIPINS; empty when not named
[[nodiscard]] bool NeedsTan(const QList<QByteArray>& parameters, QByteArrayView segment); // HIPINS

} // namespace modBankParameters
