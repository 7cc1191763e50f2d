#include "model/bank/cOnlineAccount.h"
#include "model/modSettingKey.h"
#include "store/cUndoStep.h"
#include "store/modAccountColumns.h"
#include "support/cTestClass.h"
#include "support/cTestRows.h"
#include "support/testBook.h"
#include "views/bank/cBankAccess.h"

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

} // namespace

class testBankAccess final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EverythingComesBack()
    {
        cTestBook book;
        cBankState state = State(u"Kunde:1"_s);
        cBankAccess access(book.Tools);
        QVERIFY(access.Save(state));
        QCOMPARE(access.Banks(), QList({state})); // a login without accounts is one
        QVERIFY(access.Choose(state, state.Accounts));
        QCOMPARE(access.Chosen(state), state.Accounts);
        QVERIFY(access.SetLastFetch(state, state.Accounts[1], QDate(2026, 3, 1)));
        state.SystemId = "neu?'";
        state.HbciVersion = u"220"_s;
        QVERIFY(access.Save(state));
        book.Settings->ResetAll();
        const QList<cOnlineAccount> rows = book.Data.GetOnlineAccounts();
        QCOMPARE(rows.size(), 2);
        for (cOnlineAccount row : rows) {
            QCOMPARE(Cell(row, "AccountLastSysID"), u"neu?'"_s);
            QCOMPARE(Cell(row, "AccountLastSysIDSync"), u"2026-03-15"_s);
            QCOMPARE(Cell(row, "AccountTANMediaName"), u"Handy"_s);
        }
        QCOMPARE(cSettings(book.Data).Get(modSettingKey::OnlineBank.Of(u"10020030"_s)), u"220"_s);

        book.Settings->Reload();
        const cBankAccess again(book.Tools);
        QCOMPARE(again.Banks(), QList({state}));
        QCOMPARE(again.Chosen(state), state.Accounts);
        QCOMPARE(again.LastFetch(state, state.Accounts[0]), QDate());
        QCOMPARE(again.LastFetch(state, state.Accounts[1]), QDate(2026, 3, 1));
        QVERIFY(access.Choose(state, {state.Accounts[0]})); // given up, and taken up again
        QVERIFY(access.Choose(state, state.Accounts));
        QCOMPARE(again.LastFetch(state, state.Accounts[1]), QDate());
    }

    void SeveralLogins()
    {
        cTestBook book;
        cBankAccess access(book.Tools);
        const QList<cBankState> states{State(u"ERIKA"_s), State(u"erika"_s), State(u"jörg/2"_s)};
        for (const cBankState& state : states) {
            QVERIFY(access.Save(state));
            QVERIFY(access.Choose(state, {state.Accounts[0]}));
            QVERIFY(access.SetLastFetch(state, state.Accounts[0], QDate(2026, 3, 1)));
        }
        QCOMPARE(access.Banks(), states);
        cBankState old = states[1]; // the protocol is that of the bank code, what came with the other one is not
        old.HbciVersion = u"220"_s;
        QVERIFY(access.Save(old));
        QCOMPARE(access.Find(old.BankCode, old.UserId), old);
        old = *access.Find(old.BankCode, states[0].UserId);
        QCOMPARE(old.HbciVersion + old.BpdVersion + old.UpdVersion, u"22000"_s);
        QVERIFY(access.Save(states[1]));
        QCOMPARE(access.Banks(), states);
        QVERIFY(access.Remove(states[1].BankCode, states[1].UserId));
        QCOMPARE(access.Banks(), QList({states[0], states[2]}));
        QVERIFY(access.Remove(states[0].BankCode, states[0].UserId));
        QVERIFY(access.Remove(states[2].BankCode, states[2].UserId));
        QVERIFY(book.Data.GetOnlineAccounts().isEmpty());
        const auto settings = book.Data.GetSettings();
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
        cTestBook book;
        cBankAccess access(book.Tools);
        const cBankState state = State(u"erika"_s);
        QVERIFY(access.Save(state));
        QVERIFY(access.Choose(state, state.Accounts));
        if (Column.isEmpty()) {
            const cSettingKey record = modSettingKey::OnlineBank.Of(u"10020030:6572696b61"_s);
            QVERIFY(book.Settings->Get(record).startsWith(u'{'));
            QVERIFY(book.Settings->Set(record, u"{"_s));
        }
        QList<cOnlineAccount> rows = book.Data.GetOnlineAccounts();
        for (cOnlineAccount& row : rows) {
            if (!Column.isEmpty()) {
                Cell(row, qPrintable(Column)) = u"79"_s;
            }
            QVERIFY(book.Data.ChangeOnlineAccount(row));
        }
        const std::optional<cBankState> found = access.Find(state.BankCode, state.UserId);
        QVERIFY(found);
        QTEST(found->BpdVersion, "Bpd");
        QTEST(found->UpdVersion, "Upd");
        QCOMPARE(found->SystemId, state.SystemId);
        QCOMPARE(found->Url, state.Url);
    }

    // As another program may have left them, without anything beside them.
    void RowsOfAnOlderBook()
    {
        cTestBook book;
        cOnlineAccount row;
        Cell(row, "AccountBLZ") = u"10020030"_s;
        Cell(row, "AccountNumber") = u"77"_s;
        Cell(row, "AccountCustomerID") = u"erika"_s;
        Cell(row, "AccountLastBPD") = u"78"_s;
        Cell(row, "AccountLastUPD") = u"3"_s;
        Cell(row, "AccountLastSysID") = u"ab?+c"_s;
        Cell(row, "AccountLastSync") = u"09.03.2026 08:15:00"_s;
        Cell(row, "AccountTanSecurityFunction") = u"942"_s;
        QVERIFY(book.Data.GetNewOnlineAccount(row));
        QVERIFY(book.Settings->Set(modSettingKey::OnlineBank.Of(u"10020030"_s), u"3.0"_s));
        const QList<cBankState> banks = cBankAccess(book.Tools).Banks();
        QCOMPARE(banks.size(), 1);
        QCOMPARE(banks[0].BpdVersion, u"0"_s);
        QCOMPARE(banks[0].UpdVersion, u"0"_s);
        QCOMPARE(banks[0].HbciVersion, u"300"_s);
        QCOMPARE(banks[0].SystemId, "ab?+c"_ba);
        QCOMPARE(banks[0].Method->SecurityFunction, u"942"_s);
        QCOMPARE(banks[0].Accounts.size(), 1);
        QCOMPARE(cBankAccess(book.Tools).LastFetch(banks[0], banks[0].Accounts[0]), QDate(2026, 3, 9));
    }

    void SubAccountsKeepTheirRows()
    {
        cTestBook book;
        cBankAccess access(book.Tools);
        cBankState state = State(u"erika"_s);
        state.Accounts =
            QList<cBankAccount>(3, Account(u"77"_s, u"Konto"_s)); // the first one has an IBAN and no sub-account
        state.Accounts[1].SubNumber = u"01"_s;
        state.Accounts[1].Iban.clear();
        state.Accounts[2].Iban.clear();
        state.Accounts[2].SubNumber = u"02"_s;
        QVERIFY(access.Save(state));
        QVERIFY(access.Choose(state, {state.Accounts[1]}));
        QCOMPARE(access.Chosen(state), QList({state.Accounts[1]}));
        QVERIFY(access.SetLastFetch(state, state.Accounts[1], QDate(2026, 3, 1)));
        QCOMPARE(access.LastFetch(state, state.Accounts[0]), QDate());
        for (const qsizetype i : {0, 1, 2}) {
            QVERIFY(access.Assign(state, state.Accounts[i], u"Konto %1"_s.arg(i)));
        }
        for (const qsizetype i : {0, 1, 2}) {
            QCOMPARE(access.BookAccountOf(state, state.Accounts[i]), u"Konto %1"_s.arg(i));
        }
        QVERIFY(book.Settings->Get(modSettingKey::BankNumber.Of(u"77"_s)).isEmpty()); // it is that of none
    }

    void UndoTakesBackRowsOnly()
    {
        cTestBook book;
        cBankAccess access(book.Tools);
        cBankState state = State(u"erika"_s);
        QVERIFY(access.Save(state));
        QVERIFY(access.Choose(state, state.Accounts));
        {
            const cUndoStep step(book.Data, u"Umsätze abgerufen"_s);
            book.Stage({}, QDate(2026, 3, 1), 0);
            QVERIFY(access.SetLastFetch(state, state.Accounts[0], QDate(2026, 3, 15)));
        }
        state.SystemId = "neu";
        state.BpdVersion = u"79"_s;
        QVERIFY(access.Save(state));
        QVERIFY(access.Choose(state, {state.Accounts[0]}));
        QCOMPARE(book.Data.Journal().UndoName(), u"Umsätze abgerufen"_s);
        QVERIFY(book.Data.Journal().Undo());
        QVERIFY(book.Data.GetImportEntries().isEmpty());
        QCOMPARE(access.Find(state.BankCode, state.UserId), state);
        QCOMPARE(access.Chosen(state), QList({state.Accounts[0]}));
        QCOMPARE(access.LastFetch(state, state.Accounts[0]), QDate()); // else the days would be missing for ever
    }
};

TEST_CLASS(testBankAccess, QCoreApplication)
#include "testBankAccess.moc"
