#include "views/bank/cBankAccess.h"

#include "base/cClock.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/stage/cAccountMap.h"
#include "model/bank/cOnlineAccount.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "views/bank/modBankRecord.h"
#include "views/bank/modBankRow.h"

#include <algorithm>
#include <set>

using namespace Qt::Literals::StringLiterals;

namespace {

// Beside the version of the protocol, under the code alone, there are code ":" login for what is kept of the login and
// code ":" login ":" account for the last fetch. Names of settings do not tell letter case apart, logins may: hence
// their hexadecimal digits.
QString PartOf(const QString& bankCode, const QString& userId)
{
    return bankCode + u':' + QString::fromLatin1(userId.toUtf8().toHex());
}

QString PartOf(const cBankState& state, const cBankAccount& account)
{
    const QString sub = account.SubNumber.isEmpty() ? QString() : u'/' + account.SubNumber;
    return PartOf(state.BankCode, state.UserId) + u':' + modBankRow::NumberOf(account) + sub;
}

void TakeRows(cBankState& state, const QList<cOnlineAccount>& rows)
{
    const QString bpd = state.BpdVersion;
    const QString upd = state.UpdVersion;
    modBankRow::ReadLogin(rows.last(), state);
    // Contents of another version than the row names are not the ones that came with it.
    if (state.BpdVersion != bpd) {
        state.BpdVersion = u"0"_s;
    }
    if (state.UpdVersion != upd) {
        state.UpdVersion = u"0"_s;
    }
    if (state.Accounts.isEmpty()) {
        std::transform(rows.begin(), rows.end(), std::back_inserter(state.Accounts), modBankRow::ReadAccount);
    }
}

// How well an account fits to a row; 0: not at all. Of several under one number the sub-account tells more than the
// product, which banks rename.
int Fit(const cBankAccount& account, const cOnlineAccount& row)
{
    const cBankAccount own = modBankRow::ReadAccount(row);
    return modBankRow::NumberOf(account) != own.Number
        ? 0
        : 1 + 2 * static_cast<int>(account.SubNumber == modBankRow::SubNumber(row))
            + static_cast<int>(account.ProductName == own.ProductName);
}

} // namespace

QList<cBankState> cBankAccess::Banks() const
{
    std::set<std::pair<QString, QString>> logins;
    const QList<cOnlineAccount> rows = m_tools.Data.GetOnlineAccounts();
    for (const cOnlineAccount& row : rows) {
        logins.insert({modBankRow::BankCode(row), modBankRow::UserId(row)});
    }
    const auto settings = m_tools.Data.GetSettings();
    for (const auto& [name, value] : settings) {
        const QStringList parts = modSettingKey::OnlineBank.PartOf(name).split(u':');
        if (parts.size() == 2) {
            logins.insert({parts[0], QString::fromUtf8(QByteArray::fromHex(parts[1].toLatin1()))});
        }
    }
    QList<cBankState> banks;
    for (const auto& [bankCode, userId] : logins) {
        if (std::optional<cBankState> state = Find(bankCode, userId)) {
            banks.append(*std::move(state));
        }
    }
    return banks;
}

std::optional<cBankState> cBankAccess::Find(const QString& bankCode, const QString& userId) const
{
    const QList<cOnlineAccount> rows = Rows(bankCode, userId);
    const std::optional<cBankState> record =
        modBankRecord::Read(m_tools.Settings.Get(modSettingKey::OnlineBank.Of(PartOf(bankCode, userId))));
    if (rows.isEmpty() && !record) {
        return {};
    }
    cBankState state = record.value_or(cBankState());
    if (state.Parameters.isEmpty()) {
        state.BpdVersion = u"0"_s;
    }
    if (state.Accounts.isEmpty()) {
        state.UpdVersion = u"0"_s;
    }
    if (!rows.isEmpty()) {
        TakeRows(state, rows);
    }
    state.BankCode = bankCode;
    state.UserId = userId;
    const QString version = HbciVersion(bankCode);
    if (state.HbciVersion != version) { // changed with another login; what the bank told was for the other protocol
        state.HbciVersion = version;
        state.BpdVersion = u"0"_s;
        state.UpdVersion = u"0"_s;
    }
    return state;
}

// As the dialog knows it, however it was written down.
QString cBankAccess::HbciVersion(const QString& bankCode) const
{
    const QString digits = m_tools.Settings.Get(modSettingKey::OnlineBank.Of(bankCode)).remove(u'.');
    return digits.startsWith(u"22") ? u"220"_s : u"300"_s;
}

// The record comes first: killed in between, the versions of the rows fit no contents and the bank sends all again.
bool cBankAccess::Save(const cBankState& state)
{
    Q_ASSERT(!m_tools.Data.Journal().IsOpen());
    if (!Keep(modSettingKey::OnlineBank.Of(state.BankCode), state.HbciVersion)
        || !Keep(modSettingKey::OnlineBank.Of(PartOf(state.BankCode, state.UserId)), modBankRecord::Write(state))) {
        return false;
    }
    const QList<cPair> pairs = Pairs(state);
    return std::all_of(pairs.begin(), pairs.end(), [&](const cPair& pair) {
        cOnlineAccount row = pair.first;
        modBankRow::WriteLogin(row, state, m_tools.Clock.Today());
        modBankRow::WriteAccount(row, pair.second);
        return row == pair.first || m_tools.Data.ChangeOnlineAccount(row);
    });
}

bool cBankAccess::Remove(const QString& bankCode, const QString& userId)
{
    Q_ASSERT(!m_tools.Data.Journal().IsOpen());
    const QString own = PartOf(bankCode, userId);
    QList<cSettingKey> keys;
    const auto settings = m_tools.Data.GetSettings();
    for (const auto& [name, value] : settings) {
        const QString part = modSettingKey::OnlineBank.PartOf(name);
        if (part == own || part.startsWith(own + u':')) {
            keys.append(modSettingKey::OnlineBank.Of(part));
        }
    }
    const QList<cOnlineAccount> rows = Rows(bankCode, userId);
    if (!std::all_of(rows.begin(), rows.end(),
                     [&](const cOnlineAccount& row) { return m_tools.Data.DeleteOnlineAccount(row.ID); })
        || !DeleteAll(keys)) {
        return false;
    }
    const QList<cBankState> left = Banks();
    const bool hasOther =
        std::any_of(left.begin(), left.end(), [&](const cBankState& each) { return each.BankCode == bankCode; });
    return hasOther || DeleteAll({modSettingKey::OnlineBank.Of(bankCode)});
}

QList<cBankAccount> cBankAccess::Chosen(const cBankState& state) const
{
    QList<cBankAccount> accounts;
    const QList<cPair> pairs = Pairs(state);
    std::transform(pairs.begin(), pairs.end(), std::back_inserter(accounts),
                   [](const cPair& pair) { return pair.second; });
    return accounts;
}

bool cBankAccess::Choose(const cBankState& state, const QList<cBankAccount>& accounts)
{
    Q_ASSERT(!m_tools.Data.Journal().IsOpen());
    QList<cBankAccount> added = accounts;
    const QList<cPair> pairs = Pairs(state);
    for (const auto& [row, account] : pairs) {
        if (added.removeOne(account)) {
            continue;
        }
        if (!m_tools.Data.DeleteOnlineAccount(row.ID)
            || !DeleteAll({modSettingKey::OnlineBank.Of(PartOf(state, account))})) {
            return false;
        }
    }
    return std::all_of(added.begin(), added.end(), [&](const cBankAccount& account) {
        cOnlineAccount row;
        modBankRow::WriteCreated(row, m_tools.Clock.Today());
        modBankRow::WriteLogin(row, state, m_tools.Clock.Today());
        modBankRow::WriteAccount(row, account);
        return m_tools.Data.GetNewOnlineAccount(row);
    });
}

bool cBankAccess::IsNumberShared(const cBankState& state, const cBankAccount& account)
{
    const auto count = std::count_if(state.Accounts.begin(), state.Accounts.end(),
                                     [&](const cBankAccount& each) { return each.Number == account.Number; });
    return !account.Number.isEmpty() && count > 1;
}

QString cBankAccess::NumberOf(const cBankState& state, const cBankAccount& account)
{
    const bool hasSub = !account.SubNumber.isEmpty() && IsNumberShared(state, account);
    return hasSub ? account.Number + u'/' + account.SubNumber : account.Number;
}

QString cBankAccess::BookAccountOf(const cBankState& state, const cBankAccount& account) const
{
    const cAccountMap map(m_tools.Data, m_tools.Settings);
    const QString byIban = map.OwnAccountOf(account.Iban, {});
    return byIban.isEmpty() ? map.OwnAccountOf(NumberOf(state, account), account.BankCode) : byIban;
}

// Files name an account by its number or by its IBAN; both lead to the account of the book.
bool cBankAccess::Assign(const cBankState& state, const cBankAccount& account, const QString& name)
{
    cAccountMap map(m_tools.Data, m_tools.Settings);
    const QString number = NumberOf(state, account);
    const bool isOfNone = number == account.Number && IsNumberShared(state, account) && !account.Iban.isEmpty();
    const auto assign = [&](const QString& each) {
        return each.isEmpty() || map.AccountOf(each) == name.trimmed() || map.Assign(each, name);
    };
    return assign(account.Iban) && (isOfNone || assign(number));
}

QDate cBankAccess::LastFetch(const cBankState& state, const cBankAccount& account) const
{
    if (const QString stored = m_tools.Settings.Get(modSettingKey::OnlineBank.Of(PartOf(state, account)));
        !stored.isEmpty()) {
        return modDate::FromIso(stored);
    }
    if (!m_tools.Settings.Get(modSettingKey::OnlineBank.Of(PartOf(state.BankCode, state.UserId))).isEmpty()) {
        return {}; // never, or taken back; what the row says does not go back with a step
    }
    const QList<cPair> pairs = Pairs(state);
    const auto found =
        std::find_if(pairs.begin(), pairs.end(), [&](const cPair& pair) { return pair.second == account; });
    return found == pairs.end() ? QDate() : modBankRow::ReadFetched(found->first);
}

bool cBankAccess::SetLastFetch(const cBankState& state, const cBankAccount& account, QDate day)
{
    const QList<cPair> pairs = Pairs(state);
    const auto found =
        std::find_if(pairs.begin(), pairs.end(), [&](const cPair& pair) { return pair.second == account; });
    if (found != pairs.end()) {
        cOnlineAccount row = found->first;
        modBankRow::WriteFetched(row, day);
        if (!m_tools.Data.ChangeOnlineAccount(row)) {
            return false;
        }
    }
    return Keep(modSettingKey::OnlineBank.Of(PartOf(state, account)), modDate::ToIso(day));
}

QString cBankAccess::ProductId() const
{
    return m_tools.Settings.Get(modSettingKey::BankProduct).trimmed();
}

bool cBankAccess::SetProductId(const QString& id)
{
    return Keep(modSettingKey::BankProduct, id.trimmed());
}

QList<cOnlineAccount> cBankAccess::Rows(const QString& bankCode, const QString& userId) const
{
    QList<cOnlineAccount> rows = m_tools.Data.GetOnlineAccounts();
    rows.removeIf([&](const cOnlineAccount& row) { return !modBankRow::IsOf(row, bankCode, userId); });
    std::reverse(rows.begin(), rows.end());
    return rows;
}

// The rows of the login with their accounts. A row whose account the bank lists no more stands for itself.
QList<cBankAccess::cPair> cBankAccess::Pairs(const cBankState& state) const
{
    QList<cPair> pairs;
    QList<cBankAccount> left = state.Accounts;
    const QList<cOnlineAccount> rows = Rows(state.BankCode, state.UserId);
    for (const cOnlineAccount& row : rows) {
        const auto best = std::max_element(left.begin(), left.end(), [&](const cBankAccount& a, const cBankAccount& b) {
            return Fit(a, row) < Fit(b, row);
        });
        const bool isFound = best != left.end() && Fit(*best, row) > 0;
        pairs.append({row, isFound ? *best : modBankRow::ReadAccount(row)});
        if (isFound) {
            left.erase(best);
        }
    }
    return pairs;
}

bool cBankAccess::DeleteAll(const QList<cSettingKey>& keys)
{
    return std::all_of(keys.begin(), keys.end(), [&](const cSettingKey& key) { return m_tools.Settings.Delete(key); });
}

bool cBankAccess::Keep(const cSettingKey& key, const QString& value)
{
    return m_tools.Settings.Get(key) == value || m_tools.Settings.Set(key, value);
}
