#include "app/machine/modLocale.h"

#include <QByteArray>
#include <QList>

using namespace Qt::Literals::StringLiterals;

void modLocale::UseUtf8()
{
    if (qEnvironmentVariableIsEmpty("LC_ALL") && qEnvironmentVariableIsEmpty("LC_CTYPE")
        && qEnvironmentVariableIsEmpty("LANG")) {
        qputenv("LC_CTYPE", QByteArrayLiteral("C.UTF-8"));
    }
}

// The order of gettext: LANGUAGE counts only where a language is set at all.
QString modLocale::Messages()
{
    QByteArray wanted;
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        wanted = wanted.isEmpty() ? qgetenv(name) : wanted;
    }
    const bool isUnset = wanted.isEmpty() || wanted == "C" || wanted == "POSIX" || wanted.startsWith("C.");
    const QByteArray list = qgetenv("LANGUAGE");
    const QByteArray first = !isUnset && !list.isEmpty() ? list.split(':').constFirst() : wanted;
    return isUnset || first.startsWith("de") ? u"de"_s : u"en"_s;
}
