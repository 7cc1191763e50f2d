#include "tools/screenshots/takeBankSetup.h"

#include "support/bankMonth.h"
#include "testbank/cTestBank.h"
#include "testbank/cTestBankUser.h"
#include "testbank/cTestHttps.h"
#include "tools/screenshots/cCamera.h"
#include "tools/screenshots/cDemoBook.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/cBankListModel.h"
#include "views/bank/cBankSetup.h"
#include "views/statement/cStatementDesk.h"
#include "views/statement/cStatementFiles.h"
#include "windows/bank/cBankSearchPage.h"
#include "windows/bank/frmAbruf.h"
#include "windows/bank/frmBankAssistent.h"
#include "windows/bank/frmBankzugaenge.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

namespace {

cBankProfile Profile()
{
    cBankProfile profile;
    profile.Name = "Testbank Musterstadt";
    profile.Methods = {
        {.Function = "912", .Name = "chipTAN optisch"},
        {.Function = "946", .Version = 7, .Technical = "Decoupled", .Zka = "Decoupled", .Name = "TestApp"},
        {.Function = "913", .Name = "SMS", .MediumRequired = "2"}};
    profile.Media = {"Mobiltelefon Erika", "Tablet"};
    profile.Accounts = {
        {.Number = "1234567", .Iban = "DE02100200300001234567", .Product = "Privatgiro Komfort"},
        {.Number = "1234568", .Iban = "DE03100200300001234568", .Product = "Wertpapierkonto", .Orders = "HKSAL:1"},
        {.Number = "1234569", .Iban = "DE04100200300001234569", .Product = "Tagesgeld"}};
    return profile;
}

// Before and after; one of the accounts fails.
bool TakeFetch(cCamera& camera, cDemoBook& scene, cTestBank& bank, const cBankFetch::cPorts& ports)
{
    cBankMonth month = cBankMonth::Example();
    for (cBankBooking& booking : month.Bookings) {
        booking.Day = sceneDay.addDays(-booking.Day.day() % 20);
    }
    bank.Profile.Accounts[0].Pages = {month.Mt940().toLatin1()};
    bank.Profile.Accounts[2].Refusal = "9210::Konto zur Zeit nicht verfügbar.";
    cStatementDesk desk(scene.Tools());
    cBankFetch fetch(scene.Tools(), desk.Files(), ports);
    frmAbruf window(fetch);
    window.show();
    camera.Take(window, u"abruf"_s);
    camera.TakeDialog(u"startguthaben-frage"_s, [&] { window.Start(); });
    camera.Take(window, u"abruf-fertig"_s);
    return fetch.Lines().size() > 1;
}

} // namespace

bool TakeBankSetup(cCamera& camera)
{
    cDemoBook scene;
    if (!scene.IsReady()) {
        return false;
    }
    cTestBank bank(Profile());
    cTestHttps https(bank);
    cTestBankUser customer(bank);
    const cBankDirectory directory(scene.Shell);
    cBankSetup setup({scene.Tools(), directory, https, customer, u"1.0.0"_s});
    const auto take = [&](const QString& name, bool isLogin = false) {
        if (isLogin) {
            cBankListModel banks(scene.Tools());
            frmBankzugaenge list(banks);
            list.show();
            camera.Take(list, name);
            return;
        }
        frmBankAssistent window(setup, sceneDay);
        window.show();
        camera.Take(window, name);
    };
    take(u"bankzugaenge-leer"_s, true);
    {
        frmBankAssistent window(setup, sceneDay);
        window.show();
        window.findChild<cBankSearchPage*>()->findChild<QLineEdit*>()->setText(u"sparkasse köln"_s);
        camera.Take(window, u"bankassistent-bank"_s);
        window.findChild<cBankSearchPage*>()->findChild<QLineEdit*>()->setText(u"12345678"_s);
        window.findChild<cBankSearchPage*>()->findChild<QCheckBox*>()->setChecked(true);
        const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->isDefault()) {
                button->click(); // there is no address
            }
        }
        camera.Take(window, u"bankassistent-erweitert"_s);
    }
    setup.SetUrl(https.Url);
    bool isDone = setup.Next();
    take(u"bankassistent-anmeldung"_s);
    (void)setup.Next(); // no login
    take(u"bankassistent-anmeldung-fehlt"_s);
    setup.SetUserId(u"testuser"_s);
    setup.SetProductId(QString::fromLatin1(bank.Profile.Product));
    isDone = setup.Next() && isDone;
    take(u"bankassistent-verfahren"_s);
    setup.ChooseMethod(2);
    (void)setup.Next(); // the medium is to be chosen
    take(u"bankassistent-medium"_s);
    setup.ChooseMedium(1);
    isDone = setup.Next() && isDone;
    take(u"bankassistent-konten"_s);
    isDone = setup.Next() && isDone;
    take(u"bankzugaenge"_s, true);
    return isDone && TakeFetch(camera, scene, bank, {https, customer, u"1.0.0"_s});
}
