#include "app/machine/cQtShell.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cProgram
{
    QString Name;
    QStringList Arguments;
};

// Desktops differ in what they bring along: the first program that can be started is taken.
bool StartFirst(std::initializer_list<cProgram> programs)
{
    return std::any_of(programs.begin(), programs.end(), [](const cProgram& program) {
        const QString path = QStandardPaths::findExecutable(program.Name);
        return !path.isEmpty() && QProcess::startDetached(path, program.Arguments);
    });
}

} // namespace

QString cQtShell::DataFolder()
{
    const QString base = m_profile.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
                                             : QDir(m_profile).absolutePath();
    const QString folder = base % u"/Veltrino Kontorelle"_s;
    QDir().mkpath(base);
    // What lies in it is nobody else's business. A folder that could not be made shows when the first file is written
    // into it.
    QDir().mkdir(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return folder;
}

QString cQtShell::StateFolder()
{
    QString base = QDir(m_profile).absoluteFilePath(u"state"_s);
    if (m_profile.isEmpty()) {
        const QString named = qEnvironmentVariable("XDG_STATE_HOME"); // the toolkit does not know it yet
        base = QDir::isAbsolutePath(named) ? named : QDir::home().filePath(u".local/state"_s);
    }
    const QString folder = base % u"/Veltrino Kontorelle"_s;
    QDir().mkpath(base);
    QDir().mkdir(folder, QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    return folder;
}

QString cQtShell::InstalledFile(const QString& name) const
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QString beside = program.filePath(name);
    const QString shared = QDir::cleanPath(program.filePath(u"../share/kontorelle/"_s + name));
    return !QFileInfo::exists(beside) && QFileInfo::exists(shared) ? shared : beside;
}

bool cQtShell::FileExists(const QString& path) const
{
    return QFileInfo(path).isFile();
}

bool cQtShell::CopyFile(const QString& from, const QString& to)
{
    if (!QFile::copy(from, to)) {
        return false;
    }
    // A template installed by the system may be read-only and open to everybody; its copy is the user's own.
    return QFile::setPermissions(to, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

bool cQtShell::RenameFile(const QString& from, const QString& to)
{
    return QFile::rename(from, to);
}

QString cQtShell::CurrencySymbol() const
{
    return QLocale::system().currencySymbol();
}

bool cQtShell::OpenRegionalSettings()
{
    return StartFirst({{u"rundll32.exe"_s, {u"shell32.dll,Control_RunDLL"_s, u"intl.cpl"_s}},
                       {u"gnome-control-center"_s, {u"region"_s}},
                       {u"systemsettings"_s, {u"kcm_regionandlang"_s}},
                       {u"systemsettings5"_s, {u"kcm_regionandlang"_s}},
                       {u"cinnamon-settings"_s, {u"region"_s}},
                       {u"mate-control-center"_s, {}},
                       {u"xfce4-settings-manager"_s, {}}});
}

bool cQtShell::OpenPage(const QString& url)
{
    return StartFirst({{u"rundll32.exe"_s, {u"url.dll,FileProtocolHandler"_s, url}},
                       {u"xdg-open"_s, {url}},
                       {u"gio"_s, {u"open"_s, url}},
                       {u"kde-open5"_s, {url}},
                       {u"exo-open"_s, {url}}});
}

// The first one finds the user's mail program by itself; the others are asked one by one, because a mailto address
// cannot carry a file.
bool cQtShell::OpenMail(const cMailDraft& draft)
{
    const QString file = QUrl::fromLocalFile(draft.Attachment).toString(QUrl::FullyEncoded);
    const QString compose =
        u"to='%1',subject='%2',body='%3',attachment='%4'"_s.arg(draft.To, draft.Subject, draft.Text, file);
    const QString address = u"mailto:%1?subject=%2&body=%3&attach=%4"_s.arg(
        draft.To, QString::fromLatin1(QUrl::toPercentEncoding(draft.Subject)),
        QString::fromLatin1(QUrl::toPercentEncoding(draft.Text)), file);
    QStringList options{u"--subject"_s, draft.Subject, u"--body"_s, draft.Text, u"--attach"_s, draft.Attachment};
    if (!draft.To.isEmpty()) {
        options.append(draft.To);
    }
    return StartFirst({{u"xdg-email"_s, options},
                       {u"thunderbird"_s, {u"-compose"_s, compose}},
                       {u"evolution"_s, {address}},
                       {u"kmail"_s, options}});
}

bool cQtShell::StartCalculator()
{
    return StartFirst({{u"calc.exe"_s, {}},
                       {u"gnome-calculator"_s, {}},
                       {u"kcalc"_s, {}},
                       {u"mate-calc"_s, {}},
                       {u"galculator"_s, {}},
                       {u"qalculate-gtk"_s, {}},
                       {u"qalculate-qt"_s, {}},
                       {u"deepin-calculator"_s, {}},
                       {u"xcalc"_s, {}}});
}
