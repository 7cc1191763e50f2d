#pragma once

#include "fints/cBankAnswer.h"
#include "fints/cBankRun.h"
#include "fints/HBCIMessage.h"

#include <optional>

// One message to the bank and its answer, both in the log.
class cBankExchange
{
public:
    explicit cBankExchange(cBankRun& run) : m_run(run) {}

    // The parsed answer; nothing when none came that can be read whole, then Error says why. `tan` is the one in the
    // message, if there is one, to keep it out of the log.
    [[nodiscard]] std::optional<cBankAnswer> Send(const HBCIMessage& message, const cSecret* tan);

    [[nodiscard]] const cBankError& Error() const { return m_error; }
    // The bank may have got the message, whatever became of the answer.
    [[nodiscard]] bool IsSent() const { return m_isSent; }

private:
    [[nodiscard]] std::optional<cBankAnswer> Read(const cHttpsAnswer& answer, const QList<const cSecret*>& secrets);
    std::nullopt_t Fail(const cBankError& error, const QString& remark);

    cBankRun& m_run;
    cBankError m_error;
    bool m_isSent = false;
};
