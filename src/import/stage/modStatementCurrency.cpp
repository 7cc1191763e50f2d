#include "import/stage/modStatementCurrency.h"

#include "import/read/cStatementRead.h"
#include "import/stage/cKnownAccounts.h"
#include "import/stage/cStaging.h"

#include <algorithm>
#include <utility>

namespace {

// Empty for what is no code, which tells nothing.
QString CodeOf(const QString& text)
{
    const QString code = text.trimmed().toUpper();
    const auto isLetter = [](QChar c) { return c >= u'A' && c <= u'Z'; };
    return code.size() == 3 && std::all_of(code.begin(), code.end(), isLetter) ? code : QString();
}

bool Has(const cImportEntryList& rows, const QString& account, const QString& code)
{
    return std::any_of(rows.begin(), rows.end(), [&](const cImportEntry& row) {
        return row.ImportAccount == account && CodeOf(row.ImportCurrency) == code;
    });
}

} // namespace

QStringList modStatementCurrency::Others(const cStatementRead& read, const QString& book, cStaging& staging,
                                         const cBankBalances* balances)
{
    cStatementRead other; // a row of each account and currency
    other.BankCodes = read.BankCodes;
    for (const cImportEntry& entry : read.Entries) {
        if (book.isEmpty() || entry.ImportCurrency == book) {
            continue;
        }
        const QString code = CodeOf(entry.ImportCurrency);
        if (!code.isEmpty() && code != book && !Has(other.Entries, entry.ImportAccount, code)) {
            other.Entries.append(entry);
        }
    }
    if (other.Entries.isEmpty()) {
        return {};
    }
    cKnownAccounts(staging.Accounts(), balances).UseIn(other);
    const cImportEntryList rows = staging.Rows();
    QStringList codes;
    for (const cImportEntry& entry : std::as_const(other.Entries)) {
        if (const QString code = CodeOf(entry.ImportCurrency); !Has(rows, entry.ImportAccount, code)) {
            codes.append(code);
        }
    }
    codes.removeDuplicates();
    return codes;
}
