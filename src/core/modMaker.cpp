#include "core/modMaker.h"

QString modMaker::FeedbackAddress()
{
    return QStringLiteral(MAKER_FEEDBACK);
}
