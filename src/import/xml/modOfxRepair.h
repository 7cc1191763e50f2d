#pragma once

#include <QByteArray>

// OFX texts as banks really write them.
namespace modOfxRepair {

// Brings a text that banks took liberties with into the form that modOfxText::ToXml expects: comments and processing
// instructions go, every tag stands on a line of its own, "&" and "<" in values are escaped, values and empty elements
// get their end tags, tags that close nothing go. A transaction ends at the latest where the next one begins.
[[nodiscard]] QByteArray Repair(const QByteArray& text);

} // namespace modOfxRepair
