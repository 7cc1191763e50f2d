#pragma once

#include "views/entry/cEntryDraft.h"

#include <QJsonObject>
#include <QString>

#include <optional>

// Drafts as they are stored and as they are shown.
namespace modEntryDraft {

// How amounts are typed is left out: that is a matter of the book, not of the draft.
[[nodiscard]] QJsonObject ToJson(const cEntryDraft& draft);

// Empty for what is no draft. What is missing or of another kind is as in an empty form.
[[nodiscard]] std::optional<cEntryDraft> FromJson(const QJsonObject& json);

// What it is about in a line for the user: "12,50 - Lebensmittel; Markt - Äpfel".
[[nodiscard]] QString Summary(const cEntryFields& fields);

} // namespace modEntryDraft
