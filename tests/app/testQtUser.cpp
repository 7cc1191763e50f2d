#include "app/cLanguage.h"
#include "app/cQtUser.h"
#include "support/fakes.h"

#include <QApplication>
#include <QComboBox>
#include <QInputDialog>
#include <QKeySequence>
#include <QTest>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

// What the toolkit makes of questions and keys.
class testQtUser final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OneEnterTakesWhatWasCompleted();
    void KeysHaveGermanNames();
};

void testQtUser::OneEnterTakesWhatWasCompleted()
{
    cQtUser user;
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

void testQtUser::KeysHaveGermanNames()
{
    cFakeShell shell;
    cLanguage language;
    language.Use(u"de"_s, shell);
    QCOMPARE(QKeySequence(Qt::CTRL | Qt::Key_Return).toString(QKeySequence::NativeText), u"Strg+Eingabe"_s);
    QCOMPARE(QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText), u"Entf"_s);
}

QTEST_MAIN(testQtUser)
#include "testQtUser.moc"
