#include "import/propose/modHint.h"

#include "base/cText.h"
#include "import/propose/modKeywordTrust.h"
#include "import/propose/modPayeeList.h"
#include "import/read/modPayee.h"
#include "model/cImportEntry.h"
#include "model/cTemplateItem.h"
#include "model/modWord.h"

#include <algorithm>
#include <optional>
#include <tuple>

namespace {

using modKeywordRules::cMatch;
using modPayeeList::cHit;
using modTextWords::cWord;

// How much a word of the list says, by where it was found.
enum class eWeight { Purpose, Payee, Word };

struct cFound
{
    cHit Hit;
    eWeight Weight = eWeight::Purpose;
};

bool HasBreaks(const cImportEntry& row)
{
    return row.ImportPurpose.contains(u'\n') || row.ImportBeneficiary.contains(u'\n');
}

QString Spaced(const cImportEntry& row)
{
    cImportEntry flat = row;
    flat.ImportPurpose.replace(u'\n', u' ');
    flat.ImportBeneficiary.replace(u'\n', u' ');
    return modKeywordRules::MatchText(flat);
}

// A row with all that the list finds in it.
struct cView
{
    explicit cView(const cImportEntry& row)
        : Cents(row.ImportValue),
          NameSize(row.ImportBeneficiary.size()),
          Literal(modKeywordRules::MatchText(row)),
          Text(HasBreaks(row) ? Spaced(row) : Literal),
          Words(modTextWords::Of(Text)),
          Hits(modPayeeList::Find(Words, Cents))
    {
        const bool isNamed = NameSize > 0 && !modPayee::IsCollector(Words) && !row.ImportBeneficiary.contains(u'*');
        for (const cHit& hit : Hits) {
            const auto [at, size] = RangeOf(hit);
            const bool isPayee = isNamed && at + size <= NameSize;
            All.append({hit, hit.IsPurpose ? eWeight::Word : isPayee ? eWeight::Payee : eWeight::Purpose});
        }
        if (!isNamed && !Hits.isEmpty()) {
            AddShop(modPayee::Of(row).Text);
        }
    }

    // Who is paid stands in the purpose.
    void AddShop(const QString& shop)
    {
        const QList<cHit> hits = modPayeeList::Find(modTextWords::Of(shop), Cents);
        for (const cHit& hit : hits) {
            All.append({hit, hit.IsPurpose ? eWeight::Word : eWeight::Payee});
        }
    }

    // The characters of a hit, as place and length.
    [[nodiscard]] std::pair<qsizetype, qsizetype> RangeOf(const cHit& hit) const
    {
        const cWord& last = Words.at(hit.From + hit.Count - 1);
        const qsizetype at = Words.at(hit.From).At;
        return {at, last.At + last.Size - at};
    }

    qint64 Cents = 0;
    qsizetype NameSize = 0;
    QString Literal; // as the keyword rules see it: without line breaks, which may cut a keyword
    QString Text;    // with blanks for them, so that two words stay two
    QList<cWord> Words;
    QList<cHit> Hits; // in the whole text, `From` counts in Words
    QList<cFound> All;
};

bool IsOther(const QString& category, const QString& other)
{
    return !modTemplate::IsWithin(category, other) && !modTemplate::IsWithin(other, category);
}

const cFound* BestOf(const QList<cFound>& all)
{
    const auto best = std::max_element(all.begin(), all.end(), [](const cFound& a, const cFound& b) {
        return std::tuple(a.Weight, a.Hit.Word.size(), a.Hit.IsSure)
            < std::tuple(b.Weight, b.Hit.Word.size(), b.Hit.IsSure);
    });
    return best == all.end() ? nullptr : &*best;
}

// Whether something of the same weight, or what is paid for, names another category. What stands within the longer name
// of the best one is a part of it.
bool HasRival(const QList<cFound>& all, const cFound& best)
{
    return std::any_of(all.begin(), all.end(), [&](const cFound& other) {
        const bool isPart = best.Hit.Word.contains(other.Hit.Word);
        const bool isEqual = other.Weight == best.Weight
            || (other.Weight == eWeight::Payee
                && modTemplate::MainOf(other.Hit.Category) != modTemplate::MainOf(best.Hit.Category));
        return isEqual && other.Hit.IsSure && !isPart && IsOther(other.Hit.Category, best.Hit.Category);
    });
}

cHint FromList(const QList<cFound>& all, const cFound& best)
{
    const QString reason = best.Weight == eWeight::Word ? cText::Tr("Stichwort: {0}", {best.Hit.Word})
                                                        : cText::Tr("bekannt: {0}", {best.Hit.Word});
    return {best.Hit.Category, best.Hit.Interval, reason,
            best.Hit.IsSure && best.Weight != eWeight::Purpose && !HasRival(all, best)};
}

// Blanks the longer names of the list that hold the keyword, when it stands nowhere else. False when there is none.
bool HasBlanked(const cView& view, const QString& keyword, QString& text)
{
    QString rest = text;
    for (const cHit& hit : view.Hits) {
        const auto [at, size] = view.RangeOf(hit);
        if (size > keyword.size() && QStringView(text).sliced(at, size).contains(keyword)) {
            rest.replace(at, size, QString(size, u' '));
        }
    }
    if (rest == text || rest.contains(keyword)) {
        return false;
    }
    text = rest;
    return true;
}

struct cKeywords
{
    void Find(qint64 cents)
    {
        All = modKeywordRules::Hits(Text, cents);
        Last = modKeywordRules::Last(All, eRestriction::Restricted);
    }

    QString Text;
    QList<modKeywordRules::cHit> All;
    cMatch Last; // of the sure ones
};

// What the rules say of the text without the names that merely hold a keyword.
cKeywords WithoutNames(const cView& view, cKeywords found)
{
    while (!found.Last.Category.isEmpty() && HasBlanked(view, found.Last.Keyword, found.Text)) {
        found.Find(view.Cents);
    }
    return found;
}

QStringView NameIn(const cKeywords& keywords, const cView& view)
{
    return QStringView(keywords.Text).first(qMin(view.NameSize, keywords.Text.size()));
}

// Two rules, or a rule and the list, that name different categories. Who is paid says more than the purpose.
bool HasRival(const cKeywords& keywords, const cView& view)
{
    const bool isName = modKeywordTrust::IsSound(keywords.Last.Keyword, NameIn(keywords, view));
    const bool hasRule = std::any_of(keywords.All.begin(), keywords.All.end(), [&](const modKeywordRules::cHit& other) {
        const cMatch& match = other.Match;
        return !other.IsUncertain && !match.Category.isEmpty() && IsOther(match.Category, keywords.Last.Category)
            && !isName && modKeywordTrust::IsSound(match.Keyword, keywords.Text);
    });
    return hasRule || std::any_of(view.All.begin(), view.All.end(), [&](const cFound& other) {
               return other.Hit.IsSure && other.Weight != eWeight::Purpose
                   && IsOther(other.Hit.Category, keywords.Last.Category);
           });
}

cHint FromRule(const cMatch& match, qint64 cents)
{
    cHint hint{match.Category, match.Interval, cText::Tr("Regel: {0}", {match.Keyword}), false};
    if (!modKeywordTrust::FitsSign(match.Category, cents)) {
        hint.Interval = modWord::Einmalig; // money that comes back from the telephone company does not come every month
    }
    return hint;
}

} // namespace

cHint modHint::BySureRule(const cImportEntry& row)
{
    const QList<modKeywordRules::cHit> hits = modKeywordRules::Hits(modKeywordRules::MatchText(row), row.ImportValue);
    const cMatch match = modKeywordRules::Last(hits, eRestriction::Restricted);
    const QString reason = match.Category.isEmpty() ? QString() : cText::Tr("Regel: {0}", {match.Keyword});
    return {match.Category, match.Interval, reason, false};
}

cHint modHint::Best(const cImportEntry& row)
{
    const cView view(row);
    cKeywords literal{view.Literal, {}, {}};
    literal.Find(view.Cents);
    cKeywords keywords = literal;
    if (literal.Text != view.Text) {
        keywords.Text = view.Text;
        keywords.Find(view.Cents);
    }
    keywords = WithoutNames(view, keywords);
    if (keywords.Last.Category.isEmpty() && literal.Text != view.Text) {
        keywords = literal;
    }
    if (!keywords.Last.Category.isEmpty() && modKeywordTrust::IsSound(keywords.Last.Keyword, keywords.Text)) {
        const bool isFit = modKeywordTrust::FitsSign(keywords.Last.Category, view.Cents);
        const cMatch any = modKeywordRules::Last(keywords.All, eRestriction::None);
        if (!isFit && modKeywordTrust::FitsSign(any.Category, view.Cents)
            && modKeywordTrust::IsSound(any.Keyword, keywords.Text)) {
            return FromRule(any, view.Cents); // a later rule, which decides by the direction of the money
        }
        cHint hint = FromRule(keywords.Last, view.Cents);
        hint.IsSure = isFit
            && !modKeywordTrust::IsDoubtful(keywords.Last.Keyword, keywords.Text, NameIn(keywords, view))
            && !HasRival(keywords, view);
        return hint;
    }
    const cFound* const best = BestOf(view.All);
    const bool isKnown = best != nullptr && best->Weight != eWeight::Purpose;
    if (isKnown || (best != nullptr && keywords.Last.Category.isEmpty())) {
        return FromList(view.All, *best);
    }
    if (!keywords.Last.Category.isEmpty()) {
        return FromRule(keywords.Last, view.Cents);
    }
    const cMatch any = modKeywordRules::Last(literal.All, eRestriction::None);
    return any.Category.isEmpty() ? cHint{{}, any.Interval, {}, false} : FromRule(any, view.Cents);
}
