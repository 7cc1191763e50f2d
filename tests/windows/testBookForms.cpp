#include "core/cBackupPlan.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/modPassword.h"
#include "model/modSettingKey.h"
#include "support/cFakeMachine.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "support/windowHands.h"
#include "views/book/cBackupSettings.h"
#include "views/book/cNationalSettings.h"
#include "windows/book/frmLaender.h"
#include "windows/book/frmPasswort.h"
#include "windows/book/frmSicherungen.h"
#include "windows/widget/cDayEdit.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QSpinBox>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace modWindowHands;

namespace {

struct cNation
{
    cTestBook Book;
    cNationalSettings Settings{Book.Tools, Book.Configuration, Book.Format};
};

void Choose(QComboBox& combo, const QString& stored)
{
    combo.setCurrentIndex(combo.findData(stored));
}

// Lets the window's clock strike without waiting for it.
void PassSeconds(const QDialog& window, int seconds)
{
    auto* timer = window.findChild<QTimer*>(u"tmrWait"_s);
    for (int i = 0; i < seconds; ++i) {
        QVERIFY(timer->isActive());
        QMetaObject::invokeMethod(timer, "timeout");
    }
}

QLineEdit* Field(const QDialog& window, const QString& name)
{
    return window.findChild<QLineEdit*>(name);
}

QString Message(const QDialog& window)
{
    return window.findChild<QLabel*>(u"message"_s)->text();
}

struct cMachine : cFakeMachine
{
    cMachine()
    {
        QVERIFY(Book.Open(File.Make("INSERT INTO data (EntryDate) VALUES ('2026-01-31')")));
        Configuration.SetDatabase(&Book.Settings());
        Plan.RunIfDue();
    }

    cConfiguration Configuration{Registry};
    cBook Book{User};
    cBackupPlan Plan{{Shell, User, Clock}, Book, Configuration};
    cBackupSettings Settings{{Book, Configuration, User, Shell, Clock}};
};

} // namespace

// The forms of the book: national settings, password, automatic backups.
class testBookForms final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PreviewFollowsTheChoice()
    {
        cNation nation;
        frmLaender window(nation.Settings);
        window.show();
        const QList<QComboBox*> combos = window.findChildren<QComboBox*>();
        QCOMPARE(combos.size(), 3);
        auto* amount = window.findChild<QLabel*>(u"amount"_s);
        auto* date = window.findChild<QLabel*>(u"date"_s);
        const QDate today = nation.Book.Clock.Today();
        Choose(*combos[1], u"en-IE"_s);
        QCOMPARE(amount->text(), u"€1,234.56"_s);
        QCOMPARE(date->text(), today.toString(u"dd/MM/yyyy"_s));
        Choose(*combos[2], u"en-US"_s);
        QCOMPARE(amount->text(), u"$1,234.56"_s);
        QCOMPARE(date->text(), today.toString(u"dd/MM/yyyy"_s));
        QVERIFY(nation.Book.Settings->Get(modSettingKey::LanguageCurrency).isEmpty()); // nothing is stored yet
        QTest::keyClick(&window, Qt::Key_Return);
        QVERIFY(!window.isVisible());
        QCOMPARE(nation.Book.Settings->Get(modSettingKey::LanguageCurrency), u"en-US"_s);
        QCOMPARE(nation.Book.Settings->Get(modSettingKey::LanguageFormat), u"en-IE"_s);
    }

    // What another program has stored is not lost when something else is changed.
    void UnknownCultureStays()
    {
        cNation nation;
        QVERIFY(nation.Book.Settings->Set(modSettingKey::LanguageFormat, u"fr_FR"_s));
        frmLaender window(nation.Settings);
        window.show();
        QTest::keyClick(&window, Qt::Key_Return);
        QCOMPARE(nation.Book.Settings->Get(modSettingKey::LanguageFormat), u"fr-FR"_s);
    }

    // A field that stood open while another form was chosen.
    void DayFieldsKeepTheirDay()
    {
        cNation nation;
        cDayEdit edit(QDate(2026, 3, 15));
        const QDate day(2026, 4, 3);
        const auto choose = [&nation](const QString& format) {
            return nation.Settings.Save({.Language = u"de"_s, .Format = format, .Currency = {}});
        };
        QVERIFY(choose(u"en-GB"_s));
        edit.SetDay(day);
        QCOMPARE(edit.text(), u"03/04/2026"_s);
        QVERIFY(choose(u"en-US"_s));
        QCOMPARE(edit.Day(), day);
        edit.setText(u"3/4"_s); // typed now
        QCOMPARE(edit.Day(), QDate(2026, 3, 4));
        QVERIFY(choose(u"de-DE"_s));
        edit.SetDay(day);
        QCOMPARE(edit.text(), u"03.04.2026"_s);
    }

    void StaysUntilThePasswordIsRight()
    {
        cPasswordTries tries;
        frmPasswort prompt(tries, [](const QString& typed) { return typed == "geheim"_L1; });
        prompt.show();
        QLineEdit* password = Field(prompt, u"old"_s);
        QCOMPARE(password->echoMode(), QLineEdit::Password);
        int wait = 1;
        for (const char* wrong : {"", "Geheim", "geheim "}) {
            QTest::keyClicks(password, QString::fromLatin1(wrong));
            QTest::keyClick(password, Qt::Key_Return);
            QVERIFY(prompt.isVisible());
            QCOMPARE(modWindowFaults::All(prompt), QStringList());
            QCOMPARE(Message(prompt),
                     u"Das Passwort ist nicht richtig. Der nächste Versuch ist in %1 s möglich."_s.arg(wait));
            password->setText(u"geheim"_s);
            QTest::keyClick(password, Qt::Key_Return); // the right one has to wait as well
            QVERIFY(prompt.isVisible() && !Button(prompt, u"OK"_s).isEnabled());
            PassSeconds(prompt, wait);
            QCOMPARE(Message(prompt), u"Das Passwort ist nicht richtig. Bitte versuchen Sie es noch einmal."_s);
            password->clear();
            wait *= 2;
        }
        QTest::keyClicks(password, u"geheim"_s);
        QTest::keyClick(password, Qt::Key_Return);
        QCOMPARE(prompt.result(), static_cast<int>(QDialog::Accepted));
    }

    void WaitOutlivesTheWindow()
    {
        cPasswordTries tries;
        tries.NoteWrong();
        tries.NoteWrong();
        frmPasswort prompt(tries, [](const QString&) { return true; });
        prompt.show();
        QVERIFY(!Button(prompt, u"OK"_s).isEnabled());
        PassSeconds(prompt, 2);
        QVERIFY(Button(prompt, u"OK"_s).isEnabled());
    }

    void SetsAndRemoves()
    {
        cTestBook book;
        cPasswordFlow flow(book.Data, book.Configuration, book.User);
        {
            frmPasswort window(flow);
            Bring(window);
            QVERIFY(Field(window, u"old"_s) == nullptr);
            QCOMPARE(QApplication::focusWidget(), Field(window, u"new"_s));
            QTest::keyClicks(Field(window, u"new"_s), u"eins"_s);
            QTest::keyClick(Field(window, u"new"_s), Qt::Key_Return); // not repeated yet
            QVERIFY(window.isVisible() && !flow.HasPassword());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), Field(window, u"repeated"_s));
            QTest::keyClicks(QApplication::focusWidget(), u"eins"_s);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QVERIFY(qobject_cast<QCheckBox*>(QApplication::focusWidget()) != nullptr);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
            QVERIFY(!window.isVisible() && flow.HasPassword());
        }
        frmPasswort window(flow);
        window.show();
        QCOMPARE(modWindowFaults::All(window), QStringList());
        QTest::keyClicks(Field(window, u"old"_s), u"eins"_s);
        QTest::mouseClick(&Button(window, u"Passwort entfernen"_s), Qt::LeftButton);
        QVERIFY(!window.isVisible() && !flow.HasPassword());
    }

    void WrongOldPasswordWaits()
    {
        cTestBook book;
        QVERIFY(modPassword::Set(book.Configuration, u"eins"_s));
        cPasswordFlow flow(book.Data, book.Configuration, book.User);
        frmPasswort window(flow);
        window.show();
        QTest::mouseClick(&Button(window, u"Passwort entfernen"_s), Qt::LeftButton);
        QVERIFY(window.isVisible() && flow.HasPassword());
        for (const QString& button : {u"Passwort ändern"_s, u"Passwort entfernen"_s}) {
            QVERIFY(!Button(window, button).isEnabled());
        }
        PassSeconds(window, 1);
        QVERIFY(Button(window, u"Passwort ändern"_s).isEnabled());
    }

    void FolderAndNumber()
    {
        cMachine machine;
        frmSicherungen window(machine.Settings);
        window.show();
        auto* count = window.findChild<QSpinBox*>();
        auto* copies = window.findChild<QListWidget*>();
        QCOMPARE(count->value(), 10);
        QCOMPARE(copies->count(), 1);
        QVERIFY(copies->item(0)->text().startsWith(u"15.03.2026, "_s));
        machine.User.Folder = machine.File.Path(u"neu"_s);
        modWindowHands::Button(window, u"Wählen…"_s).click();
        count->setValue(3);
        QTest::keyClick(&window, Qt::Key_Return);
        QVERIFY(!window.isVisible());
        QCOMPARE(machine.Plan.Count(), 3);
        QCOMPARE(machine.Plan.Folder(), machine.File.Path(u"neu"_s));
        QVERIFY(QDir(machine.Plan.Folder()).exists());
    }

    void SizesFollowTheBook()
    {
        cMachine machine;
        const auto isWrittenWith = [&](QChar sign) {
            const QString size = machine.Settings.Copies().constFirst().section(u", "_s, 1);
            return QRegularExpression(u"^\\d+%1\\d [kM]B$"_s.arg(QRegularExpression::escape(sign)))
                .match(size)
                .hasMatch();
        };
        QVERIFY(isWrittenWith(u','));
        machine.Configuration.SaveSetting(modSettingKey::LanguageCurrency, u"en-GB"_s, eSettingPlace::Database);
        QVERIFY(isWrittenWith(u'.'));
    }

    void UnusableFolderIsRefused()
    {
        cMachine machine;
        frmSicherungen window(machine.Settings);
        window.show();
        for (const QString& folder : {u"relativ"_s, machine.File.Path(u"data.db/unter"_s)}) {
            const QList<QLineEdit*> fields = window.findChildren<QLineEdit*>(Qt::FindDirectChildrenOnly);
            fields.constFirst()->setText(folder);
            QTest::keyClick(&window, Qt::Key_Return);
            QVERIFY(window.isVisible());
            QCOMPARE(machine.User.Shown.constLast(),
                     u"In den Ordner '%1' kann nicht geschrieben werden."_s.arg(folder));
        }
        machine.User.Answers = {eAnswer::Yes, eAnswer::No};
        window.reject();
        QVERIFY(window.isVisible()); // as refused as before
        window.reject();
        QVERIFY(!window.isVisible());
        QCOMPARE(machine.Plan.Folder(), machine.Plan.DefaultFolder());
    }
};

TEST_CLASS(testBookForms, QApplication)
#include "testBookForms.moc"
