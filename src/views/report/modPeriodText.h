#pragma once

#include "model/modPeriod.h"

#include <QString>

// A period in words, above what is printed or exported of it.
namespace modPeriodText {

// "Zeitraum: Aktuelles Jahr (01.01.2026 bis 31.12.2026)": a period by name with its days.
[[nodiscard]] QString Named(const QString& name, const modPeriod::cRange& range);

} // namespace modPeriodText
