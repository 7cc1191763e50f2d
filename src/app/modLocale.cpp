#include "app/modLocale.h"

#include <QByteArray>

void modLocale::UseUtf8()
{
    if (qEnvironmentVariableIsEmpty("LC_ALL") && qEnvironmentVariableIsEmpty("LC_CTYPE")
        && qEnvironmentVariableIsEmpty("LANG")) {
        qputenv("LC_CTYPE", QByteArrayLiteral("C.UTF-8"));
    }
}
