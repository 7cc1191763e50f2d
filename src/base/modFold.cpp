#include "base/modFold.h"

#include <algorithm>

namespace {

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

bool IsAscii(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c.unicode() < 0x80; });
}

} // namespace

modFold::cFolded modFold::Fold(const QString& text)
{
    QString lower = text.toLower();
    if (IsAscii(lower)) {
        return {lower, lower};
    }
    lower.replace(u'ß', QStringLiteral("ss"));
    QString spelled = lower;
    spelled.replace(u'ä', QStringLiteral("ae")).replace(u'ö', QStringLiteral("oe")).replace(u'ü', QStringLiteral("ue"));
    return {WithoutMarks(lower), WithoutMarks(spelled)};
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
