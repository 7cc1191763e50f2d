#pragma once

#include <QString>
#include <QStringList>

// The texts of a camt transaction in the form that the same transaction has in an MT940 statement, because the
// duplicate test compares them letter by letter. There, names and purposes are cut into subfields of 27 characters that
// the reader joins by blanks; a name has two of them, a purpose ten, and each SEPA keyword begins a new one.
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

// The name of a counterparty.
[[nodiscard]] QString Name(const QString& name);

// What a person wants to read of the purpose: the remittance lines, and a differing originator in brackets. References
// only when there is nothing else.
[[nodiscard]] QString Purpose(const cPurpose& purpose);

} // namespace modCamtText
