#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// Tags are words of a description that begin with "#", as in "Hotel #urlaub". They are kept nowhere else, so every file
// and every export has them.
namespace modTag {

// Where a tag stands in a text, its "#" included.
struct cPlace
{
    qsizetype Start = 0;
    qsizetype Length = 0;
    bool operator==(const cPlace&) const = default;
};

// A tag is "#" with letters, digits, "-" and "_" behind it, among them a letter: "#1" is a number. The "#" begins a
// word, so "C#" and an address with "#" hold none, and "-" or "_" at the end belong to the sentence.
[[nodiscard]] QList<cPlace> Places(const QString& text);

// The tags of a text as they are written, with their "#", each once.
[[nodiscard]] QStringList Of(const QString& text);

// The same text for all spellings of a tag: letter case does not count, and "Müll" is "muell". With "#".
[[nodiscard]] QString Key(const QString& tag);

// The keys of the tags of a text, each once.
[[nodiscard]] QStringList Keys(const QString& text);

// The beginning of a tag that ends at the cursor, "#ur" or "#" alone; without length when there is none.
[[nodiscard]] cPlace Typed(const QString& text, qsizetype cursor);

} // namespace modTag
