#include "import/read/cStatementRead.h"

#include "base/cText.h"

#include <algorithm>

cStatementRead cStatementRead::TooMany()
{
    return Refused(cText::Tr("Die Datei hat zu viele Umsätze für einen Kontoauszug. Es wurde nichts übernommen."));
}

cStatementRead cStatementRead::Refused(const QString& reason)
{
    cStatementRead read;
    read.Refusal = reason;
    return read;
}

std::optional<eStatementFormat> cStatementRead::FormatAt(qsizetype place) const
{
    if (Formats.isEmpty()) {
        return std::nullopt;
    }
    const auto next = std::upper_bound(Parts.begin(), Parts.end(), place);
    return Formats.at(next - Parts.begin() - 1);
}

void cStatementRead::Append(cStatementRead more)
{
    Parts.append(Entries.size());
    for (cWholeBooking& whole : more.Wholes) {
        whole.First += Entries.size();
    }
    Wholes += std::move(more.Wholes);
    for (auto id = more.Ids.constBegin(); id != more.Ids.constEnd(); ++id) {
        Ids.insert(Entries.size() + id.key(), id.value());
    }
    Entries += std::move(more.Entries);
    Problems += more.Problems;
    Skipped += more.Skipped;
    Balances += more.Balances;
    EarlyRows += more.EarlyRows;
    BankCodes.insert(more.BankCodes);
    ClosingBalance = more.ClosingBalance ? more.ClosingBalance : ClosingBalance;
    NeedsAccount = NeedsAccount || more.NeedsAccount;
    IsBook = IsBook || more.IsBook;
}
