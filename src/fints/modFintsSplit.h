#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

// Taking messages apart. All tokens are views of the text that they were cut from.
namespace modFintsSplit {

// Cuts a text at "'" (segments), "+" (data elements) or ":" (group elements). Each level has a rule of its own: a "'"
// in binary data behind "+@length@" is no end; a token that begins with "@length@" is cut by its length, one character
// early; a ":" behind a "?" is no separator. An empty text is one empty token. Real messages go through cShield first,
// because none of these rules alone is enough for them.
[[nodiscard]] QList<QByteArrayView> Split(QByteArrayView text, char separator);

// The group elements of one data element, exactly as on the wire; binary data in it is not cut.
[[nodiscard]] QList<QByteArrayView> Group(QByteArrayView element);

// A binary value at the beginning of a text: "@", its length, "@" and the data.
struct cBinary
{
    qsizetype Prefix = 0; // length of "@length@"; 0 when the text begins with no binary value
    qsizetype Length = 0; // of the data as announced; may be more than there is
};
[[nodiscard]] cBinary BinaryAt(QByteArrayView text);

// The data of a binary element without its length; an element that is not binary as it stands.
[[nodiscard]] QByteArrayView Data(QByteArrayView element);

} // namespace modFintsSplit
