#include "model/bank/cOnlineAccount.h"
#include "model/modSettingKey.h"
#include "store/cUndoStep.h"
#include "store/modAccountColumns.h"
#include "support/cTestClass.h"
#include "support/cTestFile.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/bank/cApprovalWait.h"
#include "views/bank/cBankAccess.h"
#include "views/bank/cBankLogView.h"
#include "views/bank/cFlickerPace.h"
#include "views/bank/cTanEntry.h"
#include "views/bank/modBankQuestion.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

cBankAccount Account(const QString& number, const QString& product)
{
    cBankAccount account;
    account.Number = number;
    account.BankCode = u"10020030"_s;
    account.Iban = u"DE00100200300"_s + number;
    account.Bic = u"TESTDEFFXXX"_s;
    account.CustomerId = u"kunde"_s;
    account.Owner1 = u"Erika Muster"_s;
    account.ProductName = product;
    account.Limit = u"K:1000,"_s;
    account.Orders = {u"HKKAZ"_s, u"HKSAL"_s};
    return account;
}

cBankState State(const QString& userId)
{
    cBankState state;
    state.BankCode = u"10020030"_s;
    state.BankName = u"Übungsbank"_s;
    state.UserId = userId;
    state.Url = u"https://fints.example/fints"_s;
    state.Bic = u"TESTDEFFXXX"_s;
    state.SystemId = "xH2et?+UL/\xe4";
    state.BpdVersion = u"78"_s;
    state.UpdVersion = u"3"_s;
    state.Parameters = {QByteArray("HIBPA:5:3:4+78+280:10020030+Bank?+'\0\xff", 38), "HIKAZS:6:5:4+1+1+1+90:J:N"};
    state.AllowedFunctions = {u"942"_s, u"920"_s};
    state.Accounts = {Account(u"1234567890"_s, u"Giro"_s), Account(u"77"_s, u"Tagesgeld"_s)};
    TanVerfahrenItem app;
    app.SecurityFunction = u"942"_s;
    app.TanProcess = u"2"_s;
    app.SegmentVersion = 7;
    app.ZkaName = u"Decoupled"_s;
    app.Name = u"Freigabe"_s;
    app.MediaNameRequired = u"2"_s;
    app.MostPolls = 30;
    app.WaitBeforeFirst = 5;
    app.WaitBeforeNext = 2;
    app.IsManualAllowed = false;
    TanVerfahrenItem sms = app;
    sms.SecurityFunction = u"920"_s;
    sms.Name = u"SMS"_s;
    state.Methods = {app, sms};
    state.Method = app;
    state.Media = {u"Handy"_s, u"Tablet"_s};
    state.Medium = u"Handy"_s;
    return state;
}

QString& Cell(cOnlineAccount& row, const char* column)
{
    const auto* const found = std::find_if(modAccountColumns::Names.begin(), modAccountColumns::Names.end(),
                                           [&](const char* name) { return qstrcmp(name, column) == 0; });
    return row.Values.at(static_cast<std::size_t>(found - modAccountColumns::Names.begin()));
}

struct cLoginBook : cTestBook
{
    cBankAccess Access{Tools};
};

cApproval Approval(int wait, bool isAutomatic, bool hasButton)
{
    cApproval approval;
    approval.WaitSeconds = wait;
    approval.IsAutomatic = isAutomatic;
    approval.HasButton = hasButton;
    return approval;
}

} // namespace

// What is kept of a login, and how the questions of a bank are put.
class testBankAccess final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_book.emplace(); }

    void EverythingComesBack()
    {
        cBankState state = State(u"Kunde:1"_s);
        QVERIFY(m_book->Access.Save(state));
        QCOMPARE(m_book->Access.Banks(), QList({state})); // a login without accounts is one
        QVERIFY(m_book->Access.Choose(state, state.Accounts));
        QCOMPARE(m_book->Access.Chosen(state), state.Accounts);
        QVERIFY(m_book->Access.SetLastFetch(state, state.Accounts[1], QDate(2026, 3, 1)));
        state.SystemId = "neu?'";
        state.HbciVersion = u"220"_s;
        QVERIFY(m_book->Access.Save(state));
        m_book->Settings->ResetAll();
        const QList<cOnlineAccount> rows = m_book->Data.GetOnlineAccounts();
        QCOMPARE(rows.size(), 2);
        for (cOnlineAccount row : rows) {
            QCOMPARE(Cell(row, "AccountLastSysID"), u"neu?'"_s);
            QCOMPARE(Cell(row, "AccountLastSysIDSync"), u"2026-03-15"_s);
            QCOMPARE(Cell(row, "AccountTANMediaName"), u"Handy"_s);
        }
        QCOMPARE(cSettings(m_book->Data).Get(modSettingKey::OnlineBank.Of(u"10020030"_s)), u"220"_s);

        m_book->Settings->Reload();
        const cBankAccess again(m_book->Tools);
        QCOMPARE(again.Banks(), QList({state}));
        QCOMPARE(again.Chosen(state), state.Accounts);
        QCOMPARE(again.LastFetch(state, state.Accounts[0]), QDate());
        QCOMPARE(again.LastFetch(state, state.Accounts[1]), QDate(2026, 3, 1));
        QVERIFY(m_book->Access.Choose(state, {state.Accounts[0]})); // given up, and taken up again
        QVERIFY(m_book->Access.Choose(state, state.Accounts));
        QCOMPARE(again.LastFetch(state, state.Accounts[1]), QDate());
    }

    void SeveralLogins()
    {
        const QList<cBankState> states{State(u"ERIKA"_s), State(u"erika"_s), State(u"jörg/2"_s)};
        for (const cBankState& state : states) {
            QVERIFY(m_book->Access.Save(state));
            QVERIFY(m_book->Access.Choose(state, {state.Accounts[0]}));
            QVERIFY(m_book->Access.SetLastFetch(state, state.Accounts[0], QDate(2026, 3, 1)));
        }
        QCOMPARE(m_book->Access.Banks(), states);
        cBankState old = states[1]; // the protocol is that of the bank code, what came with the other one is not
        old.HbciVersion = u"220"_s;
        QVERIFY(m_book->Access.Save(old));
        QCOMPARE(m_book->Access.Find(old.BankCode, old.UserId), old);
        old = *m_book->Access.Find(old.BankCode, states[0].UserId);
        QCOMPARE(old.HbciVersion + old.BpdVersion + old.UpdVersion, u"22000"_s);
        QVERIFY(m_book->Access.Save(states[1]));
        QCOMPARE(m_book->Access.Banks(), states);
        QVERIFY(m_book->Access.Remove(states[1].BankCode, states[1].UserId));
        QCOMPARE(m_book->Access.Banks(), QList({states[0], states[2]}));
        QVERIFY(m_book->Access.Remove(states[0].BankCode, states[0].UserId));
        QVERIFY(m_book->Access.Remove(states[2].BankCode, states[2].UserId));
        QVERIFY(m_book->Data.GetOnlineAccounts().isEmpty());
        const auto settings = m_book->Data.GetSettings();
        for (const auto& [name, value] : settings) {
            QVERIFY2(!modSettingKey::OnlineBank.Holds(name), qPrintable(name));
        }
    }

    void VersionNeedsItsContents_data()
    {
        const cTestRows<QString, QString, QString> row("Column", "Bpd", "Upd");
        row("untouched", u"AccountLimit"_s, u"78"_s, u"3"_s);
        row("another program got new parameters", u"AccountLastBPD"_s, u"0"_s, u"3"_s);
        row("another program got new accounts", u"AccountLastUPD"_s, u"78"_s, u"0"_s);
        row("record unreadable", {}, u"0"_s, u"0"_s);
    }

    void VersionNeedsItsContents()
    {
        QFETCH(QString, Column);
        const cBankState state = State(u"erika"_s);
        QVERIFY(m_book->Access.Save(state));
        QVERIFY(m_book->Access.Choose(state, state.Accounts));
        if (Column.isEmpty()) {
            const cSettingKey record = modSettingKey::OnlineBank.Of(u"10020030:6572696b61"_s);
            QVERIFY(m_book->Settings->Get(record).startsWith(u'{'));
            QVERIFY(m_book->Settings->Set(record, u"{"_s));
        }
        QList<cOnlineAccount> rows = m_book->Data.GetOnlineAccounts();
        for (cOnlineAccount& row : rows) {
            if (!Column.isEmpty()) {
                Cell(row, qPrintable(Column)) = u"79"_s;
            }
            QVERIFY(m_book->Data.ChangeOnlineAccount(row));
        }
        const std::optional<cBankState> found = m_book->Access.Find(state.BankCode, state.UserId);
        QVERIFY(found);
        QTEST(found->BpdVersion, "Bpd");
        QTEST(found->UpdVersion, "Upd");
        QCOMPARE(found->SystemId, state.SystemId);
        QCOMPARE(found->Url, state.Url);
    }

    // As another program may have left them, without anything beside them.
    void RowsOfAnOlderBook()
    {
        cOnlineAccount row;
        Cell(row, "AccountBLZ") = u"10020030"_s;
        Cell(row, "AccountNumber") = u"77"_s;
        Cell(row, "AccountCustomerID") = u"erika"_s;
        Cell(row, "AccountLastBPD") = u"78"_s;
        Cell(row, "AccountLastUPD") = u"3"_s;
        Cell(row, "AccountLastSysID") = u"ab?+c"_s;
        Cell(row, "AccountLastSync") = u"09.03.2026 08:15:00"_s;
        Cell(row, "AccountTanSecurityFunction") = u"942"_s;
        QVERIFY(m_book->Data.GetNewOnlineAccount(row));
        QVERIFY(m_book->Settings->Set(modSettingKey::OnlineBank.Of(u"10020030"_s), u"3.0"_s));
        const QList<cBankState> banks = cBankAccess(m_book->Tools).Banks();
        QCOMPARE(banks.size(), 1);
        QCOMPARE(banks[0].BpdVersion, u"0"_s);
        QCOMPARE(banks[0].UpdVersion, u"0"_s);
        QCOMPARE(banks[0].HbciVersion, u"300"_s);
        QCOMPARE(banks[0].SystemId, "ab?+c"_ba);
        QCOMPARE(banks[0].Method->SecurityFunction, u"942"_s);
        QCOMPARE(banks[0].Accounts.size(), 1);
        QCOMPARE(cBankAccess(m_book->Tools).LastFetch(banks[0], banks[0].Accounts[0]), QDate(2026, 3, 9));
    }

    void SubAccountsKeepTheirRows()
    {
        cBankState state = State(u"erika"_s);
        state.Accounts =
            QList<cBankAccount>(3, Account(u"77"_s, u"Konto"_s)); // the first one has an IBAN and no sub-account
        state.Accounts[1].SubNumber = u"01"_s;
        state.Accounts[1].Iban.clear();
        state.Accounts[2].Iban.clear();
        state.Accounts[2].SubNumber = u"02"_s;
        QVERIFY(m_book->Access.Save(state));
        QVERIFY(m_book->Access.Choose(state, {state.Accounts[1]}));
        QCOMPARE(m_book->Access.Chosen(state), QList({state.Accounts[1]}));
        QVERIFY(m_book->Access.SetLastFetch(state, state.Accounts[1], QDate(2026, 3, 1)));
        QCOMPARE(m_book->Access.LastFetch(state, state.Accounts[0]), QDate());
        for (const qsizetype i : {0, 1, 2}) {
            QVERIFY(m_book->Access.Assign(state, state.Accounts[i], u"Konto %1"_s.arg(i)));
        }
        for (const qsizetype i : {0, 1, 2}) {
            QCOMPARE(m_book->Access.BookAccountOf(state, state.Accounts[i]), u"Konto %1"_s.arg(i));
        }
        QVERIFY(m_book->Settings->Get(modSettingKey::BankNumber.Of(u"77"_s)).isEmpty()); // it is that of none
    }

    void UndoTakesBackRowsOnly()
    {
        cBankState state = State(u"erika"_s);
        QVERIFY(m_book->Access.Save(state));
        QVERIFY(m_book->Access.Choose(state, state.Accounts));
        {
            const cUndoStep step(m_book->Data, u"Umsätze abgerufen"_s);
            m_book->Stage({}, QDate(2026, 3, 1), 0);
            QVERIFY(m_book->Access.SetLastFetch(state, state.Accounts[0], QDate(2026, 3, 15)));
        }
        state.SystemId = "neu";
        state.BpdVersion = u"79"_s;
        QVERIFY(m_book->Access.Save(state));
        QVERIFY(m_book->Access.Choose(state, {state.Accounts[0]}));
        QCOMPARE(m_book->Data.Journal().UndoName(), u"Umsätze abgerufen"_s);
        QVERIFY(m_book->Data.Journal().Undo());
        QVERIFY(m_book->Data.GetImportEntries().isEmpty());
        QCOMPARE(m_book->Access.Find(state.BankCode, state.UserId), state);
        QCOMPARE(m_book->Access.Chosen(state), QList({state.Accounts[0]}));
        QCOMPARE(m_book->Access.LastFetch(state, state.Accounts[0]),
                 QDate()); // else the days would be missing for ever
    }

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

private:
    std::optional<cLoginBook> m_book;
};

TEST_CLASS(testBankAccess, QCoreApplication)
#include "testBankAccess.moc"
