#include "app/machine/cLanguage.h"
#include "app/machine/cQtBankUser.h"
#include "app/machine/cQtPrinter.h"
#include "app/machine/cQtUser.h"
#include "app/machine/modQtFilter.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/fakes.h"
#include "support/testBook.h"
#include "windows/print/cPrintable.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QKeySequence>
#include <QLineEdit>
#include <QPainter>
#include <QPrinter>
#include <QTemporaryDir>
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

// Five pages that note when they are painted.
class cFivePages final : public cPrintable
{
public:
    [[nodiscard]] QString Title() const override { return u"Fünf"_s; }
    int LayOut(QPaintDevice& /*device*/, const QRectF& area) override
    {
        Area = area;
        return 5;
    }
    void PaintPage(QPainter& painter, int page) const override
    {
        painter.drawRect(Area);
        Painted.append(page + 1);
    }

    QRectF Area;
    mutable QList<int> Painted;
};

void PrintTo(QPrinter& printer, const QString& path)
{
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
}

} // namespace

// What the toolkit makes of questions, keys and pages.
class testQtPorts final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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

    void PrintsWhatTheDialogAskedFor_data()
    {
        const cTestRows<int, int, int, int, QList<int>> row("from", "to", "order", "copies", "pages");
        const int forwards = QPrinter::FirstPageFirst;
        row("all", 0, 0, forwards, 1, {1, 2, 3, 4, 5});
        row("range", 2, 3, forwards, 1, {2, 3});
        row("range beyond the end", 4, 99, forwards, 1, {4, 5});
        row("last page first", 1, 3, int(QPrinter::LastPageFirst), 1, {3, 2, 1});
        row("copies of a printer that makes none itself", 1, 2, forwards, 2, {1, 2, 1, 2});
    }

    void PrintsWhatTheDialogAskedFor()
    {
        QFETCH(const int, from);
        QFETCH(const int, to);
        QFETCH(const int, order);
        QFETCH(const int, copies);
        QFETCH(const QList<int>, pages);
        QTemporaryDir folder;
        QPrinter printer;
        PrintTo(printer, folder.filePath(u"a.pdf"_s));
        printer.setFromTo(from, to);
        printer.setPageOrder(static_cast<QPrinter::PageOrder>(order));
        printer.setCopyCount(copies);
        cFivePages content;
        QVERIFY(cQtPrinter::Spool(printer, content));
        QCOMPARE(content.Painted, pages);
        QVERIFY(content.Area.height() > content.Area.width() && content.Area.width() > 0);
        QCOMPARE(cTestFile::Bytes(printer.outputFileName()).count("/Type /Page\n"), pages.size());
    }

    void FileThatCannotBeWritten()
    {
        QTemporaryDir folder;
        QPrinter printer;
        PrintTo(printer, folder.filePath(u"missing/a.pdf"_s));
        cFivePages content;
        QTest::ignoreMessage(QtWarningMsg, "QPainter::begin(): Returned false");
        QVERIFY(!cQtPrinter::Spool(printer, content));
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
};

TEST_CLASS(testQtPorts, QApplication)
#include "testQtPorts.moc"
