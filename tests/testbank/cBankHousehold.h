#pragma once

#include "fints/cBankLog.h"
#include "fints/HBCIBusiness.h"
#include "support/bankMonth.h"
#include "support/testBook.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestBankUser.h"
#include "testbank/cTestHttps.h"
#include "views/bank/cBankAccess.h"

// A household on the 15th of March with an account at the bank of the tests, set up as the assistant leaves it. The
// bank offers its statements in both formats and takes the first.
struct cHousehold : cTestBook
{
    cHousehold()
    {
        Clock.Day = QDate(2026, 3, 15);
        cBankState state;
        state.BankCode = QStringLiteral("12345678");
        state.UserId = QStringLiteral("testuser");
        state.Url = Https.Url;
        state.Bic = QStringLiteral("TESTDEFFXXX");
        const QString product = QString::fromLatin1(Bank.Profile.Product);
        cBankLog log;
        const cSecret pin(u"12345");
        HBCIBusiness business({Https, Customer, Clock, log, product, QStringLiteral("1.00")}, state, pin);
        if (!business.Discover() || !business.Refresh()) {
            qFatal("%s", qPrintable(business.ErrorText()));
        }
        const bool isKept = Access.SetProductId(product) && Access.Save(state) && Access.Choose(state, state.Accounts)
            && Access.Assign(state, state.Accounts.constFirst(), QStringLiteral("Girokonto"));
        if (!isKept) {
            qFatal("login not kept");
        }
        Bank.Journal.clear();
    }

    // What the bank has of the account, the text cut in the middle, where a page ends.
    void Tell(const cBankMonth& month)
    {
        cOfferedAccount& account = Bank.Profile.Accounts.first();
        const QByteArray text = month.Mt940().toLatin1();
        account.Pages = {text.left(text.size() / 2), text.mid(text.size() / 2)};
        account.Camt = {month.Camt()};
        const qint64 cents = month.Closing();
        account.Balance = (cents < 0 ? "D:" : "C:") + QByteArray::number(qAbs(cents) / 100) + ','
            + QByteArray::number(qAbs(cents) % 100).rightJustified(2, '0')
            + ":EUR:" + month.Bookings.last().Day.toString(u"yyyyMMdd").toLatin1();
    }

    cTestBank Bank{Profile()};
    cTestHttps Https{Bank};
    cTestBankUser Customer{Bank};
    cBankAccess Access{Tools};

private:
    [[nodiscard]] static cBankProfile Profile()
    {
        cBankProfile profile;
        profile.Parameters.append("HICAZS:1+1+1+0+90:N:N:urn?:iso?:std?:iso?:20022?:tech?:xsd?:camt.052.001.08");
        profile.Accounts.append(
            {.Number = "1234567", .Iban = "DE02100200300001234567", .Orders = "HKKAZ:1+HKCAZ:1+HKSAL:1"});
        return profile;
    }
};
