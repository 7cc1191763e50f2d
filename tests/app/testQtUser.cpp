#include "app/machine/cLanguage.h"
#include "app/machine/cQtUser.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/fakes.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeySequence>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

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

} // namespace

// What the toolkit makes of questions and keys.
class testQtUser final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OneEnterTakesWhatWasCompleted();
    void OneCauseIsToldOnce();
    void KeysHaveGermanNames();
    void FileDialogsBeginWhereTheLastOneEnded();
};

void testQtUser::OneEnterTakesWhatWasCompleted()
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

void testQtUser::OneCauseIsToldOnce()
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
    for (const QString& text : {u"voll"_s, u"voll"_s, u"gesperrt"_s}) {
        user.Show(eTone::Critical, text);
    }
    QCoreApplication::processEvents(); // the user's turn
    user.Show(eTone::Critical, u"gesperrt"_s);
    QCOMPARE(told, QStringList({u"voll"_s, u"gesperrt"_s, u"gesperrt"_s}));
}

void testQtUser::FileDialogsBeginWhereTheLastOneEnded()
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
    const auto read = [&] { chosen = cQtUser(registry).ChooseFiles(u"Lesen"_s, u"Alle|*.*"_s, ePurpose::Statement); };
    const auto write = [&](const QString& proposal) {
        return
            [&registry, proposal] { (void)cQtUser(registry).ChooseSavePath(u"Schreiben"_s, u"Alle|*.*"_s, proposal); };
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

void testQtUser::KeysHaveGermanNames()
{
    cFakeShell shell;
    cLanguage language;
    language.Use(u"de"_s, shell);
    QCOMPARE(QKeySequence(Qt::CTRL | Qt::Key_Return).toString(QKeySequence::NativeText), u"Strg+Eingabe"_s);
    QCOMPARE(QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText), u"Entf"_s);
    QCOMPARE(QCoreApplication::translate("QWizard", "Return"), u"Return"_s); // the names of keys alone
}

TEST_CLASS(testQtUser, QApplication)
#include "testQtUser.moc"
