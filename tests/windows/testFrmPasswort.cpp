#include "windows/frmPasswort.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

class testFrmPasswort final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void StaysUntilThePasswordIsRight();
    void EscapeGivesUp();
};

void testFrmPasswort::StaysUntilThePasswordIsRight()
{
    frmPasswort prompt([](const QString& typed) { return typed == "geheim"_L1; });
    prompt.show();
    auto* password = prompt.findChild<QLineEdit*>();
    auto* message = prompt.findChild<QLabel*>(u"message"_s);
    QCOMPARE(password->echoMode(), QLineEdit::Password);
    for (const char* wrong : {"", "Geheim", "geheim "}) {
        QTest::keyClicks(password, QString::fromLatin1(wrong));
        QTest::keyClick(password, Qt::Key_Return);
        QVERIFY(prompt.isVisible());
        QCOMPARE(message->text(), u"Das Passwort ist nicht richtig. Bitte versuchen Sie es noch einmal."_s);
    }
    QTest::keyClicks(password, u"geheim"_s); // the wrong one is selected, so typing replaces it
    QCOMPARE(message->text(), QString());
    QTest::keyClick(password, Qt::Key_Return);
    QCOMPARE(prompt.result(), static_cast<int>(QDialog::Accepted));
}

void testFrmPasswort::EscapeGivesUp()
{
    frmPasswort prompt([](const QString&) { return true; });
    prompt.show();
    QTest::keyClick(&prompt, Qt::Key_Escape);
    QCOMPARE(prompt.result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(!prompt.isVisible());
}

QTEST_MAIN(testFrmPasswort)
#include "testFrmPasswort.moc"
