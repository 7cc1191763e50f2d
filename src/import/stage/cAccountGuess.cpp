#include "import/stage/cAccountGuess.h"

#include "base/cText.h"
#include "core/cSettings.h"
#include "import/read/modAccountNumber.h"
#include "import/stage/cBankBalances.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype lastDigits = 4; // by which people know a number
constexpr int nearDays = 3;         // between a purchase as it was written down and the bank's booking
constexpr qsizetype enoughSame = 2; // entries: one amount may be the same by chance

enum class eKind { Unknown, Giro, Savings, Card, Cash };

eKind KindOfName(const cTemplateItem& account)
{
    struct cWord
    {
        QLatin1StringView Part;
        eKind Kind = eKind::Unknown;
    };
    static constexpr std::array words{cWord{"spar"_L1, eKind::Savings},     cWord{"tagesgeld"_L1, eKind::Savings},
                                      cWord{"festgeld"_L1, eKind::Savings}, cWord{"karte"_L1, eKind::Card},
                                      cWord{"visa"_L1, eKind::Card},        cWord{"master"_L1, eKind::Card},
                                      cWord{"giro"_L1, eKind::Giro},        cWord{"bargeld"_L1, eKind::Cash},
                                      cWord{"kasse"_L1, eKind::Cash},       cWord{"portemonnaie"_L1, eKind::Cash}};
    QString name = account.TemplateName.toLower();
    name.remove("sparkasse"_L1).remove("sparda"_L1); // banks of any account
    const auto found =
        std::find_if(words.begin(), words.end(), [&](const cWord& word) { return name.contains(word.Part); });
    return found == words.end() ? eKind::Unknown : found->Kind;
}

// Many different people are paid from a current account only. Formats without names leave the purposes to tell them
// apart, where the same one of another month counts once.
eKind KindOfRows(const QString& number, const cImportEntryList& rows)
{
    constexpr qsizetype many = 4;
    if (modAccountNumber::IsCard(number)) {
        return eKind::Card;
    }
    QSet<QString> names;
    for (const cImportEntry& row : rows) {
        QString name = row.ImportBeneficiary.isEmpty() ? row.ImportPurpose : row.ImportBeneficiary;
        names.insert(name.removeIf([](QChar c) { return c.isDigit(); }));
    }
    return names.size() >= many ? eKind::Giro : eKind::Unknown;
}

} // namespace

cAccountGuess::cAccountGuess(cDataAccess& data, const cSettings& settings, const QSet<QString>& taken)
    : m_data(data),
      m_settings(settings),
      m_taken(taken),
      m_accounts(modTemplate::InOrder(data.GetAccounts()))
{
}

QString cAccountGuess::AccountFor(const QString& number) const
{
    cImportEntryList rows = m_data.GetImportEntries();
    rows.removeIf([&](const cImportEntry& row) { return row.ImportAccount != number; });
    QString best;
    int most = 0;
    for (const cTemplateItem& account : m_accounts) {
        const int weight = Weight(account, number, rows);
        if (weight > most) {
            best = account.TemplateName;
            most = weight;
        } else if (weight == most) {
            best.clear(); // as much speaks for the one as for the other
        }
    }
    return best;
}

QString cAccountGuess::Likeliest(const cImportEntryList& rows) const
{
    const QHash<QString, int> known = KnownNames(rows);
    QString best;
    int most = -1;
    for (const cTemplateItem& account : m_accounts) {
        if (!modTemplate::IsVisible(account)) {
            continue;
        }
        const int speaking = Weight(account, {}, rows) + known.value(account.TemplateName);
        const int weight = 2 * speaking + (KindOfName(account) == eKind::Cash ? 0 : 1);
        if (weight > most) {
            best = account.TemplateName;
            most = weight;
        }
    }
    return best;
}

// How many of those whom the rows name each account has had statements with.
QHash<QString, int> cAccountGuess::KnownNames(const cImportEntryList& rows) const
{
    QSet<QString> names;
    for (const cImportEntry& row : rows) {
        names.insert(row.ImportBeneficiary);
    }
    names.remove({});
    QHash<QString, QSet<QString>> found;
    const cImportEntryList staged = m_data.GetImportEntries();
    for (const cImportEntry& row : staged) {
        if (names.contains(row.ImportBeneficiary)) {
            found[m_settings.Get(modSettingKey::BankNumber.Of(row.ImportAccount))].insert(row.ImportBeneficiary);
        }
    }
    QHash<QString, int> counts;
    for (auto each = found.cbegin(); each != found.cend(); ++each) {
        counts.insert(each.key(), static_cast<int>(each->size()));
    }
    return counts;
}

int cAccountGuess::Weight(const cTemplateItem& account, const QString& number, const cImportEntryList& rows) const
{
    const QString digits = modAccountNumber::Compact(number).right(lastDigits);
    const bool isNamed = digits.size() == lastDigits && account.TemplateName.contains(digits, Qt::CaseInsensitive);
    if (!modTemplate::IsVisible(account) || (m_taken.contains(account.TemplateName) && !isNamed)) {
        return 0;
    }
    const eKind kind = KindOfName(account);
    const eKind wanted = KindOfRows(number, rows);
    const auto isOfOtherKind = [wanted](eKind known) {
        return wanted != eKind::Unknown && known != eKind::Unknown && known != wanted;
    };
    // The only account that still has no number may be called like the bank. Who entered it with what it holds has it
    // in the book once; a new account beside it would hold the same again. One that came with the book and was never
    // used says nothing once another has a number. A statement that shows itself to be of another kind, and one of a
    // card, may well be of an account that is not entered: taken for this one it would mix up two.
    const bool isSole = wanted != eKind::Card && kind != eKind::Cash && kind != eKind::Card
        && std::none_of(m_accounts.begin(), m_accounts.end(), [&](const cTemplateItem& other) {
                            return other.ID != account.ID && modTemplate::IsVisible(other)
                                && !m_taken.contains(other.TemplateName) && KindOfName(other) != eKind::Cash
                                && !isOfOtherKind(KindOfName(other));
                        });
    const bool isOther = isOfOtherKind(kind);
    const bool isMeant = m_taken.isEmpty() || kind == eKind::Unknown || kind == wanted || IsUsed(account.TemplateName);
    int weight = isNamed ? 8 : 0;
    weight += HoldsSame(account.TemplateName, number) ? 6 : 0;
    weight += HasSameEntries(account.TemplateName, rows) ? 4 : 0;
    weight += kind == wanted && wanted != eKind::Unknown ? 2 : 0;
    weight += isSole && isMeant ? 1 : 0;
    return kind == eKind::Cash || (isOther && weight < 6) ? 0 : weight;
}

bool cAccountGuess::IsUsed(const QString& account) const
{
    return !m_data.GetEntries({{}, {}, {}, account, {}, eBookingKind::All}).isEmpty();
}

// What the book's account holds on the day of one of the bank's balances. Who begins a book says what an account holds
// today and reads older statements then: a later start balance stands for what was before.
bool cAccountGuess::HoldsSame(const QString& account, const QString& number) const
{
    const cBankBalanceList balances = cBankBalances::Of(m_settings, number);
    if (balances.isEmpty()) {
        return false;
    }
    QHash<QDate, qint64> changes;
    const cEntryItemList entries =
        m_data.GetEntries({{}, balances.constLast().Day, {}, account, {}, eBookingKind::All});
    const std::optional<cEntryItem> start = m_data.GetStartGuthaben(account);
    return std::any_of(balances.begin(), balances.end(), [&](const cBankBalance& balance) {
        const bool isLater = start && start->EntryDate > balance.Day;
        qint64 cents = isLater ? modBalance::Effect(*start, account) : 0;
        for (const cEntryItem& entry : entries) {
            cents += entry.EntryDate <= balance.Day ? modBalance::Effect(entry, account) : 0;
        }
        return balance.Cents != 0 && cents == balance.Cents;
    });
}

bool cAccountGuess::HasSameEntries(const QString& account, const cImportEntryList& rows) const
{
    if (rows.isEmpty()) {
        return false;
    }
    const auto [first, last] = std::minmax_element(
        rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a.ImportDate < b.ImportDate; });
    QMultiHash<qint64, QDate> days;
    const cEntryItemList entries = m_data.GetEntries(
        {first->ImportDate.addDays(-nearDays), last->ImportDate.addDays(nearDays), {}, account, {}, eBookingKind::All});
    for (const cEntryItem& entry : entries) {
        days.insert(modBalance::Effect(entry, account), entry.EntryDate);
    }
    return std::count_if(rows.begin(), rows.end(),
                         [&](const cImportEntry& row) {
                             const auto [from, to] = days.equal_range(row.ImportValue);
                             return std::any_of(
                                 from, to, [&](QDate day) { return qAbs(day.daysTo(row.ImportDate)) <= nearDays; });
                         })
        >= enoughSame;
}

QString cAccountGuess::NewName(const QString& number, const QString& product) const
{
    const QString told = modTemplate::CleanName(product).trimmed();
    const QString like = modTemplate::AccountLike(m_accounts, told);
    const bool isFit = std::all_of(m_accounts.begin(), m_accounts.end(), [&](const cTemplateItem& account) {
        return account.TemplateName != like || (modTemplate::IsVisible(account) && KindOfName(account) != eKind::Cash);
    });
    if (!told.isEmpty() && !m_taken.contains(like) && isFit) {
        return told;
    }
    const QString digits = modAccountNumber::Compact(number).right(lastDigits);
    const QString kind = !told.isEmpty()   ? told
        : modAccountNumber::IsCard(number) ? cText::Tr("Kreditkarte")
                                           : cText::Tr("Bankkonto");
    const QString name = digits.isEmpty() ? kind : kind + u' ' + modTemplate::CleanName(digits);
    QString free = name;
    for (int i = 2; !modTemplate::AccountLike(m_accounts, free).isEmpty(); ++i) {
        free = name + u" ("_s + QString::number(i) + u')';
    }
    return free;
}
