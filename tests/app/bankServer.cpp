#include "app/machine/cSystemClock.h"
#include "cTlsServer.h"
#include "support/bankMonth.h"
#include "testbank/cTestBank.h"

#include <QCoreApplication>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

// The bank of the tests on a port of this machine, for trying the programs by hand: prints its address and what is
// asked of it. The programs have to trust tests/data/tls/authority.pem for that. Login testuser, PIN 12345, TAN 777666,
// product PRODUKTID0123456789012345.
//   bankServer [none|tan|approval]
int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QString kind = QCoreApplication::arguments().value(1);
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
