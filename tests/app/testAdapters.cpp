#include "app/machine/cFileLock.h"
#include "app/machine/cLanguage.h"
#include "app/machine/cQtBankUser.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "app/machine/cQtUser.h"
#include "app/machine/cSingleInstance.h"
#include "app/machine/modQtFilter.h"
#include "base/cProgress.h"
#include "import/read/cReadOptions.h"
#include "import/read/cStatementRead.h"
#include "import/read/cStatementSource.h"
#include "import/table/modTable.h"
#include "model/modPeople.h"
#include "model/modWord.h"
#include "support/cTestClass.h"
#include "support/cTestEntry.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "support/testBook.h"
#include "support/testFormat.h"
#include "views/export/modExport.h"

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QKeySequence>
#include <QLineEdit>
#include <QMessageBox>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>

#include <filesystem>
#include <functional>
#include <thread>

using namespace Qt::Literals::StringLiterals;

namespace {

// Opens a file dialog and takes a file of this folder there, or gives up without one; the folder in which it began.
QString ChosenIn(const QString& folder, const std::function<void()>& open)
{
    QString begun;
    QTimer::singleShot(0, qApp, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        QVERIFY(dialog != nullptr);
        begun = dialog->directory().absolutePath();
        if (folder.isEmpty()) {
            dialog->reject();
            return;
        }
        dialog->setDirectory(folder);
        dialog->selectFile(u"auszug.sta"_s);
        static_cast<QDialog*>(dialog)->done(QDialog::Accepted);
    });
    open();
    return begun;
}

// Types into the window that is asked with and closes it by a key.
void PlayWindow(const QString& text, Qt::Key key)
{
    QTimer::singleShot(0, qApp, [=] {
        QWidget* window = QApplication::activeModalWidget();
        QVERIFY(window != nullptr);
        auto* field = window->findChild<QLineEdit*>();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, key);
    });
}

// Lets the second of a running wait strike.
void PlayTick(const std::function<void(QWidget&)>& also = {})
{
    QTimer::singleShot(0, qApp, [=] {
        QWidget* window = QApplication::activeModalWidget();
        QVERIFY(window != nullptr);
        if (also) {
            also(*window);
        } else {
            QMetaObject::invokeMethod(window->findChild<QTimer*>(u"tmrWait"_s), "timeout");
        }
    });
}

void Close(QWidget& window)
{
    window.close();
}

} // namespace

// The adapters to the machine: files and locks, and what the toolkit makes of questions, keys and pages.
class testAdapters final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void RegistryKeepsKeysApart()
    {
        const QString text = u"C:\\Müller, \"Haushalt\"; 100 %"_s;
        QVERIFY(cQtRegistry(m_folder.path()).Write(m_key, u"Database"_s, text));
        cQtRegistry registry(m_folder.path());
        QCOMPARE(registry.Read(eRegistryScope::User, m_key, u"Database"_s), text);
        QCOMPARE(registry.Read(eRegistryScope::User, m_legacyKey, u"Database"_s), QString());
        QVERIFY(registry.Delete(m_key, u"Database"_s) && registry.Delete(m_key, u"Database"_s));
        QCOMPARE(registry.Read(eRegistryScope::User, m_key, u"Database"_s), QString());
    }

    void ProfileDoesNotSeeTheMachine()
    {
        cQtRegistry registry(m_folder.path());
        QVERIFY(registry.Write(m_legacyKey, u"Passwort"_s, u"x"_s));
        QCOMPARE(registry.Read(eRegistryScope::Machine, m_legacyKey, u"Passwort"_s), QString());
    }

    void DataFolderLiesBelowTheProfile()
    {
        const QString profile = m_folder.filePath(u"new/profile"_s);
        const QString folder = cQtShell(profile).DataFolder();
        QCOMPARE(folder, profile + u"/Veltrino Kontorelle"_s);
        QVERIFY(QFileInfo(folder).isDir());
        QCOMPARE(QFile::permissions(folder) & ~(QFile::ReadUser | QFile::WriteUser | QFile::ExeUser),
                 QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner); // nobody else looks into it
    }

    void CopyIsTheUsersOwn()
    {
        const QString source = NewFile(u"template"_s);
        QVERIFY(QFile::setPermissions(source,
                                      QFileDevice::ReadOwner | QFileDevice::ReadOther)); // as the system installs it
        const QString copy = m_folder.filePath(u"copy"_s);
        cQtShell shell(m_folder.path());
        QVERIFY(shell.CopyFile(source, copy));
        constexpr QFileDevice::Permissions others =
            QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;
        QVERIFY(QFile::permissions(copy).testFlag(QFileDevice::WriteOwner));
        QVERIFY(!QFile::permissions(copy).testAnyFlags(others));
        QVERIFY(!shell.CopyFile(source, copy)); // what is there stays
    }

    void LockIsForOne()
    {
        const QString path = NewFile(u"book.db"_s);
        cFileLock first;
        cFileLock second;
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(second.Take(path), eLockState::Foreign);
        QVERIFY(cFileLock::Holder(path).contains(QCoreApplication::applicationName()));
        first.Release();
        QCOMPARE(cFileLock::Holder(path), QString());
        QCOMPARE(second.Take(path), eLockState::Held);
    }

    void TwoPathsOfOneFileShareTheLock()
    {
        const QString path = NewFile(u"one.db"_s);
        const QString link = m_folder.filePath(u"link.db"_s);
        QVERIFY(QFile::link(path, link));
        cFileLock first;
        cFileLock second;
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(second.Take(link), eLockState::Foreign);
        QCOMPARE(second.Take(m_folder.path() + u"/./one.db"_s), eLockState::Foreign);
    }

    void HardLinksShareTheLock()
    {
        const QByteArray before = qgetenv("XDG_RUNTIME_DIR");
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toUtf8());
        const auto restore = qScopeGuard([&] { qputenv("XDG_RUNTIME_DIR", before); });
        const QString path = NewFile(u"hard.db"_s);
        const QString link = m_folder.filePath(u"other.db"_s);
        std::filesystem::create_hard_link(path.toStdString(), link.toStdString());
        cFileLock first;
        cFileLock second;
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(second.Take(link), eLockState::Foreign);
        QVERIFY(second.HolderOf(link).contains("unter einem anderen Namen"_L1));
        QVERIFY(!second.IsAbandoned(link));
        // The book was replaced: the lock goes over to the file that has its name now.
        QVERIFY(QFile::remove(path));
        (void)NewFile(u"hard.db"_s);
        QCOMPARE(first.Take(path), eLockState::Held);
        QCOMPARE(second.Take(link), eLockState::Held);
    }

    void LeftoverLockIsTakenOver()
    {
        const QString path = NewFile(u"left.db"_s);
        // A process number beyond what the system gives out: that program is gone.
        cTestFile::Write(path + u".lock"_s, "99999999\nkontorelle\n" + QSysInfo::machineHostName().toUtf8() + "\n");
        cFileLock mine;
        QCOMPARE(mine.Take(path), eLockState::Held);
    }

    void AbandonedLock_data()
    {
        const cTestRows<QByteArray, QString> row("content", "holder");
        row("empty after a power cut", {}, u"ein unbekanntes Programm, seit "_s);
        row("another machine", "4711\nkontorelle\nanderer\n", u"kontorelle (Prozess 4711 auf anderer, seit "_s);
    }

    void AbandonedLock()
    {
        QFETCH(const QByteArray, content);
        QFETCH(const QString, holder);
        const QString path = NewFile(u"abandoned.db"_s);
        cTestFile::Write(path + u".lock"_s, content);
        cFileLock mine;
        QCOMPARE(mine.Take(path), eLockState::Foreign);
        QVERIFY(mine.IsAbandoned(path));
        QVERIFY2(mine.HolderOf(path).startsWith(holder), qPrintable(mine.HolderOf(path)));
        QCOMPARE(mine.TakeOver(path), eLockState::Held);
        cFileLock other;
        QVERIFY(!other.IsAbandoned(path)); // whoever lives keeps it
        QCOMPARE(other.TakeOver(path), eLockState::Foreign);
    }

    void SecondStartHandsOverToTheFirst()
    {
        const QString path = NewFile(u"shown.db"_s);
        cSingleInstance first;
        first.Listen(path);
        const QDir runtime(QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation));
        QVERIFY(!runtime.entryList({u"kontorelle-*"_s}, QDir::System).isEmpty()); // where only this user can get at it
        const cStartRequest wanted{
            .Statements = {u"/tmp/Auszug März.sta"_s}, .IsNewEntry = true, .Activation = QByteArrayLiteral("token")};
        std::optional<cStartRequest> got;
        QSignalSpy asked(&first, &cSingleInstance::Requested);
        connect(&first, &cSingleInstance::Requested, this, [&](const cStartRequest& request) { got = request; });
        bool isAnswered = false;
        cSingleInstance::NoteUsed(u"/home/a"_s, NewFile(u"before.db"_s));
        cSingleInstance::NoteUsed(u"/home/a"_s, path);
        cSingleInstance::NoteUsed(u"/stick"_s, NewFile(u"other.db"_s));
        std::thread second(
            [&] { isAnswered = cSingleInstance::HandOver(cSingleInstance::LastUsed(u"/home/a"_s), wanted); });
        QVERIFY(asked.wait());
        second.join();
        QVERIFY(isAnswered);
        QCOMPARE(got, std::optional(wanted));
    }

    void NobodyToRaise() { QVERIFY(!cSingleInstance::HandOver(NewFile(u"alone.db"_s), {})); }

    void FiltersForFileDialogs_data()
    {
        const cTestRows<QString, QString> row("pairs", "filter");
        row("one mask", u"Datenbanken|*.db"_s, u"Datenbanken (*.db)"_s);
        row("several masks, then all", u"Auszüge|*.csv;*.mt940|Alle Dateien|*.*"_s,
            u"Auszüge (*.csv *.mt940);;Alle Dateien (*)"_s);
        row("name without mask", u"Alle"_s, {});
    }

    void FiltersForFileDialogs()
    {
        QFETCH(const QString, pairs);
        QTEST(modQtFilter::FromPairs(pairs), "filter");
    }

    // What an English window has written.
    void TableIsKnownInAnotherLanguage()
    {
        const cTestFormat format;
        cNoProgress progress;
        cEntryItem entry = cTestEntry{.Type = modWord::Umbuchung, .Target = u"Sparkonto"_s}.Make();
        modPeople::SetPayer(entry, u"Anna"_s);
        cEntryExtract extract;
        extract.Rows = {{entry, 100, 0, {}}};
        QTranslator english;
        QVERIFY(english.load(QStringLiteral(ENGLISH)));
        QCoreApplication::installTranslator(&english);
        const QByteArray file = modExport::Csv({extract, format.Format, progress}).Bytes.value_or(QByteArray());
        QCoreApplication::removeTranslator(&english);
        QVERIFY2(file.contains("Transfer"), file.constData());
        const cStatementRead read = modTable::Read({u"a.csv"_s, {}, QString::fromUtf8(file)}, {});
        QCOMPARE(read.Entries.size(), 2);
        QVERIFY(read.Entries.constFirst().ImportType.endsWith(u"; Bezahlt von: Anna"_s));
    }

    void OneEnterTakesWhatWasCompleted()
    {
        cFakeRegistry registry;
        cQtUser user(registry);
        QTimer::singleShot(0, qApp, [] {
            auto* dialog = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
            QVERIFY(dialog != nullptr);
            dialog->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(dialog)); // without the focus nothing is completed
            auto* edit = dialog->findChild<QComboBox*>();
            edit->setFocus();
            edit->clearEditText();
            QTest::keyClicks(edit, u"Spa"_s);
            QTest::keyClick(edit, Qt::Key_Return);
            QTimer::singleShot(0, dialog, &QDialog::reject); // a dialog that is still open would hang the test
        });
        const auto answer = user.Choose({.Text = u"Zu welchem Konto?"_s,
                                         .Title = u"Konto zuordnen"_s,
                                         .Items = {u"Girokonto"_s, u"Sparkonto"_s},
                                         .Proposal = u"Girokonto"_s,
                                         .AllowNew = true});
        QCOMPARE(answer.value_or(QString()), u"Sparkonto"_s);
    }

    void KeysHaveGermanNames()
    {
        cFakeShell shell;
        cLanguage language;
        language.Use(u"de"_s, shell);
        QCOMPARE(QKeySequence(Qt::CTRL | Qt::Key_Return).toString(QKeySequence::NativeText), u"Strg+Eingabe"_s);
        QCOMPARE(QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText), u"Entf"_s);
        QCOMPARE(QCoreApplication::translate("QWizard", "Return"), u"Return"_s); // the names of keys alone
    }

    void OneCauseIsToldOnce()
    {
        cFakeRegistry registry;
        cQtUser user(registry);
        QStringList told;
        QTimer reader;
        connect(&reader, &QTimer::timeout, &reader, [&] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                told.append(box->text());
                box->accept();
            }
        });
        reader.start(0);
        for (const QString& text : {u"ERROR: AddNewEntry\nvoll"_s, u"ERROR: ChangeEntry\nvoll"_s, u"gesperrt"_s}) {
            user.Show(eTone::Critical, text);
        }
        QCoreApplication::processEvents(); // the user's turn
        user.Show(eTone::Critical, u"gesperrt"_s);
        QCOMPARE(told, QStringList({u"ERROR: AddNewEntry\nvoll"_s, u"gesperrt"_s, u"gesperrt"_s}));
    }

    void FileDialogsBeginWhereTheLastOneEnded()
    {
        const QTemporaryDir home;
        const QDir root(home.path());
        for (const QString& folder : {u"Downloads"_s, u"Dokumente"_s, u"Bank"_s}) {
            QVERIFY(root.mkpath(folder));
            cTestFile::Write(root.filePath(folder + u"/auszug.sta"_s), {});
        }
        cTestFile::Write(root.filePath(u"user-dirs.dirs"_s),
                         "XDG_DOWNLOAD_DIR=\"" + root.filePath(u"Downloads"_s).toUtf8() + "\"\nXDG_DOCUMENTS_DIR=\""
                             + root.filePath(u"Dokumente"_s).toUtf8() + "\"\n");
        qputenv("XDG_CONFIG_HOME", home.path().toUtf8());

        cFakeRegistry registry;
        QStringList chosen;
        const auto read = [&] {
            chosen = cQtUser(registry).ChooseFiles(u"Lesen"_s, u"Alle|*.*"_s, ePurpose::Statement);
        };
        const auto write = [&](const QString& proposal) {
            return [&registry, proposal] {
                (void)cQtUser(registry).ChooseSavePath(u"Schreiben"_s, u"Alle|*.*"_s, proposal);
            };
        };
        QCOMPARE(ChosenIn({}, read), root.filePath(u"Downloads"_s));
        QCOMPARE(ChosenIn(root.filePath(u"Bank"_s), read), root.filePath(u"Downloads"_s)); // giving up chooses nothing
        QCOMPARE(chosen, QStringList(root.filePath(u"Bank/auszug.sta"_s)));
        QCOMPARE(ChosenIn({}, read), root.filePath(u"Bank"_s));
        QCOMPARE(ChosenIn({}, write(u"liste.csv"_s)), root.filePath(u"Dokumente"_s)); // another purpose
        QCOMPARE(ChosenIn({}, write(root.filePath(u"Downloads/neu.db"_s))), root.filePath(u"Downloads"_s));
        QVERIFY(QDir(root.filePath(u"Bank"_s)).removeRecursively());
        QCOMPARE(ChosenIn({}, read), root.filePath(u"Downloads"_s));
        QVERIFY(QDir(root.filePath(u"Downloads"_s)).removeRecursively());
        QCOMPARE(ChosenIn({}, read), QDir::homePath());
    }

    void AnswersComeFromTheWindows()
    {
        cTestBook book;
        QStringList steps;
        cQtBankUser user({*book.Settings, book.Clock, [&](const QString& text) { steps.append(text); }});
        PlayWindow(u"geheim"_s, Qt::Key_Return);
        const auto pin = user.AskPin({});
        QVERIFY(pin);
        QCOMPARE(pin->Characters().toString(), u"geheim"_s);
        PlayWindow(u"123456"_s, Qt::Key_Return);
        const auto tan = user.AskTan({});
        QVERIFY(tan);
        QCOMPARE(tan->Characters().toString(), u"123456"_s);
        PlayWindow(u"123456"_s, Qt::Key_Escape);
        QVERIFY(!user.AskTan({}));
        QVERIFY(!user.IsCancelled()); // this question only
        user.ShowStep(u"Anmelden"_s);
        QCOMPARE(steps, QStringList(u"Anmelden"_s));
    }

    void ApprovalWindowStaysBetweenTheQuestions()
    {
        cTestBook book;
        cQtBankUser user({*book.Settings, book.Clock, {}});
        PlayTick();
        QCOMPARE(user.WaitForApproval({}), eApproval::AskBank);
        QWidget* window = QApplication::activeModalWidget();
        QVERIFY(window != nullptr);
        PlayTick();
        QCOMPARE(user.WaitForApproval({}), eApproval::AskBank);
        QCOMPARE(QApplication::activeModalWidget(), window);
        user.EndApproval();
        QVERIFY(QApplication::activeModalWidget() == nullptr);
    }

    void ClosedApprovalEndsTheWait()
    {
        cTestBook book;
        cQtBankUser user({*book.Settings, book.Clock, {}});
        PlayTick(Close);
        QCOMPARE(user.WaitForApproval({}), eApproval::Cancel);
        user.EndApproval();
        PlayTick(); // the next approval is a new one
        QCOMPARE(user.WaitForApproval({}), eApproval::AskBank);
        QApplication::activeModalWidget()->close(); // while the bank is being asked
        QCOMPARE(user.WaitForApproval({}), eApproval::Cancel);
    }

    void CancelledRunEndsTheWait()
    {
        cTestBook book;
        cQtBankUser user({*book.Settings, book.Clock, {}});
        PlayTick([&](QWidget&) { user.Cancel(); });
        QCOMPARE(user.WaitForApproval({}), eApproval::Cancel);
        QVERIFY(user.IsCancelled());
        user.EndApproval();
        QCOMPARE(user.WaitForApproval({}), eApproval::Cancel);
    }

    void EndingFollowsTheChosenFilter_data()
    {
        const cTestRows<QString, QString> row("chosen", "ending");
        row("first", u"CSV-Datei (*.csv)"_s, u"csv"_s);
        row("second", u"Excel-Datei (*.xlsx)"_s, u"xlsx"_s);
        row("all files", u"Alle Dateien (*)"_s, u"csv"_s);
    }

    void EndingFollowsTheChosenFilter()
    {
        QFETCH(const QString, chosen);
        QTEST(modQtFilter::ChosenEnding(u"CSV-Datei|*.csv|Excel-Datei|*.xlsx|Alle Dateien|*.*"_s, chosen), "ending");
    }

private:
    [[nodiscard]] QString NewFile(const QString& name) const
    {
        cTestFile::Write(m_folder.filePath(name), {});
        return m_folder.filePath(name);
    }

    QTemporaryDir m_folder;
    const QString m_key = u"SOFTWARE\\Veltrino Kontorelle"_s;
    const QString m_legacyKey = u"SOFTWARE\\KontorelleFreeware"_s;
};

TEST_CLASS(testAdapters, QApplication)
#include "testAdapters.moc"
