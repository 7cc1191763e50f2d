#pragma once

#include <QString>
#include <QStringView>

// Texts of single cells.
namespace modCell {

// Trimmed, without the double quotes around it, tabs as blanks, without carriage returns and line feeds.
[[nodiscard]] QString Clean(QStringView text);

// False when Clean would return the trimmed text as it is.
[[nodiscard]] bool NeedsCleaning(QStringView trimmed);

// True when the upper-cased name matches one of the upper-cased alternatives, which "|" separates; these may be
// wildcard patterns.
[[nodiscard]] bool MatchesList(QStringView name, QStringView alternatives);

} // namespace modCell
