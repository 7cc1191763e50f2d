#pragma once

#include "views/statement/cImportAssistant.h"

#include <QString>
#include <QStringList>

enum class eCharset;
struct cTableChoice;
struct cTableLayout;

// The lists out of which the user chooses how a table is read. The sheet is not among them: its names stand in the
// file.
namespace modTableField {

// "Automatisch (UTF-8)", or without what was found.
[[nodiscard]] QString Automatic(const QString& found = {});

// `charset` is the one that the file seems to have.
[[nodiscard]] QStringList Items(cImportAssistant::eField field, const cTableLayout& layout, eCharset charset);
[[nodiscard]] int Current(cImportAssistant::eField field, const cTableChoice& choice, const cTableLayout& layout);
void Choose(cImportAssistant::eField field, int item, cTableChoice& choice);

// Who or what decided about the columns.
[[nodiscard]] QString OriginText(const cTableLayout& layout);

} // namespace modTableField
