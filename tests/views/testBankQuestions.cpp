#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/bank/cApprovalWait.h"
#include "views/bank/cBankLogView.h"
#include "views/bank/cFlickerPace.h"
#include "views/bank/cTanEntry.h"
#include "views/bank/modBankQuestion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

cApproval Approval(int wait, bool isAutomatic, bool hasButton)
{
    cApproval approval;
    approval.WaitSeconds = wait;
    approval.IsAutomatic = isAutomatic;
    approval.HasButton = hasButton;
    return approval;
}

} // namespace

class testBankQuestions final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OnlyWhatCanBeATanIsLetIn_data()
    {
        // typed: "|" is the cursor
        const cTestRows<bool, int, QString, QString, bool> row("isNumber", "most", "typed", "kept", "fits");
        row("digits", true, 6, u"123456|"_s, u"123456|"_s, true);
        row("pasted with words and blanks", true, 6, u"TAN: 123 |456"_s, u"123|456"_s, true);
        row("a digit too many", true, 6, u"1234567|"_s, u"1234567|"_s, false);
        row("no length known", true, 0, u"123456789012|"_s, u"123456789012|"_s, true);
        row("foreign digits", true, 6, u"1٣2|"_s, u"12|"_s, true);
        row("letters", false, 6, u" aB-3 |"_s, u"aB-3|"_s, true);
    }

    void OnlyWhatCanBeATanIsLetIn()
    {
        QFETCH(bool, isNumber);
        QFETCH(int, most);
        QFETCH(QString, typed);
        cTanQuestion question;
        question.IsNumber = isNumber;
        question.MostCharacters = most;
        int cursor = static_cast<int>(typed.indexOf(u'|'));
        typed.remove(u'|');
        QTEST(modBankQuestion::Fit(question, typed, cursor), "fits");
        QTEST(typed.insert(cursor, u'|'), "kept");
    }

    void WordsCannotSteerWhereTheyAreShown()
    {
        cTanQuestion question;
        question.Challenge = u"Konto\x1b[2J 4711\r\nBetrag\t\u202E00,1 EUR\x07\r\n"_s;
        QCOMPARE(modBankQuestion::Words(question), u"Konto[2J 4711\nBetrag 00,1 EUR"_s);
        question.Challenge = u"\r\n"_s;
        QCOMPARE(modBankQuestion::Words(question), u"Ihre Bank verlangt eine TAN."_s);
        QCOMPARE(modBankQuestion::Login({.Bank = {}, .BankCode = {}, .UserId = u"4711"_s, .UserIdLabel = {}}),
                 u"Anmeldename: 4711"_s);
    }

    void SizesAreKeptWithinTheirRange()
    {
        using enum cTanEntry::eDial;
        cTestBook book;
        cTanEntry entry({}, *book.Settings);
        QCOMPARE(entry.Value(FlickerWidth), 65);
        entry.SetValue(FlickerWidth, 80);
        entry.SetTurned(true);
        const cTanEntry next({}, *book.Settings);
        QCOMPARE(next.Value(FlickerWidth), 80);
        QVERIFY(next.IsTurned());
        for (const auto& [stored, shown] : {std::pair(u"500"_s, 40), {u"1"_s, 2}, {u"x"_s, 20}}) {
            book.Settings->Set(modSettingKey::FlickerSpeed, stored);
            QCOMPARE(next.Value(FlickerSpeed), shown);
        }
    }

    // Frames of the screen in microseconds, states in a second, and the frames that each state has to be seen for.
    void NoStateOfTheBarsIsShort_data()
    {
        const cTestRows<int, int, int> row("frame", "speed", "frames");
        row("60 Hz, as wished", 16667, 20, 3);
        row("60 Hz, as fast as it can", 16667, 40, 2);
        row("60 Hz, slow", 16667, 2, 30);
        row("144 Hz", 6944, 40, 4);
        row("240 Hz", 4167, 40, 6);
    }

    void NoStateOfTheBarsIsShort()
    {
        QFETCH(int, frame);
        QFETCH(int, speed);
        QFETCH(int, frames);
        constexpr qint64 microsecond = 1000;
        cFlickerPace pace;
        pace.SetFrame(frame * microsecond);
        pace.SetSpeed(speed);
        qint64 moment = 0;
        // Paints every n-th frame of the screen until the next state; how many frames the present one was painted in.
        const auto painted = [&](int every) {
            int count = 0;
            bool isNext = false;
            while (!isNext && count < 1000) {
                moment += microsecond * every * frame;
                isNext = pace.Paint(moment);
                ++count;
            }
            return count;
        };
        QVERIFY(!pace.Paint(moment)); // the first state begins
        for (int i = 0; i < 10; ++i) {
            QCOMPARE(painted(1), frames);
        }
        QCOMPARE(painted(100), 2); // however busy the machine is
        for (int i = 0; i < 3; ++i) {
            QCOMPARE(painted(1), frames); // nothing is made up for afterwards
        }
        for (int i = 0; i < 100; ++i) {
            QVERIFY(!pace.Paint(moment + microsecond)); // painted often, but not seen for long
        }
        QCOMPARE(pace.UntilNext(moment + microsecond), (frame - 1) * microsecond);
    }

    void BankIsNeverAskedTooEarly_data()
    {
        // isAsked: once the wait is over
        const cTestRows<bool, bool, bool, bool> row("isAutomatic", "hasButton", "isPressed", "isAsked");
        row("by itself", true, false, false, true);
        row("by itself, and pressed too early", true, true, true, true);
        row("only when pressed", false, true, false, false);
        row("pressed too early", false, true, true, true);
        row("a bank that allows neither is asked by the button", false, false, true, true);
    }

    void BankIsNeverAskedTooEarly()
    {
        QFETCH(bool, isAutomatic);
        QFETCH(bool, hasButton);
        QFETCH(bool, isPressed);
        cFakeClock clock;
        cApprovalWait wait(clock);
        for (int round = 0; round < 2; ++round) { // what was pressed in one does not count in the next
            wait.Start(Approval(5, isAutomatic, hasButton));
            QCOMPARE(wait.HasButton(), hasButton || !isAutomatic);
            QVERIFY(wait.IsButtonOn());
            if (isPressed) {
                wait.AskSoon();
            }
            QVERIFY(!wait.IsDue());
            clock.Time = clock.Time.addMSecs(4999);
            QVERIFY(!wait.IsDue());
            clock.Time = clock.Time.addMSecs(1);
            QTEST(wait.IsDue(), "isAsked");
        }
        clock.Time = clock.Time.addSecs(-3600);
        QVERIFY(!wait.IsDue());
    }

    void ApprovalShowsTheTimeLeft()
    {
        cFakeClock clock;
        cApprovalWait wait(clock);
        cApproval approval = Approval(2, true, true);
        wait.Start(approval);
        QCOMPARE(wait.TimeLeft(), QString());
        QCOMPARE(wait.Step(), u"Die Bank wird in 2 s gefragt, ob Ihre Freigabe da ist."_s);
        approval.ValidUntil = clock.Now().addSecs(245);
        approval.IsAutomatic = false;
        wait.Start(approval);
        QCOMPARE(wait.TimeLeft(), u"Noch 4:05 Minuten Zeit"_s);
        QCOMPARE(wait.Step(), u"Klicken Sie auf „Jetzt prüfen“, sobald Sie freigegeben haben."_s);
        clock.Time = clock.Time.addSecs(245);
        QCOMPARE(wait.TimeLeft(), u"Die Zeit für die Freigabe ist abgelaufen."_s);
    }

    void OnlyTheMaskedLogLeaves()
    {
        cTestBook book;
        const cBankLogView log(u"Konto 4711"_s, u"Konto PPPP"_s, {book.User, book.Shell, book.Clock});
        QCOMPARE(log.Text(), u"Konto 4711"_s);
        book.User.SavePath = book.Shell.Folder(u"log"_s) + u"/p.txt"_s;
        log.Save();
        log.Send();
        QCOMPARE(book.User.LastProposal, u"Bankprotokoll 2026-03-15.txt"_s);
        QCOMPARE(book.Shell.Mails.size(), 1);
        for (const QString& path : {book.User.SavePath, book.Shell.Mails.first().Attachment}) {
            QCOMPARE(cTestFile::Bytes(path), QByteArray("Konto PPPP"));
        }
    }

    void LogThatCannotBeSentIsKept()
    {
        cTestBook book;
        book.Shell.HasMail = false;
        const cBankLogView log(u"a"_s, u"b"_s, {book.User, book.Shell, book.Clock});
        log.Send();
        const QString path = book.Shell.Mails.first().Attachment;
        QCOMPARE(book.User.Shown,
                 QStringList(u"Es wurde kein E-Mail-Programm gefunden. Das Protokoll liegt in der Datei "_s + path));
        book.User.SavePath = book.Shell.Folder(u"log"_s); // a folder
        log.Save();
        QVERIFY(book.User.Shown.last().startsWith(u"Die Datei"_s));
        QCOMPARE(cBankLogView({}, {}, {book.User, book.Shell, book.Clock}).Text(),
                 u"Es wurde noch keine Nachricht gesendet."_s);
    }
};

TEST_CLASS(testBankQuestions, QCoreApplication)
#include "testBankQuestions.moc"
