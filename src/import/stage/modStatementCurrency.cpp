#include "import/stage/modStatementCurrency.h"

#include "base/modChar.h"
#include "import/read/cStatementRead.h"
#include "import/stage/cKnownAccounts.h"
#include "import/stage/cStaging.h"

#include <QList>

#include <algorithm>

namespace {

// Empty for what is no code, which tells nothing.
QString CodeOf(const QString& text)
{
    const QString code = text.trimmed().toUpper();
    return modChar::IsCurrencyCode(code) ? code : QString();
}

qsizetype IndexOf(const cImportEntryList& rows, const QString& account, const QString& code)
{
    const auto found = std::find_if(rows.begin(), rows.end(), [&](const cImportEntry& row) {
        return row.ImportAccount == account && CodeOf(row.ImportCurrency) == code;
    });
    return found == rows.end() ? -1 : found - rows.begin();
}

} // namespace

modStatementCurrency::cOthers modStatementCurrency::Others(const cStatementRead& read, const QString& book,
                                                           cStaging& staging, const cBankBalances* balances)
{
    cStatementRead other; // a row of each account and currency
    other.BankCodes = read.BankCodes;
    QList<qsizetype> counts; // of the rows for which each of them stands
    for (const cImportEntry& entry : read.Entries) {
        if (book.isEmpty() || entry.ImportCurrency == book) {
            continue;
        }
        const QString code = CodeOf(entry.ImportCurrency);
        if (code.isEmpty() || code == book) {
            continue;
        }
        if (const qsizetype known = IndexOf(other.Entries, entry.ImportAccount, code); known >= 0) {
            ++counts[known];
        } else {
            other.Entries.append(entry);
            counts.append(1);
        }
    }
    if (other.Entries.isEmpty()) {
        return {};
    }
    cKnownAccounts(staging.Accounts(), balances).UseIn(other);
    const cImportEntryList rows = staging.Rows();
    cOthers others;
    for (qsizetype i = 0; i < counts.size(); ++i) {
        const cImportEntry& entry = other.Entries.at(i);
        if (const QString code = CodeOf(entry.ImportCurrency); IndexOf(rows, entry.ImportAccount, code) < 0) {
            others.Codes.append(code);
            others.Rows += counts.at(i);
        }
    }
    others.Codes.removeDuplicates();
    return others;
}
