#include "core/modMaker.h"

QString modMaker::Homepage()
{
    return QStringLiteral(APP_HOMEPAGE);
}

QString modMaker::UpdateAddress()
{
    return QStringLiteral(APP_UPDATE_ADDRESS);
}

bool modMaker::HasUpdateCheck()
{
    return APP_UPDATE_CHECK == 1;
}

QString modMaker::FeedbackAddress()
{
    return QStringLiteral(MAKER_FEEDBACK);
}
