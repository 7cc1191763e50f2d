#include "app/machine/modCliInWindows.h"

#include "app/machine/cQtPaint.h"
#include "app/machine/modCliProgram.h"
#include "cli/modCliMain.h"
#include "net/cQtHttps.h"

#include <QApplication>

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

// The toolkit is started only where something is painted. It paints into files, a screen is not needed.
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

} // namespace

bool modCliInWindows::IsWanted(char** arguments)
{
    return qstrcmp(arguments[0], modCliProgram::Name) == 0;
}

int modCliInWindows::Run(int argc, char** argv)
{
    const std::unique_ptr<QCoreApplication> application = MakeApplication(argc, argv);
    cQtPaint paint;
    cQtHttps https;
    return modCliProgram::Run(argv, &paint, &https);
}
