#include "import/match/cMatchText.h"

#include "base/modSimilar.h"
#include "model/cTemplateItem.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double noise = 0.4; // so much do any two German texts have in common
constexpr double categoryWeight = 2.0 / 3.0;
constexpr qsizetype shortestWord = 3;
constexpr qsizetype mostWords = 12; // what follows in a purpose are numbers and names of terminals

// The part of a similarity that means something, from 0 to 1.
double Meaning(double similarity)
{
    return std::max(0.0, (similarity - noise) / (1.0 - noise));
}

} // namespace

cMatchText::cMatchText(const QString& payee, const QString& purpose, const QString& category)
    : m_payee(payee.simplified()),
      m_purpose(purpose.simplified()),
      m_whole(m_payee + u" - " + m_purpose),
      m_category(category),
      m_payeeWords(WordsOf(m_payee)),
      m_purposeWords(WordsOf(m_purpose))
{
}

cMatchText::cMatchText(const QString& description, const QString& category)
    : m_payee(description.simplified()),
      m_category(category),
      m_payeeWords(WordsOf(m_payee))
{
    const QString sub = modTemplate::SubOf(m_category);
    m_purpose = sub.isEmpty() ? m_category : sub;
    m_categoryWords = WordsOf(m_purpose);
}

cMatchText::cWords cMatchText::WordsOf(const QString& text)
{
    cWords words;
    qsizetype first = 0;
    for (qsizetype i = 0; i <= text.size() && words.size() < mostWords; ++i) {
        if (i < text.size() && text.at(i).isLetterOrNumber()) {
            continue;
        }
        if (i - first >= shortestWord) {
            words.append(QStringView(text).mid(first, i - first));
        }
        first = i + 1;
    }
    return words;
}

double cMatchText::Likeness(const QString& a, const QString& b)
{
    return a.isEmpty() || b.isEmpty() ? 0.0 : modSimilar::Similarity(a, b);
}

double cMatchText::Best(QStringView word, const cWords& others)
{
    double best = 0.0;
    for (const QStringView other : others) {
        best = std::max(best, modSimilar::Similarity(word, other));
    }
    return best;
}

cMatchText::cCovered cMatchText::Covered(const cWords& words) const
{
    cCovered covered;
    for (const QStringView word : words) {
        const double inPayee = Best(word, m_payeeWords);
        covered.Payee += inPayee;
        covered.Both += inPayee < 1.0 ? std::max(inPayee, Best(word, m_purposeWords)) : inPayee;
    }
    const auto count = static_cast<double>(std::max<qsizetype>(1, words.size()));
    return {covered.Payee / count, covered.Both / count};
}

cMatchText::cLikeness cMatchText::Compare(const cMatchText& row, const cMatchText& entry)
{
    using modMatchScore::eTextMatch;
    const cCovered words = row.Covered(entry.m_payeeWords);
    if (words.Payee >= 1.0) {
        return {1.0, eTextMatch::Payee};
    }
    const double payee = std::max(Likeness(row.m_payee, entry.m_payee), words.Payee);
    const double purpose =
        std::max({Likeness(row.m_purpose, entry.m_payee), Likeness(row.m_whole, entry.m_payee), words.Both});
    const double category =
        std::max(Likeness(row.m_category, entry.m_category), row.Covered(entry.m_categoryWords).Both);
    cLikeness best{Meaning(payee), eTextMatch::Payee};
    if (Meaning(purpose) > best.Value) {
        best = {Meaning(purpose), eTextMatch::Purpose};
    }
    if (categoryWeight * Meaning(category) > best.Value) {
        best = {categoryWeight * Meaning(category), eTextMatch::Category};
    }
    return best.Value > 0.0 ? best : cLikeness{};
}
