#include "import/read/modTextWords.h"

#include "base/modChar.h"
#include "base/modFold.h"

#include <algorithm>

namespace {

bool IsFolded(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return modChar::IsAscii(c) && !modChar::IsCapital(c); });
}

QString Folded(QStringView word)
{
    if (IsFolded(word)) {
        return QString::fromRawData(word.data(), word.size());
    }
    return modChar::AreAscii(word) ? word.toString().toLower() : modFold::Fold(word.toString()).Spelled;
}

// A sign that joins the single character before it with the next one.
bool IsJoint(QStringView text, qsizetype start, qsizetype at)
{
    return at == start + 1 && at + 1 < text.size() && (text[at] == u'&' || text[at] == u'+')
        && text[at + 1].isLetterOrNumber() && (at + 2 == text.size() || !text[at + 2].isLetterOrNumber());
}

} // namespace

QList<modTextWords::cWord> modTextWords::Of(QStringView text)
{
    QList<cWord> words;
    for (qsizetype at = 0; at < text.size();) {
        if (!text[at].isLetterOrNumber()) {
            ++at;
            continue;
        }
        const qsizetype start = at;
        while (at < text.size() && (text[at].isLetterOrNumber() || IsJoint(text, start, at))) {
            ++at;
        }
        words.append({start, at - start, Folded(text.sliced(start, at - start))});
    }
    return words;
}

bool modTextWords::HasDigits(QStringView word, int fewest)
{
    return std::count_if(word.begin(), word.end(), [](QChar c) { return c.isDigit(); }) >= fewest;
}
