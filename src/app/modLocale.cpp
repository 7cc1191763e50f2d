#include "app/modLocale.h"

#include <QtGlobal>

void modLocale::UseUtf8()
{
    if (qEnvironmentVariableIsEmpty("LC_ALL") && qEnvironmentVariableIsEmpty("LC_CTYPE")
        && qEnvironmentVariableIsEmpty("LANG")) {
        qputenv("LC_CTYPE", "C.UTF-8");
    }
}
