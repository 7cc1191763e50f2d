#include "app/machine/modDebugInfo.h"

#include "app/machine/cLanguage.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/modBuild.h"
#include "app/machine/modLocale.h"
#include "core/cConfiguration.h"
#include "views/help/modDiagnosis.h"
#include "views/main/modStartOption.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

bool modDebugInfo::IsWanted(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (QString::fromLocal8Bit(argv[i]) == u"--"_s + modStartOption::DebugInfo) {
            return true;
        }
    }
    return false;
}

int modDebugInfo::Run(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QString name = u"--"_s + modStartOption::Profile;
    QString profile;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments[i] == name) {
            profile = arguments.value(i + 1);
        } else if (arguments[i].startsWith(name + u'=')) {
            profile = arguments[i].section(u'=', 1);
        }
    }
    cQtShell shell(profile);
    cQtRegistry registry(profile);
    cLanguage language;
    language.Use(modLocale::Messages(), shell);
    const cConfiguration configuration(registry);
    const QString text = modDiagnosis::Text({shell, configuration, u"Kontorelle "_s + modBuild::Version()});
    return std::fputs(text.toUtf8().constData(), stdout) < 0 ? 1 : 0;
}
