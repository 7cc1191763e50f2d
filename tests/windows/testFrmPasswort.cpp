#include "core/modPassword.h"
#include "support/cTestClass.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "support/windowHands.h"
#include "windows/book/frmPasswort.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace modWindowHands;

namespace {

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

} // namespace

class testFrmPasswort final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

TEST_CLASS(testFrmPasswort, QApplication)
#include "testFrmPasswort.moc"
