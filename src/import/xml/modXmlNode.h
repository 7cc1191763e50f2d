#pragma once

#include <QByteArrayView>
#include <QDate>
#include <QString>

#include <pugixml.hpp>

// XML whose element names may carry any namespace prefix.
namespace modXmlNode {

// Parses UTF-8 and takes the prefixes off all element names. False when it is no well-formed XML. Declared entities are
// not resolved and nothing outside of the text is looked for.
[[nodiscard]] bool Load(pugi::xml_document& document, QByteArrayView xml);

// The text of the element, blanks around it removed and line breaks inside turned into blanks.
[[nodiscard]] QString Text(const pugi::xml_node& node);

// The day of a date or a time as written; a zone behind it ("2026-09-01+02:00", "2026-09-01Z") does not move it.
// Invalid when the text is none.
[[nodiscard]] QDate Day(const pugi::xml_node& node);

// True when this is the text of the element.
[[nodiscard]] bool IsText(const pugi::xml_node& node, const char* text);

} // namespace modXmlNode
