#include "app/machine/cQtBankUser.h"
#include "support/cTestClass.h"
#include "support/testBook.h"

#include <QApplication>
#include <QLineEdit>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

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

class testQtBankUser final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

TEST_CLASS(testQtBankUser, QApplication)
#include "testQtBankUser.moc"
