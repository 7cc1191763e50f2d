#pragma once

#include "fints/cBankDialog.h"
#include "fints/HBCIBusiness.h"
#include "fints/modBankParameters.h"

// Fetches bookings and balances of accounts, one after the other, in a dialog that is open.
class cStatementFetch
{
public:
    cStatementFetch(cBankRun& run, cBankDialog& dialog) : m_run(run), m_dialog(dialog) {}

    // What came of the account. A failure in it leaves the dialog open for the next one where that is possible.
    [[nodiscard]] cFetchedAccount Fetch(const cFetchOrder& order);

private:
    using cKind = modBankParameters::cStatementOrder;

    [[nodiscard]] cFetchedAccount FetchOne(const cFetchOrder& order);
    [[nodiscard]] HBCISegment Request(const cKind& kind, const cFetchOrder& order, const QByteArray& point) const;
    [[nodiscard]] bool Pages(const cKind& kind, const cFetchOrder& order, cFetchedAccount& fetched);
    void Balance(cFetchedAccount& fetched);
    void Renew(cBankAccount& account) const;
    void Complete(cBankAccount& account);
    void AskForIbans();

    cBankRun& m_run;
    cBankDialog& m_dialog;
    bool m_hasAskedForIbans = false;
    QString m_refused; // name of the account before, when its TAN was wrong
};
