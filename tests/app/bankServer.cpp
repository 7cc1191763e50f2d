#include "app/machine/cSystemClock.h"
#include "cTlsServer.h"
#include "support/bankMonth.h"
#include "testbank/cTestBank.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr const char* help = R"(bankServer [none|tan|approval]

The bank of the tests on a port of this machine, for trying the programs by hand. Prints its address, then what is
asked of it, until it is ended.

  none      no TAN (as without an argument)
  tan       a TAN for the login and for the bookings: 777666
  approval  the login is approved in an app, at the third question

Bank code 12345678, login testuser, PIN 12345, product PRODUKTID0123456789012345. The programs have to trust
tests/data/tls/authority.pem: add it to a copy of /etc/ssl/certs and mount that over it in a namespace of its own.
)";

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString kind = QCoreApplication::arguments().value(1, u"none"_s);
    if (kind != "none"_L1 && kind != "tan"_L1 && kind != "approval"_L1) {
        const bool isWanted = kind == "--help"_L1 || kind == "-h"_L1;
        std::fputs(help, isWanted ? stdout : stderr);
        return isWanted ? 0 : 2;
    }
    cBankProfile profile;
    profile.Name = "Testbank";
    profile.Parameters.append("HICAZS:1+1+1+0+90:N:N:urn?:iso?:std?:iso?:20022?:tech?:xsd?:camt.052.001.08");
    cBankMonth month = cBankMonth::Example();
    for (cBankBooking& booking : month.Bookings) {
        booking.Day = cSystemClock().Today().addDays(booking.Day.day() - 31);
    }
    profile.Accounts.append({.Number = "1234567",
                             .Iban = "DE02100200300001234567",
                             .Product = "Privatgiro",
                             .Orders = "HKKAZ:1+HKCAZ:1+HKSAL:1",
                             .Pages = {month.Mt940().toLatin1()},
                             .Camt = {month.Camt()}});
    if (kind == "tan"_L1) {
        profile.AskedTans = {{"HKIDN", {}}, {"HKKAZ", {}}};
    } else if (kind == "approval"_L1) {
        profile.Methods = {
            {.Function = "946", .Version = 7, .Technical = "Decoupled", .Zka = "Decoupled", .Name = "App"}};
        profile.AskedTans = {
            {"HKIDN", {.Challenge = "Bitte in der App freigeben.", .Code = "3955::Freigabe in der App.", .NotYet = 2}}};
    }
    cTestBank bank(profile);
    bank.IsLenient = true;
    const cTlsServer server(u"bank"_s, [&](const QByteArray& body) {
        const qsizetype told = bank.Journal.size();
        const QByteArray answer = bank.Answer(body);
        for (const QString& line : bank.Journal.mid(told) + bank.Complaints()) {
            std::printf("%s\n", qPrintable(line));
        }
        std::fflush(stdout);
        return cTlsServer::Page(answer);
    });
    std::printf("%s\n", qPrintable(server.Url()));
    std::fflush(stdout);
    return QCoreApplication::exec();
}
