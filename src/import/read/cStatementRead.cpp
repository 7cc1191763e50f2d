#include "import/read/cStatementRead.h"

#include "base/cText.h"

cStatementRead cStatementRead::TooMany()
{
    cStatementRead read;
    read.Refusal = cText::Tr("Die Datei hat zu viele Umsätze für einen Kontoauszug. Es wurde nichts übernommen.");
    return read;
}
