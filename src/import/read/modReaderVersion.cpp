#include "import/read/modReaderVersion.h"

#include <zlib.h>

#include <pugixml.hpp>

using namespace Qt::Literals::StringLiterals;

QString modReaderVersion::Text()
{
    // 1.13 is the number 1130.
    const int xml = PUGIXML_VERSION / 10;
    return u"pugixml %1.%2, zlib %3"_s.arg(xml / 100).arg(xml % 100).arg(QStringLiteral(ZLIB_VERSION));
}
