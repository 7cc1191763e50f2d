#pragma once

#include "base/cHttps.h"
#include "fints/cBankAnswer.h"
#include "model/bank/cBankFailure.h"

#include <QString>

// Why something went wrong: in words for the user, and as the log and the caller of an operation read it.
struct cBankError
{
    cBankFailure Failure;
    QString ErrorText;

    [[nodiscard]] bool IsSet() const { return Failure.IsSet(); }
};

enum class eAnswerTo { Order, Tan, Approval };

namespace modBankFault {

// The words for the user belong to the fault. An empty `errorText` is what the bank said, else those words.
[[nodiscard]] cBankError Of(eBankFault fault, const QString& errorText = {}, const QString& bankWords = {});
// The same, where `errorText` tells the user more than the words alone: it stands in front of them.
[[nodiscard]] cBankError Specific(eBankFault fault, const QString& errorText);

// An exchange from which no bytes came, or none that count.
[[nodiscard]] cBankError OfTransport(const cHttpsAnswer& answer, const QString& url);
[[nodiscard]] cBankError Silence(const QString& url); // an answer without bytes

// What the bank refuses in this answer; not set when it refuses nothing.
[[nodiscard]] cBankError OfAnswer(const cBankAnswer& answer, eAnswerTo to);

// The PIN, or the access that belongs to it, is not good any more: nothing may be sent with it.
[[nodiscard]] bool IsPinRefused(eBankFault fault);

} // namespace modBankFault
