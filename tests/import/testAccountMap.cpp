#include "cImportBook.h"
#include "import/read/modAccountNumber.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"

using namespace Qt::Literals::StringLiterals;

class testAccountMap : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SameAccount_data()
    {
        const cTestRows<QString, QString, QString, bool> row("number", "bankCode", "other", "isSame");
        const QString iban = u"DE81100200300001234567"_s;
        row("blanks and case", u"de81 1002 0030 0001 2345 67"_s, {}, iban, true);
        row("leading zeros", u"0001234567"_s, {}, u"1234567"_s, true);
        row("IBAN and number", iban, {}, u"1234567"_s, true);
        row("number and IBAN, bank known", u"1234567"_s, u"10020030"_s, iban, true);
        row("number of another bank", u"1234567"_s, u"99920030"_s, iban, false);
        row("BIC says nothing", u"1234567"_s, u"HOHEDE01XXX"_s, iban, true);
        row("foreign IBAN", u"CH8110020030000123456"_s, {}, u"1234567"_s, false);
        row("zeros are no account", u"0000"_s, {}, u"DE81100200300000000000"_s, false);
        row("other number", u"1234568"_s, {}, iban, false);
    }

    void SameAccount()
    {
        QFETCH(QString, number);
        QFETCH(QString, bankCode);
        QFETCH(QString, other);
        QTEST(modAccountNumber::IsSame(number, bankCode, other), "isSame");
    }

    void AsksOnce()
    {
        cImportBook book;
        QVERIFY(book.Accounts.AccountOf(u"123"_s).isEmpty());
        QVERIFY(book.Accounts.Ask(u"123"_s, book.User).isEmpty());   // the user gives up
        QCOMPARE(book.User.LastChoice.Proposal, u"Bankkonto 123"_s); // two accounts, and nothing speaks for either
        QVERIFY(book.User.LastChoice.Items.contains(u"Bargeld"_s));
        book.User.Choices = {u"Sparkonto"_s};
        QCOMPARE(book.Accounts.Ask(u"123"_s, book.User, u"Extra <Konto>"_s), u"Sparkonto"_s);
        QVERIFY(book.User.Asked.constLast().contains(u"123 (Extra <Konto>)?"));
        QCOMPARE(book.User.LastChoice.Proposal, u"Extra Konto"_s);
        QCOMPARE(book.Accounts.Ask(u"123"_s, book.User), u"Sparkonto"_s);
        QCOMPARE(book.User.Asked.size(), 2);
        QCOMPARE(book.Accounts.NameFor(u"9876543"_s, u"sparkonto"_s), u"sparkonto 6543"_s); // that is another one
        QCOMPARE(book.Settings->Get(modSettingKey::BankNumber.Of(u"123"_s)), u"Sparkonto"_s);
        QVERIFY(book.Accounts.Assign(u"5"_s, u"Girokonto"_s));
        QCOMPARE(book.Accounts.Proposal(u"4"_s), QString()); // every account of a bank has its number
        QCOMPARE(book.Accounts.Proposal(u"DE81100200300000000123"_s), u"Sparkonto"_s);
        QCOMPARE(book.Accounts.Unknown({u"123"_s, u"4"_s}), QStringList(u"4"_s));
    }

    void ProposesWhatSpeaksForOne_data()
    {
        // rows: "day amount name purpose", all of March 2026
        const cTestRows<QString, QString, QString, QString> row("number", "rows", "balance", "account");
        const QString iban = u"DE02100200300001234567"_s;
        row("nothing", iban, u"3 -500 A"_s, {}, {});
        row("many payees", iban, u"3 -500 A;4 -600 B;5 -700 C;6 900 D"_s, {}, u"Girokonto"_s);
        row("entries made by hand", iban, u"9 -1000 A;13 -2000 A"_s, {}, u"Sparkonto"_s);
        row("one equal amount is chance", iban, u"9 -1000 A"_s, {}, {});
        row("balance", iban, u"20 -1 A"_s, u"2026-03-15=-3000"_s, u"Sparkonto"_s);
        row("start balance of a later day", iban, u"20 -1 A"_s, u"2026-03-15=70000"_s, u"Girokonto"_s);
        row("many payees, and the only one is called like the bank", iban, u"3 -500 A;4 -600 B;5 -700 C;6 900 D"_s, {},
            u"Volksbank"_s);
        row("many purposes", iban, u"3 -500  Miete;4 -600  Strom;5 -700  Einkauf;6 900  Lohn"_s, {}, u"Girokonto"_s);
        row("one purpose of many months", iban, u"3 5  Zins1;4 6  Zins2;5 7  Zins3;6 9  Zins4"_s, {}, {});
        row("a card is no current account", u"4711XXXXXXXX1234"_s, u"3 -500 A;4 -600 B;5 -700 C;6 900 D"_s, {}, {});
    }

    void ProposesWhatSpeaksForOne()
    {
        QFETCH(const QString, number);
        QFETCH(const QString, rows);
        cImportBook book;
        for (const int day : {10, 12}) {
            book.Add([&](cEntryItem& entry) {
                entry.EntryAccount = u"Sparkonto"_s;
                entry.EntryDate = QDate(2026, 3, day);
                entry.EntryValue = (day - 9) / 2 * 1000 + 1000;
            });
        }
        QVERIFY(book.Data.SetStartGuthaben(u"Girokonto"_s, 70000, QDate(2026, 3, 31)));
        for (const QString& text : rows.split(u';')) {
            const QStringList parts = text.split(u' ');
            cImportEntry row =
                BankRow(number, QDate(2026, 3, parts.at(0).toInt()), parts.at(1).toInt(), parts.at(2), parts.value(3));
            QVERIFY(book.Hive.Add(row));
        }
        if (QByteArray(QTest::currentDataTag()).endsWith("like the bank")) {
            cTemplateItem giro = book.Data.FindAccount(u"Girokonto"_s).value_or(cTemplateItem());
            giro.TemplateName = u"Volksbank"_s;
            QVERIFY(book.Data.ChangeTemplate(giro));
        }
        QFETCH(const QString, balance);
        book.Settings->Set(modSettingKey::BankBalances.Of(number), balance);
        QTEST(book.Accounts.Proposal(number), "account");
    }

    // Of the accounts at a bank one has no number yet.
    void ProposesTheOnlyOneWithoutNumber()
    {
        cImportBook book;
        QVERIFY(book.Accounts.Assign(u"123"_s, u"Girokonto"_s));
        QCOMPARE(book.Accounts.Proposal(u"DE02100200300001234567"_s), QString()); // nobody has used the other
        QVERIFY(book.Data.SetStartGuthaben(u"Sparkonto"_s, 0, QDate(2026, 3, 31)));
        QCOMPARE(book.Accounts.Proposal(u"DE02100200300001234567"_s), u"Sparkonto"_s);
        QCOMPARE(book.Accounts.Proposal(u"4711XXXXXXXX1234"_s), QString());
        for (const QString& name : {u"A"_s, u"B"_s, u"C"_s, u"D"_s}) { // many payees: a second current account
            cImportEntry row = BankRow(u"9"_s, {}, 0, name);
            QVERIFY(book.Hive.Add(row));
        }
        QCOMPARE(book.Accounts.Proposal(u"9"_s), QString());
    }

    void ProposesForAFileWithoutNumber()
    {
        cImportBook book;
        const cImportEntryList rows{BankRow({}, {}, -100, u"Kiosk"_s)};
        QCOMPARE(book.Accounts.ProposalFor(rows), u"Girokonto"_s);
        cImportEntry known = BankRow(u"123"_s, {}, -200, u"Kiosk"_s);
        QVERIFY(book.Hive.Add(known));
        QVERIFY(book.Accounts.Assign(u"123"_s, u"Sparkonto"_s));
        QCOMPARE(book.Accounts.ProposalFor(rows), u"Sparkonto"_s);
    }

    void AccountWithoutNumberLendsItsName()
    {
        cImportBook book;
        QCOMPARE(book.Accounts.NumberMeant(u" bargeld "_s), u"Bargeld"_s);
        QCOMPARE(book.Accounts.AssignNames({u"Bargeld"_s, u"123"_s}), QStringList(u"Bargeld"_s));
        QCOMPARE(book.Accounts.AccountOf(u"Bargeld"_s), u"Bargeld"_s);
        QVERIFY(book.Accounts.AccountOf(u"123"_s).isEmpty());
        QVERIFY(book.Accounts.Assign(u"123"_s, u"Girokonto"_s));
        QCOMPARE(book.Accounts.NumberMeant(u"Girokonto"_s), u"123"_s);
        QCOMPARE(book.Accounts.NumberMeant(u"9"_s), u"9"_s);
    }

    void AddsNewAccount()
    {
        cImportBook book;
        book.User.Choices = {u" Konto <123> "_s};
        QCOMPARE(book.Accounts.Ask(u"123"_s, book.User), u"Konto 123"_s);
        QCOMPARE(book.Data.FindAccount(u"Konto 123"_s)->TemplateCategory, u"Bankkonten"_s);
        QCOMPARE(modTemplate::AccountNames(book.Data.GetTemplates()).value(2), u"Konto 123"_s); // behind its group
        QCOMPARE(book.Accounts.Proposal(u"12"_s), u"Konto 123"_s);                              // named like the number
        QVERIFY(!book.Accounts.Assign(u"9"_s, u" <> "_s));
        QVERIFY(!book.Accounts.Assign(u"9"_s, u"alle <Konten>"_s)); // could not be looked at alone
        QVERIFY(book.Accounts.Assign(u"9"_s, u"Omas & Opas Konto"_s));
        QVERIFY(book.Accounts.Assign(u"10"_s, u"omas Opas Konto"_s));
        QCOMPARE(book.Accounts.AccountOf(u"10"_s), u"Omas  Opas Konto"_s);
    }

    void ForgetsAccountsThatAreGone()
    {
        cImportBook book;
        QVERIFY(book.Accounts.Assign(u"123"_s, u"Sparkonto"_s));
        const cImportEntry row = BankRow(u"123"_s, {}, 0, {}, {}, u"123"_s);
        QCOMPARE(book.Accounts.getAssignedAccount(row)->TemplateName, u"Sparkonto"_s);
        QCOMPARE(book.Accounts.getAssignedAccountTo(row)->TemplateName, u"Sparkonto"_s);
        QVERIFY(book.Data.DeleteTemplate(book.Data.FindAccount(u"Sparkonto"_s)->ID));
        QVERIFY(book.Accounts.AccountOf(u"123"_s).isEmpty());
        QVERIFY(!book.Accounts.getAssignedAccount(row) && !book.Accounts.getAssignedAccountTo(row));
    }
};

TEST_CLASS(testAccountMap, QCoreApplication)
#include "testAccountMap.moc"
