#include "import/propose/modKeywordRules.h"

#include "import/propose/modKeywordTable.h"
#include "import/read/modWildcard.h"
#include "model/cImportEntry.h"

#include <QHash>
#include <QList>

#include <vector>

namespace {

using modKeywordTable::cRule;
using modKeywordTable::eSign;

struct cPlain
{
    QString Text;
    size_t Rule = 0;
    int Order = 0; // place among the alternatives of its rule
};

struct cPattern
{
    QString Wildcard;
    size_t Rule = 0;
    int Order = 0;
};

// All alternatives of all rules, so that one walk over a text tells for every rule which of them it holds first.
class cLookup
{
public:
    cLookup()
    {
        const auto& rules = modKeywordTable::Rules();
        m_alternatives.reserve(rules.size());
        for (size_t rule = 0; rule < rules.size(); ++rule) {
            m_alternatives.push_back(QString::fromUtf8(rules[rule].Keywords).split(u'|'));
            for (int order = 0; order < m_alternatives.back().size(); ++order) {
                Add(m_alternatives.back().at(order), rule, order);
            }
        }
    }

    // For each rule the place of the first alternative that the text holds; -1 when it holds none.
    [[nodiscard]] std::vector<int> Find(const QString& text) const
    {
        std::vector<int> found(m_alternatives.size(), -1);
        const auto note = [&](size_t rule, int order) {
            found[rule] = found[rule] < 0 ? order : std::min(found[rule], order);
        };
        for (qsizetype at = 0; at < text.size(); ++at) {
            const auto plains = m_plain.constFind(text.at(at));
            if (plains == m_plain.constEnd()) {
                continue;
            }
            for (const cPlain& plain : *plains) {
                if (QStringView(text).mid(at).startsWith(plain.Text)) {
                    note(plain.Rule, plain.Order);
                }
            }
        }
        for (const cPattern& pattern : m_patterns) {
            if (modWildcard::Matches(text, pattern.Wildcard)) {
                note(pattern.Rule, pattern.Order);
            }
        }
        return found;
    }

    [[nodiscard]] QString Alternative(size_t rule, int order) const { return m_alternatives.at(rule).at(order); }

private:
    void Add(const QString& alternative, size_t rule, int order)
    {
        if (modWildcard::IsPattern(alternative)) {
            m_patterns.push_back({QString(u'*' + alternative + u'*'), rule, order});
        } else {
            m_plain[alternative.front()].append({alternative, rule, order});
        }
    }

    std::vector<QStringList> m_alternatives;
    QHash<QChar, QList<cPlain>> m_plain; // by first character
    std::vector<cPattern> m_patterns;
};

const cLookup& Lookup()
{
    static const cLookup lookup;
    return lookup;
}

bool HasSign(qint64 cents, eSign sign)
{
    switch (sign) {
    case eSign::Positive: return cents > 0;
    case eSign::Negative: return cents < 0;
    case eSign::Any: break;
    }
    return true;
}

modKeywordRules::cMatch Outcome(const cRule& rule, const QString& keyword, qint64 cents)
{
    modKeywordRules::cMatch match;
    match.Interval = QString::fromUtf8(rule.Interval);
    if (HasSign(cents, rule.CategoryOnly)) {
        const bool isOther = cents > 0 && rule.PositiveCategory != nullptr;
        match.Category = QString::fromUtf8(isOther ? rule.PositiveCategory : rule.Category);
        match.Keyword = keyword;
    }
    return match;
}

} // namespace

QString modKeywordRules::MatchText(const cImportEntry& row)
{
    const QString joined = row.ImportBeneficiary + u'|' + row.ImportPurpose + u'|' + row.ImportType;
    return joined.toLower().remove(u'\n').remove(u'\r');
}

QList<modKeywordRules::cHit> modKeywordRules::Hits(const QString& matchText, qint64 cents)
{
    const auto& rules = modKeywordTable::Rules();
    const std::vector<int> found = Lookup().Find(matchText);
    QList<cHit> hits;
    for (size_t i = 0; i < rules.size(); ++i) {
        const cRule& rule = rules[i];
        const bool hasSecond = rule.AlsoRequired == nullptr || matchText.contains(QString::fromUtf8(rule.AlsoRequired));
        if (found[i] >= 0 && hasSecond && HasSign(cents, rule.Only)) {
            hits.append({Outcome(rule, Lookup().Alternative(i, found[i]), cents), rule.IsUncertain});
        }
    }
    return hits;
}

modKeywordRules::cMatch modKeywordRules::Last(const QList<cHit>& hits, eRestriction restriction)
{
    cMatch last;
    for (const cHit& hit : hits) {
        if (restriction == eRestriction::Restricted && hit.IsUncertain) {
            continue;
        }
        last.Interval = hit.Match.Interval;
        if (!hit.Match.Category.isEmpty()) {
            last.Category = hit.Match.Category;
            last.Keyword = hit.Match.Keyword;
        }
    }
    return last;
}
