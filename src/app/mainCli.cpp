#include "app/cli/modCliMain.h"
#include "app/modLocale.h"

#include <QCoreApplication>

int main(int argc, char* argv[])
{
    modLocale::UseUtf8();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kontorelle-cli"));
    QCoreApplication::setApplicationVersion(QStringLiteral(APP_VERSION));
    return modCliMain::Run(QCoreApplication::arguments().mid(1));
}
