#include "model/modTag.h"

#include "base/modFold.h"

#include <algorithm>

namespace {

constexpr QChar mark = u'#';

bool IsPart(QChar c)
{
    return c.isLetterOrNumber() || c.isMark() || c == u'-' || c == u'_';
}

// What may stand before the "#" of a tag: blanks, what opens a word, and the comma of a list. Addresses and numbers of
// invoices have the other marks there.
bool Separates(QChar c)
{
    return c.isSpace() || QStringView(u"([{,\"'„“‚‘»«›‹–").contains(c);
}

bool Begins(const QString& text, qsizetype at)
{
    return text.at(at) == mark && (at == 0 || Separates(text.at(at - 1)));
}

} // namespace

QList<modTag::cPlace> modTag::Places(const QString& text)
{
    QList<cPlace> places;
    for (qsizetype at = text.indexOf(mark); at >= 0; at = text.indexOf(mark, at + 1)) {
        if (!Begins(text, at)) {
            continue;
        }
        qsizetype end = at + 1;
        while (end < text.size() && IsPart(text.at(end))) {
            ++end;
        }
        while (text.at(end - 1) == u'-' || text.at(end - 1) == u'_') {
            --end;
        }
        const QStringView name = QStringView(text).sliced(at + 1, end - at - 1);
        if (std::any_of(name.begin(), name.end(), [](QChar c) { return c.isLetter(); })) {
            places.append({at, end - at});
        }
    }
    return places;
}

QStringList modTag::Of(const QString& text)
{
    QStringList tags;
    QStringList keys;
    const QList<cPlace> places = Places(text);
    for (const cPlace& place : places) {
        const QString tag = text.sliced(place.Start, place.Length);
        if (const QString key = Key(tag); !keys.contains(key)) {
            keys.append(key);
            tags.append(tag);
        }
    }
    return tags;
}

QString modTag::Key(const QString& tag)
{
    return modFold::Fold(tag).Spelled;
}

QStringList modTag::Keys(const QString& text)
{
    QStringList keys = Of(text);
    std::transform(keys.begin(), keys.end(), keys.begin(), Key);
    return keys;
}

modTag::cPlace modTag::Typed(const QString& text, qsizetype cursor)
{
    qsizetype start = std::min(cursor, text.size());
    const qsizetype end = start;
    while (start > 0 && IsPart(text.at(start - 1))) {
        --start;
    }
    const bool isTag = start > 0 && Begins(text, start - 1);
    return isTag ? cPlace{start - 1, end - start + 1} : cPlace{};
}
