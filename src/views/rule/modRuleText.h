#pragma once

#include "model/cOwnRule.h"

#include <QString>
#include <QStringList>

// The user's own rules in words.
namespace modRuleText {

// What has to hold: "Text enthält „rewe“, Ausgabe"
[[nodiscard]] QString Conditions(const cOwnRule& rule);

// What it sets: "Haushalt; Lebensmittel, Einmalig"
[[nodiscard]] QString Result(const cOwnRule& rule);

// Why the rule cannot be stored, empty when it can. `categories` are the paths that the book knows.
[[nodiscard]] QString Problem(const cOwnRule& rule);

} // namespace modRuleText
