#pragma once

#include <QString>

// The purpose texts of SEPA payments.
namespace modSepaPurpose {

// A purpose with SEPA keywords reduced to what a person wants to read: the purpose text, and a differing originator in
// brackets. A purpose that does not begin with a keyword is only trimmed.
[[nodiscard]] QString Rewrite(const QString& purpose);

// Whether it begins with one of the keywords, "SVWZ+" say.
[[nodiscard]] bool BeginsWithKeyword(const QString& purpose);

} // namespace modSepaPurpose
