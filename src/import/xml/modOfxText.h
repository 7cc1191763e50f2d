#pragma once

#include <QByteArray>
#include <QString>

// From the text of an OFX file to XML. OFX 1 is SGML whose values have no end tags. All texts are UTF-8.
namespace modOfxText {

// Gives every line "<TAG>value" its end tag and drops what stands before "<OFX>". Nothing else is changed: a text with
// several tags on a line, comments or empty elements without end tag does not become XML by this.
[[nodiscard]] QByteArray ToXml(const QByteArray& text);

// An amount as German number: its last "." or "," separates the decimals, the others group. A separator that comes
// several times alone can only group.
[[nodiscard]] QString ToGermanAmount(const QString& amount);

} // namespace modOfxText
