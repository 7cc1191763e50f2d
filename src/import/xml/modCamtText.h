#pragma once

#include <QString>
#include <QStringList>

// The purpose of a camt transaction as the same transaction has it in an MT940 statement, blanks apart: the duplicate
// test takes texts for equal that differ in nothing else, or where MT940 had no room for the rest.
namespace modCamtText {

// What camt keeps apart and MT940 writes into one purpose.
struct cPurpose
{
    QString EndToEnd; // references of the payment
    QString Mandate;
    QString Creditor;
    QStringList Lines;          // remittance information as it stands
    QString UltimateOriginator; // on whose behalf the payment was made
};

// What a person wants to read of the purpose: the remittance lines, and a differing originator in brackets. References
// only when there is nothing else.
[[nodiscard]] QString Purpose(const cPurpose& purpose);

} // namespace modCamtText
