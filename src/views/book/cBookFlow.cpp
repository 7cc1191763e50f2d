#include "views/book/cBookFlow.h"

#include "base/cClock.h"
#include "base/cRescue.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBackup.h"
#include "core/cBackupPlan.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "core/modReceiptFolder.h"
#include "core/modReceiptUse.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "store/cDatabase.h"
#include "store/modBookFile.h"
#include "store/modSchema.h"
#include "views/book/cBookHost.h"
#include "views/book/modBookCopy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const char* const databaseFilter = QT_TRANSLATE_NOOP("cText", "Datenbanken|*.db|Alle Dateien|*.*");
const char* const backupFilter = QT_TRANSLATE_NOOP("cText", "Backup-Datei|*.backup|Alle Dateien|*.*");

QString Shown(const QString& path)
{
    return QDir::toNativeSeparators(path);
}

cBackupPlan PlanOf(const cBookFlow::cParts& parts)
{
    return {{parts.Shell, parts.User, parts.Clock}, parts.Book, parts.Configuration};
}

std::optional<cBackupPlan::cCopy> NewestGood(const QList<cBackupPlan::cCopy>& copies)
{
    const auto good = std::find_if(copies.begin(), copies.end(), [](const cBackupPlan::cCopy& copy) {
        return modBookFile::Refusal(copy.Path, modBookFile::Look(copy.Path)).isEmpty();
    });
    return good == copies.end() ? std::nullopt : std::optional(*good);
}

} // namespace

void cBookFlow::NewBook()
{
    const QString path = AskForNewPath();
    if (path.isEmpty()) {
        return;
    }
    const QString working = modBookFile::WorkingName(path);
    if (const QString problem = modSchema::FromTemplate(m_parts.Shell, working); !problem.isEmpty()) {
        m_parts.User.Show(eTone::Critical, problem);
        return;
    }
    // The user agreed to replace a file that is there, but it may be a book: it stays under another name.
    const std::optional<QString> kept =
        modBookFile::PutInPlace(m_parts.Shell, working, path, m_parts.Clock.Today(), u"ersetzt"_s);
    if (!kept) {
        QFile::remove(working);
        m_parts.User.Show(eTone::Critical, modSchema::CannotCreate(path));
        return;
    }
    const QString former = m_parts.Book.Path();
    if (!m_parts.Host.Switch(path, eBookOrigin::Fresh)) {
        (void)cBackup(m_parts.Book.Database(), m_parts.Shell).PutBack(path, *kept);
        return;
    }
    Remember(former, path);
    if (!kept->isEmpty()) {
        m_parts.User.Show(eTone::Information,
                          cText::Tr("Die bisherige Datei wurde als '{0}' aufgehoben.", {Shown(*kept)}));
    }
}

void cBookFlow::OpenDemo(const QString& version)
{
    const QString own = m_parts.Book.Path();
    const QString path = m_parts.Shell.DataFolder() + u'/' + cText::Tr("Beispielhaushalt") + u".db"_s;
    if (!m_parts.Shell.FileExists(path)
        && modBookCopy::WriteDemo(path, 0, m_parts.Clock.Today(), m_parts.Shell, m_parts.User, version) < 0) {
        return;
    }
    Open(path);
    if (!IsOpenBook(path)) {
        return; // the user was told why
    }
    m_parts.User.Show(eTone::Information,
                      cText::Tr("Das ist der Beispielhaushalt. Alles darin dürfen Sie ändern.\n\nZu Ihrem eigenen "
                                "Haushaltsbuch kommen Sie mit Datei > Datenbank wechseln zurück: {0}",
                                {Shown(own)}));
}

// A place for a new book; empty when the user gives up.
QString cBookFlow::AskForNewPath() const
{
    const QString folder = QFileInfo(m_parts.Book.Path()).absolutePath();
    const QString path = m_parts.User.ChooseSavePath(cText::Tr("Neue Datenbank"), cText::Tr(databaseFilter),
                                                     QDir(folder).filePath(u"Kontorelle-Neu"_s));
    if (!path.isEmpty() && IsOpenBook(path)) {
        m_parts.User.Show(
            eTone::Objection,
            cText::Tr("Die Datenbank '{0}' ist gerade geöffnet. Bitte wählen Sie einen anderen Namen.", {Shown(path)}));
        return {};
    }
    return path.isEmpty() || m_parts.Host.IsInUse(path) ? QString() : path;
}

void cBookFlow::SwitchBook()
{
    if (const QString path = AskForBook(); !path.isEmpty()) {
        (void)OpenBook(path);
    }
}

bool cBookFlow::OpenBook(const QString& path)
{
    if (IsOpenBook(path)) {
        m_parts.User.Show(eTone::Information, cText::Tr("Die Datenbank '{0}' ist bereits geöffnet.", {Shown(path)}));
        return true;
    }
    Open(path);
    return IsOpenBook(path);
}

// One of the known books, or a file of the user's choice; empty when the user gives up.
QString cBookFlow::AskForBook() const
{
    const QString current = m_parts.Book.Path();
    const QStringList books = Books();
    if (books.isEmpty()) {
        return m_parts.Rescue.ChooseDatabase(current).value_or(QString());
    }
    QStringList items;
    for (const QString& book : books) {
        items.append(Shown(book));
    }
    const QString other = cText::Tr("Andere Datei wählen …");
    const std::optional<QString> chosen = m_parts.User.Choose({.Text = cText::Tr("&Datenbank, die geöffnet wird:"),
                                                               .Title = cText::Tr("Datenbank wechseln"),
                                                               .Items = items + QStringList(other),
                                                               .Proposal = items.constFirst()});
    if (chosen && *chosen == other) {
        return m_parts.Rescue.ChooseDatabase(current).value_or(QString());
    }
    return chosen ? books.value(items.indexOf(*chosen)) : QString();
}

void cBookFlow::Open(const QString& path) const
{
    const QString former = m_parts.Book.Path();
    if (m_parts.Host.Switch(path, eBookOrigin::Existing)) {
        Remember(former, path);
    }
}

void cBookFlow::MakeBackup()
{
    const QString name = u"Kontorelle-"_s + modDate::ToIso(m_parts.Clock.Today()) + u".backup"_s;
    const QString target = m_parts.User.ChooseSavePath(cText::Tr("Datensicherung erstellen"), cText::Tr(backupFilter),
                                                       QDir(LastFolder()).filePath(name));
    if (target.isEmpty()) {
        return;
    }
    const QString problem = cBackup(m_parts.Book.Database(), m_parts.Shell).Make(target);
    if (!problem.isEmpty()) {
        m_parts.User.Show(eTone::Critical,
                          cText::Tr("Die Datensicherung konnte nicht erstellt werden:\n{0}", {problem}));
        return;
    }
    m_parts.Configuration.SaveSetting(modSettingKey::LastBackupFolder, QFileInfo(target).absolutePath(),
                                      eSettingPlace::Registry);
    if (!m_parts.Book.IsReadOnly()) { // what reminds of backups and the plan of the day have theirs
        m_parts.Configuration.SaveSetting(modSettingKey::BackupLast, modDate::ToIso(m_parts.Clock.Today()),
                                          eSettingPlace::Database);
    }
    m_parts.User.Show(eTone::Information,
                      cText::Tr("Die Datensicherung '{0}' wurde erstellt und geprüft. Sie enthält:\n{1}.",
                                {Shown(target), modBookFile::Describe(modBookFile::Look(target))})
                          + LeftOutReceipts());
    TellReceipts(modReceiptFolder::SaveIfWished(m_parts.Configuration, m_parts.Book.Path(), target));
}

// What a backup does not hold, with the way to change that; empty when it holds all.
QString cBookFlow::LeftOutReceipts() const
{
    const QStringList names = modReceiptUse::Names(m_parts.Book.Data());
    if (names.isEmpty() || cSettings::ToBool(m_parts.Configuration.GetSetting(modSettingKey::ReceiptsInBackup))) {
        return {};
    }
    return u"\n\n"_s
        + cText::Tr(
               "Die Belege sind nicht dabei (Zahl der Dateien: {0}). Unter \"Automatische Datensicherung…\" im Menü "
               "Extras lässt sich einschalten, dass sie mitgesichert werden.",
               {QString::number(QSet<QString>(names.begin(), names.end()).size())});
}

void cBookFlow::TellReceipts(const QString& problem) const
{
    if (!problem.isEmpty()) {
        m_parts.User.Show(eTone::Exclamation, problem);
    }
}

void cBookFlow::LoadBackup()
{
    const std::optional<QString> backup = m_parts.Rescue.ChooseBackup(BackupFolder());
    if (!backup) {
        return;
    }
    if (IsOpenBook(*backup)) {
        m_parts.User.Show(eTone::Information, cText::Tr("Die Datenbank '{0}' ist bereits geöffnet.", {Shown(*backup)}));
        return;
    }
    if (IsWanted(*backup)) {
        Replace(*backup);
    }
}

void cBookFlow::Replace(const QString& backup) const
{
    const std::optional<QString> kept = m_parts.Host.Restore(backup);
    if (kept) {
        m_parts.User.Show(eTone::Information,
                          cText::Tr("Die Datensicherung wurde geladen. Die bisherige Datenbank wurde "
                                    "als '{0}' aufgehoben.",
                                    {Shown(*kept)}));
        TellReceipts(
            modReceiptFolder::BringBack(backup, m_parts.Book.Path(), modReceiptUse::Names(m_parts.Book.Data())));
    }
}

QDate cBookFlow::NewestCopyDay() const
{
    const QList<cBackupPlan::cCopy> copies = PlanOf(m_parts).Copies();
    return copies.isEmpty() ? QDate() : copies.constFirst().Day;
}

void cBookFlow::LoadNewestCopy()
{
    const std::optional<cBackupPlan::cCopy> copy = NewestGood(PlanOf(m_parts).Copies());
    if (!copy) {
        LoadBackup();
    } else if (IsWanted(copy->Path)) {
        Replace(copy->Path);
    }
}

void cBookFlow::TellDamage()
{
    const std::optional<cBackupPlan::cCopy> copy = NewestGood(PlanOf(m_parts).Copies());
    QStringList options{cText::Tr("&Andere Sicherung wählen …"), cText::Tr("&Nur lesen")};
    QString offer = cText::Tr("Eine vollständige, unbeschädigte Sicherung liegt nicht im Ordner '{0}'.",
                              {Shown(PlanOf(m_parts).Folder())});
    if (copy) {
        options.prepend(cText::Tr("Sicherung vom {0} &laden", {modDate::ToText(copy->Day)}));
        offer = cText::Tr("Die neueste vollständige, unbeschädigte Sicherung ist vom {0}. Sie enthält:\n{1}.",
                          {modDate::ToText(copy->Day), modBookFile::Describe(modBookFile::Look(copy->Path))});
    }
    const QString file = Shown(m_parts.Book.Path());
    const QStringList lost = m_parts.Book.Data().GetMissingParts();
    const int chosen = m_parts.User.Decide(
        {.Text = lost.isEmpty()
             ? cText::Tr("Die Datei der Datenbank '{0}' ist beschädigt. Was Sie sehen, kann unvollständig sein, und "
                         "es wird nichts mehr gespeichert.\n\n{1}\n\nMöchten Sie eine Datensicherung laden? Die "
                         "beschädigte Datei bleibt unter anderem Namen erhalten.",
                         {file, offer})
             : cText::Tr("Die Datei der Datenbank '{0}' ist unvollständig. Es fehlt: {1}\nWas Sie sehen, stimmt "
                         "deshalb nur zum Teil, und es wird nichts gespeichert.\n\n{2}\n\nMöchten Sie eine "
                         "Datensicherung laden? Die "
                         "unvollständige Datei bleibt unter anderem Namen erhalten.",
                         {file, lost.join(u", "_s), offer}),
         .Title =
             lost.isEmpty() ? cText::Tr("Die Datenbank ist beschädigt") : cText::Tr("Die Datenbank ist unvollständig"),
         .Options = options,
         .Tone = eTone::Exclamation});
    if (copy && chosen == 0) {
        Replace(copy->Path);
    } else if (chosen >= 0 && chosen == options.size() - 2) {
        LoadBackup();
    }
}

// Shows what the backup holds beside what it would replace, and asks.
bool cBookFlow::IsWanted(const QString& backup) const
{
    const modBookFile::cContent content = modBookFile::Look(backup);
    if (const QString refusal = modBookFile::Refusal(Shown(backup), content); !refusal.isEmpty()) {
        m_parts.User.Show(eTone::Exclamation, refusal);
        return false;
    }
    const QString book = m_parts.Book.Path();
    return m_parts.User.Ask(
               {.Text = cText::Tr("Die Datensicherung '{0}' enthält:\n{1}.\n\nDie geöffnete Datenbank '{2}' "
                                  "enthält:\n{3}.\n\nMöchten Sie die geöffnete Datenbank durch die Datensicherung "
                                  "ersetzen? Die bisherige Datei bleibt unter anderem Namen erhalten.",
                                  {Shown(backup), modBookFile::Describe(content), Shown(book),
                                   modBookFile::Describe(modBookFile::Look(book))}),
                .Title = cText::Tr("Datensicherung laden")})
        == eAnswer::Yes;
}

QStringList cBookFlow::Books() const
{
    QStringList books = m_parts.Configuration.GetSetting(modSettingKey::DatabaseList).split(u'|', Qt::SkipEmptyParts);
    books.removeIf([&](const QString& book) { return IsOpenBook(book) || !m_parts.Shell.FileExists(book); });
    return books;
}

// Puts both books at the front of the list. One that is missing at the moment may lie on a drive that comes back, so it
// stays in the list.
void cBookFlow::Remember(const QString& former, const QString& current) const
{
    QStringList books{current, former};
    books += m_parts.Configuration.GetSetting(modSettingKey::DatabaseList).split(u'|', Qt::SkipEmptyParts);
    // The list has no way to write a name that contains its own separator.
    books.removeIf([](const QString& book) { return book.contains(u'|'); });
    books.removeDuplicates();
    m_parts.Configuration.SaveSetting(modSettingKey::DatabaseList, books.mid(0, MostBooks).join(u'|'),
                                      eSettingPlace::Registry);
}

bool cBookFlow::IsOpenBook(const QString& path) const
{
    return cBackup::IsSameFile(path, m_parts.Book.Path());
}

// The folder of the last backup, else that of the book.
QString cBookFlow::LastFolder() const
{
    const QString folder = m_parts.Configuration.GetSetting(modSettingKey::LastBackupFolder);
    return !folder.isEmpty() && QDir(folder).exists() ? folder : QFileInfo(m_parts.Book.Path()).absolutePath();
}

// Where backups are found: those of the user, else those that the program makes by itself.
QString cBookFlow::BackupFolder() const
{
    const cBackupPlan plan = PlanOf(m_parts);
    const bool hasOwn = !m_parts.Configuration.GetSetting(modSettingKey::LastBackupFolder).isEmpty();
    return !hasOwn && !plan.Copies().isEmpty() ? plan.Folder() : LastFolder();
}
