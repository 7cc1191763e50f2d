#include "core/modMaker.h"

QString modMaker::Homepage()
{
    return QStringLiteral(APP_HOMEPAGE);
}
