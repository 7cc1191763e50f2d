#pragma once

#include "fints/cBankAnswer.h"
#include "fints/cBankRun.h"
#include "fints/HBCIFactory.h"

#include <optional>

// How a dialog begins.
struct cOpening
{
    bool IsSync = false;             // asks for a new system ID
    bool IsFromScratch = false;      // as if nothing of the bank were known
    QByteArray TanSegment = "HKIDN"; // what the TAN of the initialisation is for
};

// One dialog with the bank, from its first message to its end, in one TAN procedure. It asks the user for TAN and
// approval when the bank does, and remembers in the state of the run what the bank tells on the way.
class cBankDialog
{
public:
    cBankDialog(cBankRun& run, const TanVerfahrenItem& method) : m_run(run), m_method(method) {}

    // False when the bank does not let the customer in. A system ID that the bank does not know any more is replaced
    // once.
    [[nodiscard]] bool Open(const cOpening& opening);

    // The bank's final answer to the segments; nothing when it refused or none came, then Error says why.
    [[nodiscard]] std::optional<cBankAnswer> Send(const QList<HBCISegment>& business);
    // The same for an order that may cost a TAN.
    [[nodiscard]] std::optional<cBankAnswer> Order(const HBCISegment& order);

    // The last message of the dialog, unless the bank ended it or nothing may be sent any more.
    void End();

    [[nodiscard]] const cBankError& Error() const { return m_error; }
    // Another order can follow, also after one that failed.
    [[nodiscard]] bool CanGoOn() const { return m_line == eLine::Open; }

private:
    // Ending: only the end of the dialog may still be sent.
    enum class eLine { Open, Ending, Closed };

    [[nodiscard]] bool Start(const cOpening& opening);
    [[nodiscard]] QList<HBCISegment> Initialisation(const cOpening& opening) const;
    [[nodiscard]] HBCISegment TanFor(const QByteArray& segment) const;
    [[nodiscard]] cEnvelope Envelope(const cSecret* tan) const;

    [[nodiscard]] std::optional<cBankAnswer> Exchange(const QList<HBCISegment>& business, const cSecret* tan);
    void Heed(const cBankAnswer& answer);
    std::nullopt_t Fail(const cBankError& error);
    std::nullopt_t Stop(const cBankError& error);

    [[nodiscard]] std::optional<cBankAnswer> Answered(const cBankAnswer& question);
    [[nodiscard]] std::optional<cBankAnswer> WithTan(const cTanChallenge& challenge);
    [[nodiscard]] std::optional<cBankAnswer> Approved(const cTanChallenge& challenge);
    [[nodiscard]] std::optional<cBankAnswer> Polled(const cTanChallenge& challenge);

    cBankRun& m_run;
    TanVerfahrenItem m_method;
    QByteArray m_systemId; // of this dialog: a new one counts from the next message on
    QByteArray m_dialogId = "0";
    int m_number = 0; // of the last message
    eLine m_line = eLine::Open;
    bool m_isSystemIdUnknown = false;
    cBankError m_error;
};
