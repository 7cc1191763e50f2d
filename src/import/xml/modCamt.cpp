#include "import/xml/modCamt.h"

#include "import/read/modStatementText.h"
#include "import/xml/modCamtDocument.h"

namespace {

constexpr qsizetype headSize = 8000; // bytes in which the message must name itself

} // namespace

bool modCamt::IsCamt(const cStatementSource& source)
{
    return modCamtDocument::IsCamt(source.Bytes.isEmpty() ? source.Text
                                                          : modStatementText::Decode(source.Bytes.left(headSize)));
}

cStatementRead modCamt::Read(const cStatementSource& source, const cReadOptions& options)
{
    return modCamtDocument::Read(source.Bytes.isEmpty() ? source.Text.toUtf8() : source.Bytes, options);
}
