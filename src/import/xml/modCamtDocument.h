#pragma once

#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"

#include <QByteArray>
#include <QString>

// A single camt document.
namespace modCamtDocument {

// True when the text begins as XML with the head of an account report, statement or advice.
[[nodiscard]] bool IsCamt(const QString& text);

// The transactions of all statements in the document, which is read as UTF-8, or as Windows-1252 where it is no UTF-8.
// A refusal when it is no XML or no camt.
[[nodiscard]] cStatementRead Read(const QByteArray& xml, const cReadOptions& options);

} // namespace modCamtDocument
