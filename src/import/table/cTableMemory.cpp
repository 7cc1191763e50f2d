#include "import/table/cTableMemory.h"

#include "base/modMD5.h"
#include "core/cSettings.h"
#include "import/table/modTableProfile.h"
#include "model/modSettingKey.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

// The numbers of a map in the order in which they are stored. New ones go to the end.
QList<int*> Places(cColumnMap& map)
{
    return {&map.Date,        &map.Text,     &map.Purpose[0], &map.Purpose[1], &map.Purpose[2], &map.Name,
            &map.Account,     &map.BankCode, &map.Name2,      &map.Account2,   &map.BankCode2,  &map.Amount,
            &map.Credit,      &map.Debit,    &map.Currency,   &map.Indicator,  &map.Payer,      &map.OwnAccount,
            &map.OwnBankCode, &map.Status,   &map.Balance,    &map.Fee,        &map.OtherName};
}

// The value when it is one of an enumeration with `count` values, else the first one.
template <typename tValue>
tValue Checked(int value, int count)
{
    return static_cast<tValue>(value >= 0 && value < count ? value : 0);
}

constexpr int openSign = -1;          // one that nothing had told when the columns were saved
constexpr qsizetype rules = 5;        // in front of the columns: their count, number, date, sign, details
constexpr qsizetype firstPlaces = 21; // columns that the oldest maps have

// How many columns a stored map has. Newer ones have more; what is no number stands behind them.
qsizetype StoredPlaces(const QStringList& values, qsizetype most)
{
    qsizetype count = 0;
    bool isNumber = true;
    while (isNumber && count < most && rules + count < values.size()) {
        (void)values.at(rules + count).toInt(&isNumber);
        count += isNumber ? 1 : 0;
    }
    return count;
}

// Name of the layout and its currencies.
void LoadName(const QStringList& values, cTableLayout& layout)
{
    if (values.isEmpty() || modTableProfile::ApplyNamed(values.first(), layout.Map.Names, layout)) {
        return;
    }
    layout.Profile = values.first();
    layout.Currency = values.value(1);
    layout.OnlyCurrency = values.value(2);
}

} // namespace

QString cTableMemory::KeyOf(const QStringList& header)
{
    return modMD5::Hex(header.join(u';'));
}

bool cTableMemory::HasMap(const QString& key) const
{
    return !key.isEmpty() && !m_settings.Get(modSettingKey::TableMap.Of(key)).isEmpty();
}

bool cTableMemory::LoadMap(const QString& key, cTableLayout& layout) const
{
    const QStringList values = m_settings.Get(modSettingKey::TableMap.Of(key)).split(u';');
    cColumnMap map;
    const QList<int*> places = Places(map);
    const qsizetype stored = StoredPlaces(values, places.size());
    if (key.isEmpty() || stored < firstPlaces || values.at(0).toInt() != layout.Map.Names.size()) {
        return false;
    }
    map.Names = layout.Map.Names;
    LoadName(values.mid(rules + stored), layout);
    map.ColumnCount = static_cast<int>(map.Names.size());
    for (qsizetype i = 0; i < stored; ++i) {
        const int column = values.at(rules + i).toInt();
        *places.at(i) = column < map.ColumnCount ? column : -1;
    }
    layout.Map = map;
    layout.Number = Checked<eNumberFormat>(values.at(1).toInt(), 3);
    layout.Date = Checked<eDateOrder>(values.at(2).toInt(), 3);
    layout.Sign = Checked<eSignRule>(values.at(3).toInt(), 2);
    layout.IsSignOpen = values.at(3).toInt() == openSign;
    layout.IsSideGuess = layout.IsSignOpen && map.Amount < 0;
    layout.Details = Checked<eDetails>(values.at(4).toInt(), 4);
    layout.Origin = eMapOrigin::Memory;
    return true;
}

bool cTableMemory::SaveMap(const QString& key, const cTableLayout& layout)
{
    if (key.isEmpty()) {
        return false;
    }
    cColumnMap map = layout.Map;
    const int sign = layout.Doubt || layout.IsSignUsual ? openSign : static_cast<int>(layout.Sign);
    QStringList values{QString::number(map.Names.size()), QString::number(static_cast<int>(layout.Number)),
                       QString::number(static_cast<int>(layout.Date)), QString::number(sign),
                       QString::number(static_cast<int>(layout.Details))};
    for (const int* place : Places(map)) {
        values.append(QString::number(*place));
    }
    if (!layout.Profile.isEmpty() || !layout.Currency.isEmpty()) {
        values << layout.Profile << layout.Currency << layout.OnlyCurrency;
    }
    return m_settings.Set(modSettingKey::TableMap.Of(key), values.join(u';'));
}

eCharset cTableMemory::Charset(const QString& key) const
{
    constexpr int charsets = 6;
    return key.isEmpty() ? eCharset::Detect
                         : Checked<eCharset>(m_settings.Get(modSettingKey::TableCharset.Of(key)).toInt(), charsets);
}

bool cTableMemory::SaveCharset(const QString& key, eCharset charset)
{
    return !key.isEmpty()
        && m_settings.Set(modSettingKey::TableCharset.Of(key), QString::number(static_cast<int>(charset)));
}

std::optional<eSignRule> cTableMemory::Sign(const QString& signKey) const
{
    const QString stored = signKey.isEmpty() ? QString() : m_settings.Get(modSettingKey::TableSign.Of(signKey));
    return stored.isEmpty() ? std::nullopt : std::optional(Checked<eSignRule>(stored.toInt(), 2));
}

bool cTableMemory::SaveSign(const QString& signKey, eSignRule sign)
{
    return !signKey.isEmpty()
        && (Sign(signKey) == sign
            || m_settings.Set(modSettingKey::TableSign.Of(signKey), QString::number(static_cast<int>(sign))));
}

QStringList cTableMemory::Accounts(const QString& accountKey) const
{
    return accountKey.isEmpty()
        ? QStringList()
        : m_settings.Get(modSettingKey::TableAccounts.Of(accountKey)).split(u'|', Qt::SkipEmptyParts);
}

QString cTableMemory::Account(const QString& accountKey) const
{
    const QStringList accounts = Accounts(accountKey);
    return accounts.size() == 1 ? accounts.first() : QString();
}

bool cTableMemory::SaveAccount(const QString& accountKey, const QString& account)
{
    if (accountKey.isEmpty() || account.isEmpty()) {
        return false;
    }
    QStringList accounts = Accounts(accountKey);
    if (accounts.contains(account)) {
        return true;
    }
    accounts.append(account);
    return m_settings.Set(modSettingKey::TableAccounts.Of(accountKey), accounts.join(u'|'));
}

QString cTableMemory::BankCode(const QString& accountKey) const
{
    return accountKey.isEmpty() ? QString() : m_settings.Get(modSettingKey::TableBankCode.Of(accountKey));
}

bool cTableMemory::SaveBankCode(const QString& accountKey, const QString& bankCode)
{
    return !accountKey.isEmpty() && m_settings.Set(modSettingKey::TableBankCode.Of(accountKey), bankCode);
}
