#include "app/cMainProgram.h"
#include "app/machine/cDesktopNotifier.h"
#include "app/machine/cLanguage.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtRescue.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cQtUser.h"
#include "app/machine/cSessionWatch.h"
#include "app/machine/cSystemClock.h"
#include "app/machine/modBuild.h"
#include "app/machine/modCliInWindows.h"
#include "app/machine/modCrash.h"
#include "app/machine/modDebugInfo.h"
#include "app/machine/modLocale.h"
#include "base/cText.h"
#include "core/cStartRequest.h"
#include "views/main/modStartOption.h"
#include "windows/look/cStyle.h"
#include "windows/look/modIcon.h"
#include "windows/widget/modChoiceAccess.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDBusConnection>
#include <QFileInfo>
#include <QFontDatabase>

#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <future>
#include <optional>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array displays{"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
constexpr const char* screenFault = "KONTORELLE_SCREEN_FAULT"; // from one start to the next

// Without a screen the toolkit would end the process with a message that helps nobody.
bool HasDisplay()
{
#ifdef Q_OS_LINUX
    return std::any_of(displays.begin(), displays.end(),
                       [](const char* name) { return qEnvironmentVariableIsSet(name); });
#else
    return true;
#endif
}

// The same message where a screen is named that cannot be reached, which only the toolkit finds out: the program is
// started anew as if none were named, with what the toolkit said about it.
class cScreenWatch
{
public:
    explicit cScreenWatch(char** arguments)
    {
        Arguments() = arguments;
        qInstallMessageHandler(Take);
    }
    cScreenWatch(const cScreenWatch&) = delete;
    cScreenWatch& operator=(const cScreenWatch&) = delete;
    ~cScreenWatch()
    {
        qInstallMessageHandler(nullptr);
        std::fputs(Said().constData(), stderr);
    }

private:
    static char**& Arguments()
    {
        static char** arguments = nullptr;
        return arguments;
    }
    static QByteArray& Said()
    {
        static QByteArray said;
        return said;
    }
    static void Take(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (type == QtFatalMsg) {
            for (const char* name : displays) {
                qunsetenv(name);
            }
            qputenv(screenFault, Said());
            execv("/proc/self/exe", Arguments());
            std::fputs(Said().constData(), stderr); // and the toolkit ends the program
        }
        Said() += qFormatLogMessage(type, context, text).toLocal8Bit() + '\n';
    }
};

// Without an address the library would look for a bus by starting programs.
bool HasSessionBus()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")
        || (!runtime.isEmpty() && QFileInfo::exists(runtime + u"/bus"_s));
}

void NameApplication()
{
    QCoreApplication::setApplicationName(u"kontorelle"_s);
    QCoreApplication::setApplicationVersion(modBuild::Version()); // for --version
}

// In the language of the system: which book is opened, and with it which language, may be among the arguments.
void ReadArguments(QCommandLineParser& parser, const QCoreApplication& application)
{
    cLanguage language;
    language.Use(modLocale::Messages(), cQtShell({}));
    parser.setApplicationDescription(cText::Tr("Kontorelle, das Haushaltsbuch"));
    parser.addHelpOption();
    parser.addVersionOption();
    for (const modStartOption::cOption& option : modStartOption::All()) {
        parser.addOption({option.Name, option.Help, option.Value});
    }
    parser.addPositionalArgument(u"datei"_s, modStartOption::FilesHelp(), u"[DATEI...]"_s);
    parser.process(application);
}

// The system's fonts are looked up while the book is opened; who needs one earlier waits for the rest of it.
std::future<bool> LookUpFonts()
{
    try {
        return std::async(std::launch::async, [] { return QFontDatabase::hasFamily(QString()); });
    } catch (const std::system_error&) {
        return {}; // no thread is left: then they are looked up when they are needed
    }
}

// What asks for no window is answered all the same.
int RunWithoutDisplay(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    NameApplication();
    QCommandLineParser parser;
    ReadArguments(parser, application);
    const bool isGerman = modLocale::Messages() == u"de";
    std::fputs(
        isGerman
            ? "Kontorelle: Es ist kein Bildschirm da (DISPLAY und WAYLAND_DISPLAY fehlen, sind nicht zu erreichen, "
              "oder dem System fehlt etwas, um sie zu benutzen).\n"
              "Das Befehlszeilenprogramm kann dasselbe ohne Fenster: kontorelle-cli --help\n"
            : "Kontorelle: There is no screen here (DISPLAY and WAYLAND_DISPLAY are not set, cannot be reached, or "
              "the system lacks something to use them).\n"
              "The command line program does the same without windows: kontorelle-cli --help\n",
        stderr);
    if (const QByteArray fault = qgetenv(screenFault); !fault.isEmpty()) {
        std::fputs(isGerman ? "Was das System dazu meldet:\n" : "What the system says about it:\n", stderr);
        std::fputs(fault.constData(), stderr);
    }
    return 2;
}

} // namespace

int main(int argc, char* argv[])
{
    modLocale::UseUtf8();
    if (modCliInWindows::IsWanted(argv)) {
        return modCliInWindows::Run(argc, argv);
    }
    if (modDebugInfo::IsWanted(argc, argv)) {
        return modDebugInfo::Run(argc, argv);
    }
    if (!HasDisplay()) {
        return RunWithoutDisplay(argc, argv);
    }
    std::optional<cScreenWatch> watch(argv);
    QApplication application(argc, argv);
    watch.reset();
    const std::future<bool> fonts = LookUpFonts();
    modChoiceAccess::Install();
    QApplication::setStyle(new cStyle); // over the desktop's own style, which only the application knows
    NameApplication();
    QApplication::setApplicationDisplayName(u"Kontorelle"_s);
    QApplication::setDesktopFileName(u"de.veltrino.Kontorelle"_s);
    QApplication::setWindowIcon(modIcon::Program()); // of messages before there is a window too
    QCommandLineParser parser;
    ReadArguments(parser, application);
    QApplication::setApplicationVersion(QStringLiteral(APP_VERSION)); // as banks and books know it

    const QString profile = parser.value(modStartOption::Profile);
    cStartRequest request;
    request.IsImport = parser.isSet(modStartOption::Import);
    request.IsNewEntry = parser.isSet(modStartOption::NewEntry);
    request.Activation = qgetenv("XDG_ACTIVATION_TOKEN");
    cQtShell shell(profile);
    cQtRegistry registry(profile);
    cQtUser user(registry);
    cQtRescue rescue;
    const cSystemClock clock;
    std::optional<cDesktopNotifier> notifier;
    if (HasSessionBus()) {
        notifier.emplace(QDBusConnection::sessionBus());
    }
    cMainProgram program({shell, registry, user, rescue, clock, notifier ? &*notifier : nullptr},
                         QStringLiteral(APP_VERSION));
    modCrash::Watch(program.Log().Descriptor(), cErrorLog::NoteOfCrash);
    if (HasSessionBus()) {
        program.Appearance().FollowDesktop(QDBusConnection::sessionBus());
    }
    const cSessionWatch session;
    QObject::connect(&session, &cSessionWatch::SaveRequested, &application, [&program] { program.Save(); });
    QObject::connect(&session, &cSessionWatch::EndRequested, &application, [&program] { program.End(); });
    if (const QString error = request.TakeFiles(parser.positionalArguments()); !error.isEmpty()) {
        user.Show(eTone::Exclamation, error);
        return 1;
    }
    if (!program.Start(request)) {
        return 0; // the user knows why
    }
    return QApplication::exec();
}
