#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "support/windowFaults.h"
#include "support/windowHands.h"
#include "tanQuestion.h"
#include "testbank/cBankHousehold.h"
#include "views/bank/cApprovalWait.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/cBankListModel.h"
#include "views/bank/cBankLogView.h"
#include "views/bank/cBankSetup.h"
#include "views/bank/cTanEntry.h"
#include "views/statement/cStatementDesk.h"
#include "windows/bank/cFetchTree.h"
#include "windows/bank/cFlickerView.h"
#include "windows/bank/cTanPictureView.h"
#include "windows/bank/frmAbruf.h"
#include "windows/bank/frmBankAssistent.h"
#include "windows/bank/frmBankzugaenge.h"
#include "windows/bank/frmPin.h"
#include "windows/bank/frmProtokoll.h"
#include "windows/bank/frmTan.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSlider>
#include <QTimer>
#include <QTreeView>

using namespace Qt::Literals::StringLiterals;
using namespace modWindowHands;

namespace {

struct cScene : cHousehold
{
    cScene() { Tell(cBankMonth::Example()); }

    [[nodiscard]] QString Cell(int column) const
    {
        return Window.findChild<cFetchTree*>()->topLevelItem(0)->child(0)->text(column);
    }

    cStatementDesk Desk{Tools};
    cBankFetch Fetch{Tools, Desk.Files(), {Https, Customer, u"1.0.0"_s}};
    frmAbruf Window{Fetch};
};

QLineEdit& Field(const QDialog& window)
{
    return *window.findChild<QLineEdit*>();
}

// The bars as they stand on the screen, "1" for white: the middle of each.
QString PaintedBars(cFlickerView& view)
{
    const QImage image = view.grab().toImage();
    const int unit = (image.width() + 8) / 16; // a margin on both sides and 14 of bars and gaps
    QString bars;
    for (int bar = 0; bar < 5; ++bar) {
        const QColor colour = image.pixelColor(unit * (2 + 3 * bar), image.height() / 2);
        bars += colour == Qt::white ? u'1' : colour == Qt::black ? u'0' : u'?';
    }
    return bars;
}

QString NextFrame(cFlickerView& view)
{
    QMetaObject::invokeMethod(view.findChild<QTimer*>(), "timeout");
    return PaintedBars(view);
}

} // namespace

// The forms of online banking: fetch, TAN and approval, PIN, log.
class testBankForms final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EnterFetchesAndEnterGoesToTheReview()
    {
        cScene scene;
        scene.Window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&scene.Window));
        QCOMPARE(scene.Cell(2), u"noch nie abgerufen"_s);

        QTest::keyClick(&scene.Window, Qt::Key_Return);
        QVERIFY2(scene.Cell(2).startsWith(u"7 neu"), qPrintable(scene.Cell(2)));
        QVERIFY(scene.Cell(3).contains(u"am 31.03.2026") || !scene.Cell(3).isEmpty());
        QVERIFY(scene.Window.isVisible());

        QTest::keyClick(&scene.Window, Qt::Key_Return);
        QCOMPARE(scene.Window.result(), int(QDialog::Accepted));
    }

    // Of the account that failed, which is that of the second login at the same bank.
    void SaysWhyNotAndStays()
    {
        cHousehold house;
        house.Tell(cBankMonth::Example());
        house.Bank.IsLenient = true;
        house.Bank.Profile.Refusals["HKKAZ"] = {.Nth = 3, .Local = "9210::Konto gesperrt."};
        cBankState other = house.Access.Banks().constFirst();
        other.UserId = u"zoe"_s;
        QVERIFY(house.Access.Save(other) && house.Access.Choose(other, other.Accounts));
        cStatementDesk desk{house.Tools};
        cBankFetch fetch{house.Tools, desk.Files(), {house.Https, house.Customer, u"1.0.0"_s}};
        frmAbruf window{fetch};
        const auto* tree = window.findChild<cFetchTree*>();
        QCOMPARE(tree->topLevelItem(1)->text(0), u"Testbank, zoe"_s);
        window.show();
        QTest::keyClick(&window, Qt::Key_Return);
        QCOMPARE(fetch.Lines().at(0).State, cBankFetch::eState::Done);
        QCOMPARE(tree->Current(), 1);
        QVERIFY(Shows(window, u"Konto gesperrt."_s));
        QVERIFY(window.isVisible());
    }

    // A PIN typed too early does not replace the registration.
    void NothingIsTypedOverInALoginThatIsChanged()
    {
        cHousehold house;
        const cBankDirectory directory(house.Shell);
        cBankSetup setup({house.Tools, directory, house.Https, house.Customer, u"1.0.0"_s});
        setup.Load(house.Access.Banks().constFirst());
        frmBankAssistent window(setup, house.Clock.Today());
        Bring(window);
        QTest::keyClicks(window.focusWidget(), u"4711"_s);
        window.reject();
        QVERIFY(!window.isVisible()); // without a question
    }

    void ListOfLoginsKeepsARowSelected()
    {
        cHousehold house;
        cBankListModel banks(house.Tools);
        const frmBankzugaenge window(banks);
        cBankState other = house.Access.Banks().constFirst();
        other.UserId = u"zoe"_s; // new, and so the one that is looked for
        QVERIFY(house.Access.Save(other) && house.Access.Choose(other, other.Accounts));
        for (int time = 0; time < 2; ++time) {
            banks.Reload();
            const auto rows = window.findChild<QTreeView*>()->selectionModel()->selectedRows();
            QCOMPARE(rows.size(), 1);
            QCOMPARE(rows.constFirst().row(), 1);
        }
    }

    void CancelEndsTheRun()
    {
        cScene scene;
        scene.Window.show();
        connect(&scene.Fetch, &cBankFetch::StepShown, &scene.Window, [&] { scene.Window.reject(); });
        QTest::keyClick(&scene.Window, Qt::Key_Return);
        QCOMPARE(scene.Fetch.Lines().constFirst().Failure.Fault, eBankFault::Cancelled);
        QCOMPARE(scene.Desk.Rows().size(), 0);
        QVERIFY(scene.Window.isVisible());
        scene.Window.reject();
        QVERIFY(!scene.Window.isVisible());
    }

    void AsksForALoginWhereThereIsNone()
    {
        cTestBook book;
        cTestBank bank{cBankProfile()};
        cTestHttps https(bank);
        cTestBankUser customer(bank);
        cStatementDesk desk(book.Tools);
        cBankFetch fetch(book.Tools, desk.Files(), {https, customer, u"1.0.0"_s});
        frmAbruf window(fetch);
        QSignalSpy banks(&window, &frmAbruf::BanksRequested);
        window.show();
        QTest::keyClick(&window, Qt::Key_Return);
        QCOMPARE(banks.size(), 1);
        QCOMPARE(https.Posts, 0);
    }

    void TanGoesByKeyboard()
    {
        cTestBook book;
        cTanEntry entry(TanQuestion(eTanDisplay::Flicker), *book.Settings);
        frmTan window(entry);
        Bring(window);
        QCOMPARE(QApplication::focusWidget(), &Field(window));
        QVERIFY(!Button(window, u"TAN senden"_s).isEnabled());
        QTest::keyClick(&Field(window), Qt::Key_Return); // nothing typed yet
        QVERIFY(window.isVisible());
        QCOMPARE(Field(window).placeholderText(), u"Höchstens 6 Ziffern"_s);
        QApplication::clipboard()->setText(u"TAN 654 "_s);
        Field(window).paste();
        QTest::keyClicks(&Field(window), u"32a17"_s); // the seventh has no room
        QTest::keyClick(&Field(window), Qt::Key_Return);
        QCOMPARE(window.result(), static_cast<int>(QDialog::Accepted));
        QCOMPARE(window.TakeTan().Characters().toString(), u"654321"_s);
    }

    void NothingOfTheTanStays_data()
    {
        const cTestRows<int> row("way");
        row("sent", 0);
        row("Escape", 1);
        row("closed", 2);
        row("cancelled", 3);
    }

    void NothingOfTheTanStays()
    {
        QFETCH(int, way);
        cTestBook book;
        cTanEntry entry(TanQuestion(eTanDisplay::Text), *book.Settings);
        frmTan window(entry);
        window.show();
        QTest::keyClicks(&Field(window), u"123456"_s);
        switch (way) {
        case 0: QTest::mouseClick(&Button(window, u"TAN senden"_s), Qt::LeftButton); break;
        case 1: QTest::keyClick(&window, Qt::Key_Escape); break;
        case 2: window.close(); break;
        default: QTest::mouseClick(&Button(window, u"Abbrechen"_s), Qt::LeftButton); break;
        }
        QVERIFY(!window.isVisible());
        QCOMPARE(Field(window).text(), QString());
        Field(window).undo();
        QCOMPARE(Field(window).text(), QString());
        QCOMPARE(window.TakeTan().IsEmpty(), way != 0);
    }

    void WordsOfTheBankAreNoMarkup()
    {
        cTestBook book;
        cTanEntry entry(TanQuestion(eTanDisplay::Text), *book.Settings);
        const frmTan window(entry);
        const auto* words = window.findChild<QLabel*>(u"words"_s);
        QCOMPARE(words->text(), u"<u>Umsatzabfrage</u>\nKonto 4711"_s);
        QCOMPARE(words->textFormat(), Qt::PlainText);
    }

    // On a screen with 60 frames a second, 20 states are three frames each; a state that is due waits for its second
    // frame.
    void EveryStateIsPaintedTwice()
    {
        constexpr qint64 frame = 16'666'667;
        qint64 moment = 0;
        cFlickerView view(QByteArray("\x1f\x1e\x01", 3), nullptr, [&] { return moment; });
        view.SetWidth(65);
        view.SetSpeed(20);
        QStringList painted;
        for (int i = 0; i < 9; ++i) {
            painted.append(NextFrame(view));
            moment += frame;
        }
        const QString full = u"11111"_s;
        const QString data = u"01111"_s;
        const QString clock = u"10000"_s;
        QCOMPARE(painted, QStringList({full, full, full, data, data, data, clock, clock, clock}));
        QCOMPARE(PaintedBars(view), clock); // something else had them painted: that is no frame of theirs
    }

    void BarsStandOnTheirHead()
    {
        cFlickerView view(QByteArray("\x03", 1), nullptr, [] { return 0; });
        view.SetWidth(65);
        QCOMPARE(PaintedBars(view), u"11000"_s);
        view.SetTurned(true);
        QCOMPARE(PaintedBars(view), u"00011"_s);
    }

    void DialsChangeBarsAndAreKept()
    {
        cTestBook book;
        cTanEntry entry(TanQuestion(eTanDisplay::Flicker), *book.Settings);
        frmTan window(entry);
        window.show();
        auto* bars = window.findChild<cFlickerView*>();
        QSlider* width = window.findChildren<QSlider*>().first();
        const int before = bars->width();
        width->setFocus();
        QTest::keyClick(width, Qt::Key_End);
        QVERIFY(bars->width() > before);
        QTest::keyClick(window.findChild<QCheckBox*>(), Qt::Key_Space);
        QCOMPARE(modWindowFaults::All(window), QStringList());
        window.close();
        QCOMPARE(entry.Value(cTanEntry::eDial::FlickerWidth), 90);
        QVERIFY(entry.IsTurned());
    }

    void PictureIsShownInItsWidth()
    {
        cTestBook book;
        cTanQuestion question = TanQuestion(eTanDisplay::Picture);
        cTanEntry entry(question, *book.Settings);
        frmTan window(entry);
        window.show();
        const auto* picture = window.findChild<cTanPictureView*>();
        const int before = picture->sizeHint().width();
        window.findChild<QSlider*>()->setValue(120);
        QVERIFY(picture->sizeHint().width() > before);
        QTRY_VERIFY(window.height() > picture->sizeHint().height());
        const int tall = window.height();
        window.findChild<QSlider*>()->setValue(20);
        QTRY_VERIFY(window.height() < tall);
        window.findChild<QSlider*>()->setValue(120);
        window.close();
        QCOMPARE(entry.Value(cTanEntry::eDial::PictureWidth), 120);
    }

    void BrokenPictureIsSaid()
    {
        cTestBook book;
        cTanQuestion question = TanQuestion(eTanDisplay::Picture);
        question.Picture = "abcde";
        cTanEntry entry(question, *book.Settings);
        const frmTan window(entry);
        QVERIFY(window.findChild<cTanPictureView*>() == nullptr);
        QVERIFY(Shows(window, u"kein lesbares Bild"_s));
        QVERIFY(!Shows(window, u"Nehmen Sie das Bild"_s));
    }

    void ApprovalAsksInTime()
    {
        cFakeClock clock;
        cApprovalWait wait(clock);
        cApproval approval;
        approval.Bank = u"Sparkasse Ahornstadt"_s;
        approval.WaitSeconds = 3;
        approval.IsAutomatic = false;
        approval.ValidUntil = clock.Now().addSecs(300);
        wait.Start(approval);
        frmTan window(wait);
        const QSignalSpy asked(&window, &frmTan::BankToBeAsked);
        window.show();
        const auto passSecond = [&] {
            clock.Time = clock.Time.addSecs(1);
            QMetaObject::invokeMethod(window.findChild<QTimer*>(u"tmrWait"_s), "timeout");
        };
        QAbstractButton* look = &Button(window, u"Jetzt prüfen"_s);
        QTest::mouseClick(look, Qt::LeftButton); // too early, but heard
        QVERIFY(!look->isEnabled() && asked.isEmpty());
        for (int i = 0; i < 3; ++i) {
            passSecond();
        }
        QCOMPARE(asked.size(), 1);
        QVERIFY(!window.findChild<QTimer*>(u"tmrWait"_s)->isActive());
        wait.Start(approval);
        window.StartWait();
        for (int i = 0; i < 10; ++i) {
            passSecond();
        }
        QCOMPARE(asked.size(), 1);
        QTest::mouseClick(look, Qt::LeftButton);
        QCOMPARE(asked.size(), 2);
        QTest::keyClick(&window, Qt::Key_Escape);
        QCOMPARE(window.result(), static_cast<int>(QDialog::Rejected));
    }

    void PinIsHiddenAndForgotten()
    {
        for (const bool isSent : {true, false}) {
            frmPin window(
                {.Bank = u"Sparkasse Ahornstadt"_s, .BankCode = {}, .UserId = u"kunde1"_s, .UserIdLabel = {}});
            window.show();
            QCOMPARE(Field(window).echoMode(), QLineEdit::Password);
            QTest::keyClicks(&Field(window), u"geheim"_s);
            QTest::keyClick(&Field(window), isSent ? Qt::Key_Return : Qt::Key_Escape);
            QVERIFY(!window.isVisible());
            QCOMPARE(Field(window).text(), QString());
            QCOMPARE(window.TakePin().Characters().toString(), isSent ? u"geheim"_s : QString());
        }
    }

    void LogIsShownAndSaved()
    {
        cTestBook book;
        const cBankLogView log(u"HNHBK:1:3+000000000123"_s, u"HNHBK"_s, {book.User, book.Shell, book.Clock});
        frmProtokoll window(log);
        window.show();
        const auto* text = window.findChild<QPlainTextEdit*>();
        QVERIFY(text->isReadOnly());
        QCOMPARE(text->toPlainText(), u"HNHBK:1:3+000000000123"_s);
        QTest::mouseClick(&Button(window, u"Per E-Mail senden…"_s), Qt::LeftButton);
        QCOMPARE(book.Shell.Mails.size(), 1);
        const cBankLogView nothing({}, {}, {book.User, book.Shell, book.Clock});
        const frmProtokoll empty(nothing);
        QVERIFY(!Button(empty, u"Speichern…"_s).isEnabled());
    }
};

TEST_CLASS(testBankForms, QApplication)
#include "testBankForms.moc"
