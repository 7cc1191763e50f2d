#include "import/stage/cKnownAccounts.h"

#include "import/read/cStatementRead.h"
#include "import/read/modAccountNumber.h"
#include "import/stage/cBankBalances.h"
#include "import/stage/cImportHive.h"

#include <algorithm>
#include <iterator>
#include <utility>

cKnownAccounts::cKnownAccounts(QStringList staged, const cBankBalances* balances)
    : m_staged(std::move(staged)),
      m_balances(balances)
{
}

void cKnownAccounts::UseIn(cStatementRead& read)
{
    m_bankCodes = read.BankCodes;
    LearnForms(cImportHive::AccountsOf(read.Entries));
    for (cImportEntry& entry : read.Entries) {
        entry.ImportAccount = FormOf(entry.ImportAccount);
    }
    for (cSkippedRow& row : read.Skipped) {
        row.Entry.ImportAccount = FormOf(row.Entry.ImportAccount);
    }
    for (cAccountBalance& balance : read.Balances) {
        balance.Account = FormOf(balance.Account);
    }
}

bool cKnownAccounts::KeepBankCodes(cBankBalances& balances) const
{
    return std::all_of(m_bankCodes.keyValueBegin(), m_bankCodes.keyValueEnd(), [&](const auto& named) {
        const QString form = m_forms.value(named.first, named.first);
        const bool isNews = modAccountNumber::IsBankCode(named.second) && !modAccountNumber::IsGermanIban(form);
        return !isNews || balances.KeepBankCode(form, named.second);
    });
}

// One archive may tell an account in both forms; the IBAN goes first, because its number alone may be that of another
// bank.
void cKnownAccounts::LearnForms(QStringList numbers)
{
    std::stable_partition(numbers.begin(), numbers.end(), modAccountNumber::IsGermanIban);
    for (const QString& number : std::as_const(numbers)) {
        if (const QString& form = FormOf(number); !m_staged.contains(form)) {
            m_staged.append(form);
        }
    }
}

const QString& cKnownAccounts::FormOf(const QString& number)
{
    auto known = m_forms.find(number);
    if (known == m_forms.end()) {
        known = m_forms.insert(number, Find(number));
    }
    return *known;
}

// The number itself when nothing is staged of the account, and when it could be several.
QString cKnownAccounts::Find(const QString& number) const
{
    if (m_staged.contains(number)) {
        return number;
    }
    QStringList same;
    std::copy_if(m_staged.begin(), m_staged.end(), std::back_inserter(same), [&](const QString& staged) {
        return modAccountNumber::IsSame(number, m_bankCodes.value(number), staged,
                                        m_balances == nullptr ? QString() : m_balances->BankCodeOf(staged));
    });
    return same.size() == 1 ? same.first() : number;
}
