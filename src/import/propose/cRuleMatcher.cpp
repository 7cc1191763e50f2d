#include "import/propose/cRuleMatcher.h"

#include "import/propose/modKeywordRules.h"
#include "import/read/modAccountNumber.h"
#include "import/read/modCounterparty.h"
#include "import/read/modWildcard.h"
#include "model/cImportEntry.h"
#include "model/modCutText.h"

#include <algorithm>
#include <vector>

namespace {

using cPairs = cRuleRow::cPairs;

std::size_t PairOf(QChar first, QChar second)
{
    constexpr std::size_t spread = 37;
    return (first.unicode() * spread + second.unicode()) % cPairs().size();
}

cPairs PairsOf(QStringView text)
{
    cPairs pairs;
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        pairs.set(PairOf(text[i], text[i + 1]));
    }
    return pairs;
}

// The pairs that whatever fits the pattern must hold: of characters that mean themselves, before the first class.
cPairs NeededPairs(QStringView pattern)
{
    cPairs pairs;
    const qsizetype end = pattern.indexOf(u'[');
    const QStringView part = end < 0 ? pattern : pattern.first(end);
    for (qsizetype i = 0; i + 1 < part.size(); ++i) {
        if (!modWildcard::IsPattern(part.mid(i, 2))) {
            pairs.set(PairOf(part[i], part[i + 1]));
        }
    }
    return pairs;
}

struct cAlternative
{
    QString Plain; // empty for a pattern
    QString Pattern;
    std::vector<std::size_t> Pairs;

    explicit cAlternative(const QString& text)
    {
        if (modWildcard::IsPattern(text)) {
            Pattern = u'*' + text + u'*';
        } else {
            Plain = text;
        }
        const cPairs needed = NeededPairs(text);
        for (std::size_t pair = 0; pair < needed.size(); ++pair) {
            if (needed.test(pair)) {
                Pairs.push_back(pair);
            }
        }
    }

    [[nodiscard]] bool IsIn(const cRuleRow& row) const
    {
        return std::all_of(Pairs.begin(), Pairs.end(), [&](std::size_t pair) { return row.Pairs.test(pair); })
            && std::any_of(row.Texts.begin(), row.Texts.end(), [this](const QString& text) {
                   return Pattern.isEmpty() ? text.contains(Plain) : modWildcard::Matches(text, Pattern);
               });
    }
};

// A number as a person writes it, in capitals without blanks; empty when the text is none.
QString NumberIn(const QString& text)
{
    constexpr int fewest = 4; // digits: a name like "Kontor 24" is none
    const QString number = modAccountNumber::Compact(text);
    const auto digits = std::count_if(number.begin(), number.end(), [](QChar c) { return c.isDigit(); });
    return digits >= fewest ? number : QString();
}

// Compares the last characters first, because nearly all numbers differ there.
bool IsSameNumber(const QString& number, const QString& bankCode, const QString& wanted)
{
    constexpr qsizetype most = 3;
    const qsizetype count = std::min({most, number.size(), wanted.size()});
    return count > 0 && QStringView(number).last(count) == QStringView(wanted).last(count)
        && modAccountNumber::IsSame(number, bankCode, wanted);
}

struct cRule
{
    int Place = 0;
    eRuleSign Sign = eRuleSign::Any;
    std::vector<cAlternative> Alternatives; // none: any text will do
    QString Name;
    QString Number;
    QString Account;
    QString OwnNumber;

    cRule(const cOwnRule& rule, int place) : Place(place), Sign(rule.Sign), Account(rule.Account)
    {
        const QStringList texts = rule.Text.toLower().split(u'|');
        for (const QString& text : texts) {
            if (const QString alternative = text.simplified(); !alternative.isEmpty()) {
                Alternatives.emplace_back(alternative);
            }
        }
        Name = modCutText::Name(rule.Counterparty).simplified().toCaseFolded();
        Number = NumberIn(rule.Counterparty);
        OwnNumber = NumberIn(rule.Account);
    }

    [[nodiscard]] bool HasSign(qint64 cents) const
    {
        return Sign == eRuleSign::Any || (Sign == eRuleSign::In ? cents > 0 : cents < 0);
    }

    [[nodiscard]] bool Matches(const cRuleRow& row) const
    {
        return HasSign(row.Cents)
            && (Name.isEmpty() || Name == row.Name || IsSameNumber(row.Number, row.BankCode, Number))
            && (Account.isEmpty() || Account == row.Account || IsSameNumber(row.OwnNumber, {}, OwnNumber))
            && (Alternatives.empty()
                || std::any_of(Alternatives.begin(), Alternatives.end(),
                               [&](const cAlternative& alternative) { return alternative.IsIn(row); }));
    }
};

} // namespace

cRuleRow::cRuleRow(const cImportEntry& row, const QString& account)
    : Texts(modKeywordRules::MatchText(modCutText::WholeWords(row)).simplified()),
      Name(modCounterparty::NameKey(row)),
      Number(modCounterparty::AccountKey(row)),
      BankCode(row.ImportBeneficiaryBLZ),
      Account(account),
      OwnNumber(modAccountNumber::Compact(row.ImportAccount)),
      Cents(row.ImportValue)
{
    // A rule may have been written for the words as they are torn apart in the file.
    if (const QString torn = modKeywordRules::MatchText(row).simplified(); torn != Texts.constFirst()) {
        Texts.append(torn);
    }
    // A line break may cut a word or stand between two; only the user's eye knows.
    if (row.ImportPurpose.contains(u'\n') || row.ImportBeneficiary.contains(u'\n')) {
        cImportEntry flat = row;
        flat.ImportPurpose.replace(u'\n', u' ');
        flat.ImportBeneficiary.replace(u'\n', u' ');
        Texts.append(modKeywordRules::MatchText(flat).simplified());
    }
    for (const QString& text : std::as_const(Texts)) {
        Pairs |= PairsOf(text);
    }
}

struct cRuleMatcher::cCompiled
{
    std::vector<cRule> Rules;
};

cRuleMatcher::cRuleMatcher(const QList<cOwnRule>& rules) : m_rules(std::make_unique<cCompiled>())
{
    for (int place = 0; place < rules.size(); ++place) {
        // A rule without conditions, or with a text of mere "|", would match everything. None is stored, but one may be
        // just being typed.
        const cOwnRule& rule = rules.at(place);
        if (!rule.IsOn || !rule.Unreadable.isEmpty() || !rule.HasCondition()) {
            continue;
        }
        if (cRule compiled(rule, place); rule.Text.isEmpty() || !compiled.Alternatives.empty()) {
            m_rules->Rules.push_back(std::move(compiled));
        }
    }
}

cRuleMatcher::~cRuleMatcher() = default;

int cRuleMatcher::Find(const cRuleRow& row) const
{
    const auto found = std::find_if(m_rules->Rules.begin(), m_rules->Rules.end(),
                                    [&](const cRule& rule) { return rule.Matches(row); });
    return found == m_rules->Rules.end() ? -1 : found->Place;
}
