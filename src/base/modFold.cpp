#include "base/modFold.h"

#include "base/modChar.h"

#include <QStringMatcher>

#include <algorithm>

namespace {

// The letters from U+00E0 to U+00FF without their marks.
constexpr QStringView latinLetters = u"aaaaaa\u00e6ceeeeiiii\u00f0nooooo\u00f7\u00f8uuuuy\u00fey";

QString WithoutMarks(const QString& text)
{
    const QString apart = text.normalized(QString::NormalizationForm_D);
    QString kept;
    kept.reserve(apart.size());
    for (const QChar c : apart) {
        if (c.category() != QChar::Mark_NonSpacing) {
            kept.append(c);
        }
    }
    return kept;
}

// True for what folds character by character: Latin letters of western Europe, and punctuation and currency signs,
// which have neither case nor marks.
bool IsPlainLatin(QStringView text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar c) { return c.unicode() < 0x100 || (c.unicode() >= 0x2010 && c.unicode() < 0x20D0); });
}

void AppendLowerAscii(QStringView text, QString& folded)
{
    const qsizetype start = folded.size();
    folded.append(text);
    QChar* const end = folded.data() + folded.size();
    for (QChar* c = folded.data() + start; c != end; ++c) {
        const char16_t code = c->unicode();
        *c = QChar(static_cast<char16_t>(code >= u'A' && code <= u'Z' ? code + 0x20 : code));
    }
}

char16_t LowerLatin(char16_t c)
{
    const bool isUpper = (c >= u'A' && c <= u'Z') || (c >= 0xC0 && c <= 0xDE && c != 0xD7);
    return static_cast<char16_t>(isUpper ? c + 0x20 : c);
}

enum class eUmlauts { Plain, Spelled };

void AppendLatin(QStringView text, eUmlauts umlauts, QString& folded)
{
    for (const QChar each : text) {
        const char16_t c = LowerLatin(each.unicode());
        if (c == u'ß') {
            folded.append(u"ss");
        } else if (c >= 0xE0 && c <= 0xFF) {
            folded.append(latinLetters[c - 0xE0]);
            if (umlauts == eUmlauts::Spelled && (c == u'ä' || c == u'ö' || c == u'ü')) {
                folded.append(u'e');
            }
        } else {
            folded.append(QChar(c));
        }
    }
}

modFold::cFolded FoldAny(const QString& text)
{
    QString lower = text.toLower();
    lower.replace(u'ß', QStringLiteral("ss"));
    QString spelled = lower;
    spelled.replace(u'ä', QStringLiteral("ae")).replace(u'ö', QStringLiteral("oe")).replace(u'ü', QStringLiteral("ue"));
    return {WithoutMarks(lower), WithoutMarks(spelled)};
}

} // namespace

modFold::cFolded modFold::Fold(const QString& text)
{
    cFolded folded;
    if (modChar::AreAscii(text)) {
        AppendLowerAscii(text, folded.Plain);
        folded.Spelled = folded.Plain;
    } else if (IsPlainLatin(text)) {
        AppendLatin(text, eUmlauts::Plain, folded.Plain);
        AppendLatin(text, eUmlauts::Spelled, folded.Spelled);
    } else {
        folded = FoldAny(text);
    }
    return folded;
}

QList<modFold::cFolded> modFold::Words(const QString& search)
{
    QList<cFolded> words;
    const QStringList parts = search.simplified().split(u' ', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        words.append(Fold(part));
    }
    return words;
}

bool modFold::HoldsAll(const cFolded& text, const QList<cFolded>& words)
{
    return std::all_of(words.begin(), words.end(), [&](const cFolded& word) {
        return text.Plain.contains(word.Plain) || text.Spelled.contains(word.Spelled);
    });
}

bool modFold::IsNarrower(const QList<cFolded>& words, const QList<cFolded>& before)
{
    return std::all_of(before.begin(), before.end(), [&](const cFolded& old) {
        return std::any_of(words.begin(), words.end(), [&](const cFolded& word) {
            return word.Plain.contains(old.Plain) && word.Spelled.contains(old.Spelled);
        });
    });
}

int modFold::cTexts::Add(const QString& text)
{
    const int number = m_count++;
    if (modChar::AreAscii(text)) {
        AppendLowerAscii(text, m_plain.Text); // nearly all texts are like this
        Close(m_plain, number);
        return number;
    }
    const cFolded folded = Fold(text);
    if (folded.Plain == folded.Spelled) {
        m_plain.Text.append(folded.Plain);
        Close(m_plain, number);
        return number;
    }
    m_umlauts.Text.append(folded.Plain);
    m_spelled.Text.append(folded.Spelled);
    Close(m_umlauts, number);
    Close(m_spelled, number);
    return number;
}

void modFold::cTexts::Close(cChain& chain, int number)
{
    chain.Text.append(u'\n');
    chain.Ends.push_back(chain.Text.size());
    chain.Numbers.push_back(number);
}

std::vector<bool> modFold::cTexts::Find(const cFolded& word) const
{
    std::vector<bool> isFound(static_cast<std::size_t>(m_count));
    const auto mark = [&isFound](const cChain& chain, const QString& searched) {
        const QStringMatcher matcher(searched);
        std::size_t text = 0;
        for (qsizetype at = matcher.indexIn(chain.Text); at >= 0; at = matcher.indexIn(chain.Text, chain.Ends[text])) {
            while (chain.Ends[text] <= at) {
                ++text;
            }
            isFound[static_cast<std::size_t>(chain.Numbers[text])] = true;
        }
    };
    mark(m_plain, word.Plain);
    if (word.Spelled != word.Plain) {
        mark(m_plain, word.Spelled);
    }
    mark(m_umlauts, word.Plain);
    mark(m_spelled, word.Spelled);
    return isFound;
}
