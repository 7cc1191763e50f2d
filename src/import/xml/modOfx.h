#pragma once

#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"
#include "import/read/cStatementSource.h"

#include <QByteArray>

// Open Financial Exchange: statements of bank accounts and credit cards.
namespace modOfx {

// True for a text that is such a file, whatever it holds.
[[nodiscard]] bool IsOfx(const QString& text);

// The transactions of all statements of the file, whether they stand in their list or beside it. Those without a day or
// an amount, and those outside of all statements, become skipped rows, so that none is missing unsaid.
[[nodiscard]] cStatementRead Read(const cStatementSource& source, const cReadOptions& options);

// The same from the XML that a text was turned into (UTF-8). A refusal when it is no XML.
[[nodiscard]] cStatementRead ReadXml(const QByteArray& xml, const cReadOptions& options);

} // namespace modOfx
