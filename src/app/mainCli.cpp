#include "app/machine/cFileLock.h"
#include "app/machine/cLanguage.h"
#include "app/machine/cQtPaint.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cSystemClock.h"
#include "app/machine/modBuild.h"
#include "app/machine/modLocale.h"
#include "cli/modCliCommands.h"
#include "cli/modCliMain.h"
#include "net/cQtHttps.h"

#include <QApplication>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#include <cstdio>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

// Only what stops the program, and the trace where it was asked for: that the toolkit misses a folder or a theme is no
// news to who wants a file.
void TellWhenFatal(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (type == QtFatalMsg) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(text));
    } else if (QLatin1StringView(context.category).startsWith("kontorelle."_L1)) {
        std::fprintf(stderr, "%s: %s\n", context.category, qUtf8Printable(text));
    }
}

// Starting the toolkit takes longer than most commands do, so only where something is painted. It paints into files, a
// screen is not needed.
std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    if (!modCliMain::NeedsPaint(arguments)) {
        return std::make_unique<QCoreApplication>(argc, argv);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(TellWhenFatal);
    return std::make_unique<QApplication>(argc, argv);
}

// A reader that goes away ends no command in the middle of its work. And where an output was closed beforehand, no file
// gets its number and the messages with it: it is opened for reading, so that what is written there is noticed as lost.
void PrepareOutputs()
{
    std::signal(SIGPIPE, SIG_IGN);
    for (const int output : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(output, F_GETFD) < 0) {
            (void)open("/dev/null", O_RDONLY); // takes the lowest free number
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    PrepareOutputs();
    modLocale::UseUtf8();
    const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("kontorelle-cli"));
    QCoreApplication::setApplicationVersion(QStringLiteral(APP_VERSION));
    cLanguage language;
    language.Use(modLocale::Messages(), cQtShell({})); // before the table of commands is made
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString profile = modCliMain::Profile(arguments);
    cQtShell shell(profile);
    cQtRegistry registry(profile);
    cSystemClock clock;
    cFileLock lock;
    cQtPaint paint;
    cQtHttps https;
    return modCliMain::Run(
        arguments,
        {shell, registry, clock, lock, paint, https, QCoreApplication::applicationVersion(), modBuild::Version()});
}
