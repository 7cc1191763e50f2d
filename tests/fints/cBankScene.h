#pragma once

#include "base/cSecret.h"
#include "fints/cBankLog.h"
#include "fints/HBCIBusiness.h"
#include "support/each.h"
#include "support/fakes.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestBankUser.h"
#include "testbank/cTestHttps.h"

// A bank with a customer who has two accounts there, and the program between them.
class cBankScene
{
public:
    explicit cBankScene(cBankProfile profile = {}) : Bank(std::move(profile))
    {
        if (Bank.Profile.Accounts.isEmpty()) {
            Bank.Profile.Accounts.append({.Number = "111", .Iban = "DE11", .Pages = {Statement("1,11")}});
            Bank.Profile.Accounts.append({.Number = "222", .Iban = "DE22", .Product = "Tagesgeld"});
        }
        State.BankCode = QStringLiteral("12345678");
        State.UserId = QStringLiteral("testuser");
        State.Url = Https.Url;
    }

    // A page with one statement and one booking of this amount.
    [[nodiscard]] static QByteArray Statement(const QByteArray& amount, const QByteArray& purpose = "Brot")
    {
        return "\r\n:20:STARTUMS\r\n:25:12345678/111\r\n:28C:0\r\n:60F:C260201EUR10,00\r\n:61:2602020202D" + amount
            + "NMSC\r\n:86:177?00LASTSCHRIFT?20" + purpose + "\r\n:62F:C260202EUR9,00\r\n-";
    }

    // The procedure of a bank's app, and the wish for an approval in it.
    [[nodiscard]] static cOfferedMethod App(const QByteArray& polls)
    {
        return {
            .Function = "946", .Version = 7, .Technical = "App", .Zka = "DECOUPLEDPush", .Name = "App", .Polls = polls};
    }
    [[nodiscard]] static cAskedTan Approval(int notYet, const QByteArray& refusal = {})
    {
        return {.Challenge = "Bitte <b>freigeben</b>",
                .Code = "3955::Freigabe in der App.",
                .NotYet = notYet,
                .Refusal = refusal};
    }

    // Finds and refreshes, as a set-up does; the journal and the run of approvals begin anew.
    [[nodiscard]] bool SetUp()
    {
        const bool isDone = Business.Discover() && Business.Refresh();
        Bank.Journal.clear();
        return isDone;
    }

    [[nodiscard]] QList<cFetchOrder> Orders() const
    {
        return Each(State.Accounts, [](const cBankAccount& account) {
            return cFetchOrder{.Account = account, .From = QDate(2026, 2, 1), .To = QDate(2026, 2, 28)};
        });
    }

    // "TAN wrong" and the like of the last operation, for comparing
    [[nodiscard]] eBankFault Fault() const { return Business.Failure().Fault; }

    cTestBank Bank;
    cTestHttps Https{Bank};
    cTestBankUser User{Bank};
    cFakeClock Clock;
    cBankLog Log;
    cBankState State;
    cSecret Pin{u"12345"};
    HBCIBusiness Business{{.Https = Https,
                           .User = User,
                           .Clock = Clock,
                           .Log = Log,
                           .ProductId = QStringLiteral("PRODUKTID0123456789012345"),
                           .ProductVersion = QStringLiteral("1.00")},
                          State,
                          Pin};
};
