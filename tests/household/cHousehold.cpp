#include "household/cHousehold.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

enum eAccount { Giro, Savings, Partner, Card };

QDate Workday(QDate day)
{
    return day.dayOfWeek() == Qt::Saturday ? day.addDays(2) : day.dayOfWeek() == Qt::Sunday ? day.addDays(1) : day;
}

} // namespace

qint64 cHousehold::cAccount::BalanceOn(QDate day) const
{
    qint64 cents = Opening;
    for (const cBooking& booking : Bookings) {
        cents += booking.Day <= day ? booking.Cents : 0;
    }
    return cents;
}

cHousehold::cHousehold(quint32 seed, QDate first, int months) : m_random(seed), m_first(first), m_months(months)
{
    const auto format = [this] { return static_cast<eFormat>(Dice(0, 2)); };
    m_accounts = {{u"Girokonto"_s, Iban(), format(), Dice(50000, 400000), {}},
                  {u"Sparkonto"_s, Iban(), format(), Dice(100000, 2000000), {}},
                  {u"Konto Mara"_s, Iban(), format(), Dice(10000, 200000), {}},
                  {u"Kreditkarte"_s, Iban(), eFormat::Csv, 0, {}}};
    AddIncome();
    AddHousing();
    AddInsurances();
    AddContracts();
    AddPurchases();
    AddEqualRows();
    AddCash();
    AddPayPal();
    AddRefunds();
    AddTransfers();
    AddCard();
    AddInterest();
    for (cAccount& account : m_accounts) {
        std::stable_sort(account.Bookings.begin(), account.Bookings.end(),
                         [](const cBooking& a, const cBooking& b) { return a.Day < b.Day; });
    }
    std::stable_sort(m_notes.begin(), m_notes.end(),
                     [](const cNote& a, const cNote& b) { return a.TypedOn < b.TypedOn; });
}

int cHousehold::Dice(int from, int to)
{
    return m_random.bounded(from, to + 1);
}

QString cHousehold::Iban()
{
    QString digits;
    for (int i = 0; i < 18; ++i) {
        digits += QString::number(Dice(0, 9));
    }
    qint64 rest = 0;
    const QString text = digits + u"131400"_s; // DE00
    for (const QChar digit : text) {
        rest = (rest * 10 + digit.digitValue()) % 97;
    }
    return u"DE"_s + QString::number(98 - rest).rightJustified(2, u'0') + digits;
}

void cHousehold::Book(int account, QDate day, const cPayee& payee, qint64 cents)
{
    if (day < m_first || day > Last()) {
        return;
    }
    const QString purpose = QString(payee.Purpose).replace(u"{0}"_s, day.toString(u"MM/yyyy"_s));
    m_accounts[account].Bookings.append({day, cents, payee.Name, payee.Iban, purpose, payee.Kind, payee.Category});
}

void cHousehold::Repeat(int account, const cPayee& payee, qint64 cents, int day, QDate from, QDate to, int step)
{
    for (QDate month(from.year(), from.month(), 1); month <= to; month = month.addMonths(step)) {
        const QDate planned(month.year(), month.month(), std::min(day, month.daysInMonth()));
        if (planned >= from && planned <= to) {
            Book(account, Workday(planned), payee, cents);
        }
    }
}

void cHousehold::Note(int account, QDate day, const cPayee& payee, qint64 cents, bool isMonthly)
{
    if (day >= m_first && day <= Last()) {
        m_notes.append({isMonthly ? m_first : day, day, cents, m_accounts.at(account).Name,
                        payee.Category.isEmpty() ? u"Allgemein"_s : payee.Category, payee.Name, isMonthly});
    }
}

void cHousehold::AddIncome()
{
    const cPayee employer{u"Lindental Maschinenbau GmbH"_s, Iban(), u"LOHN / GEHALT {0} PERS.NR. 4711"_s,
                          u"GEHALT/RENTE"_s, u"Einkommen; Lohn / Gehalt"_s};
    const QDate raise = Month(Dice(5, 20));
    const qint64 salary = Dice(180000, 320000);
    const int day = Dice(25, 31);
    Repeat(Giro, employer, salary, day, m_first, raise.addDays(-1));
    Repeat(Giro, employer, salary + salary * 3 / 100, day, raise, Last());
    if (Happens(50)) {
        Note(Giro, m_first.addDays(day - 1), employer, salary, true);
    }
    const cPayee family{u"Bundesagentur für Arbeit - Familienkasse"_s, Iban(), u"KG123456FK789012 {0}"_s,
                        u"GUTSCHR. UEBERWEISUNG"_s, u"Einkommen; Kindergeld"_s};
    Repeat(Giro, family, 25500, Dice(4, 22), m_first, Last());
    const cPayee other{u"Praxis Dr. Tann"_s, Iban(), u"Gehalt {0}"_s, u"GEHALT/RENTE"_s, u"Einkommen; Lohn / Gehalt"_s};
    Repeat(Partner, other, Dice(90000, 200000), 28, m_first, Last());
}

void cHousehold::AddHousing()
{
    const QDate move = Month(Dice(10, 40));
    const cPayee first{u"Hausverwaltung Linde"_s, Iban(), u"Miete {0} Wohnung 12"_s, u"DAUERAUFTRAG"_s,
                       u"Wohnung; Miete"_s};
    const cPayee second{u"Wohnbau Ostertal eG"_s, Iban(), u"Nutzungsgebuehr Miete {0}"_s, u"DAUERAUFTRAG"_s,
                        u"Wohnung; Miete"_s};
    const qint64 rent = Dice(55000, 120000);
    Repeat(Giro, first, -rent, 1, m_first, move.addDays(-1));
    Repeat(Giro, second, -(rent + 10000), 3, move, Last());
    if (Happens(60)) {
        Note(Giro, m_first, first, -rent, true);
    }
    const cPayee power{u"Stadtwerke Lindental"_s, Iban(), u"Abschlag Strom {0} Vertrag 815"_s, u"FOLGELASTSCHRIFT"_s,
                       u"Wohnung; Strom"_s};
    qint64 part = Dice(4500, 9000);
    for (int year = 0; year * 12 < m_months; ++year) {
        Repeat(Giro, power, -part, 15, Month(year * 12), Month(year * 12 + 12).addDays(-1));
        part += Dice(-1000, 1500);
    }
    const cPayee broadcast{u"Rundfunk ARD, ZDF, DRadio"_s, Iban(), u"Rundfunkbeitrag Beitragsnr. 123456789"_s,
                           u"FOLGELASTSCHRIFT"_s, u"Wohnung; GEZ-Gebühren"_s};
    Repeat(Giro, broadcast, -5508, 15, Month(Dice(0, 2)), Last(), 3);
}

void cHousehold::AddInsurances()
{
    const cPayee liability{u"Nordlicht Versicherung AG"_s, Iban(), u"Haftpflicht Vers.-Nr. 66-77 Beitrag"_s,
                           u"FOLGELASTSCHRIFT"_s, u"Versicherung; Haftpflicht"_s};
    Repeat(Giro, liability, -Dice(5000, 9000), 2, Month(Dice(0, 11)), Last(), 12);
    const cPayee car{u"Nordlicht Autoversicherung"_s, Iban(), u"Kfz-Steuer und Autovers. LD-KO 42"_s,
                     u"FOLGELASTSCHRIFT"_s, u"Auto; Kfz-Steuer / Versicherung"_s};
    Repeat(Giro, car, -Dice(30000, 60000), 2, Month(Dice(0, 11)), Last(), 12);
}

void cHousehold::AddContracts()
{
    const QDate end = Month(Dice(8, 30));
    const cPayee phone{u"Telekom Deutschland GmbH"_s, Iban(), u"Festnetz Vertragskonto 987654321 RG 4711"_s,
                       u"FOLGELASTSCHRIFT"_s, u"Wohnung; Internet und Telefon"_s};
    Repeat(Giro, phone, -3995, Dice(5, 27), m_first, end);
    const cPayee next{u"1&1 Telecom GmbH"_s, Iban(), u"DSL Kundennr. 55512 {0}"_s, u"FOLGELASTSCHRIFT"_s,
                      u"Wohnung; Internet und Telefon"_s};
    Repeat(Giro, next, -2999, Dice(5, 27), end.addDays(20), Last());
    const cPayee gym{u"McFit GmbH"_s, Iban(), u"Mitgliedsbeitrag {0}"_s, u"FOLGELASTSCHRIFT"_s,
                     u"Freizeit; Fitnessstudio"_s};
    const int start = Dice(2, 20);
    Repeat(Partner, gym, -2490, 1, Month(start), Month(start + Dice(6, 24)));
}

void cHousehold::AddPurchases()
{
    const QList<cPayee> shops{
        {u"REWE Markt Hohenfels"_s, Iban(), u"REWE SAGT DANKE. 4711"_s, u"KARTENZAHLUNG"_s,
         u"Haushalt; Lebensmittel"_s},
        {u"ALDI SUED"_s, Iban(), u"ALDI SUED SAGT DANK//Lindental/DE"_s, u"KARTENZAHLUNG"_s,
         u"Haushalt; Lebensmittel"_s},
        {u"EDEKA Tann"_s, Iban(), u"EDEKA TANN//LINDENTAL/DE"_s, u"KARTENZAHLUNG"_s, u"Haushalt; Lebensmittel"_s},
        {u"Rathaus Apotheke"_s, Iban(), u"Rathaus Apotheke Lindental"_s, u"KARTENZAHLUNG"_s,
         u"Haushalt; Medikamente"_s},
        {u"ARAL AG"_s, Iban(), u"ARAL Lindental"_s, u"KARTENZAHLUNG"_s, u"Auto; Benzin"_s},
        {u"Kunsthandlung Varga"_s, Iban(), u"Rechnung 2207"_s, u"UEBERWEISUNG"_s}};
    for (int month = 0; month < m_months; ++month) {
        const int count = Dice(8, 16);
        for (int i = 0; i < count; ++i) {
            const cPayee& shop = shops.at(Dice(0, 99) < 70 ? Dice(0, 2) : Dice(3, 5));
            const int account = Happens(70) ? Giro : Partner;
            const QDate day = Workday(Month(month).addDays(Dice(0, 27)));
            const qint64 cents = -Dice(350, 12000);
            Book(account, day, shop, cents);
            if (Happens(10)) { // noted in the shop: a day or two before the bank, now and then rounded
                const QDate noted = std::max(day.addDays(-Dice(0, 3)), QDate(day.year(), day.month(), 1));
                Note(account, noted, shop, Happens(70) ? cents : cents / 100 * 100, false);
            }
        }
    }
}

void cHousehold::AddEqualRows()
{
    const cPayee baker{u"Bäckerei Tann"_s, Iban(), u"Baeckerei Tann Lindental"_s, u"KARTENZAHLUNG"_s};
    for (int month = 0; month < m_months; month += Dice(1, 4)) {
        const QDate day = Workday(Month(month).addDays(Dice(0, 27)));
        for (int i = Dice(2, 3); i > 0; --i) {
            Book(Giro, day, baker, -280);
        }
    }
}

void cHousehold::AddCash()
{
    const cPayee machine{u"GA NR00012345 BLZ10020030"_s, QString(), u"BARGELDAUSZAHLUNG LINDENTAL"_s, u"GELDAUTOMAT"_s};
    for (int month = 0; month < m_months; ++month) {
        Book(Giro, Workday(Month(month).addDays(Dice(0, 13))), machine, -Dice(2, 10) * 1000);
        Book(Partner, Workday(Month(month).addDays(Dice(14, 27))), machine, -Dice(2, 10) * 1000);
    }
}

void cHousehold::AddPayPal()
{
    const QString iban = Iban();
    const auto payee = [&](const QString& shop) {
        return cPayee{u"PayPal (Europe) S.a.r.l. et Cie., S.C.A."_s, iban,
                      u"10%1 PP.1234.PP . %2, Ihr Einkauf bei %2"_s.arg(Dice(100000, 999999)).arg(shop),
                      u"FOLGELASTSCHRIFT"_s};
    };
    const QStringList shops{u"Zalando"_s, u"Spotify"_s, u"Steam"_s, u"Lieferheld"_s};
    for (int month = 0; month < m_months; ++month) {
        for (int i = Dice(0, 3); i > 0; --i) {
            Book(Giro, Workday(Month(month).addDays(Dice(0, 27))), payee(shops.at(Dice(0, 3))), -Dice(500, 8000));
        }
    }
}

void cHousehold::AddRefunds()
{
    const cPayee shop{u"AMAZON EU S.A R.L., NIEDERLASSUNG DEUTSCHLAND"_s, Iban(),
                      u"306-1234567-%1 AMZN Mktp DE"_s.arg(Dice(1000000, 9999999)), u"FOLGELASTSCHRIFT"_s};
    for (int month = 0; month < m_months; ++month) {
        const QDate day = Workday(Month(month).addDays(Dice(0, 20)));
        const qint64 cents = Dice(900, 15000);
        Book(Giro, day, shop, -cents);
        if (Happens(20)) {
            Book(Giro, Workday(day.addDays(Dice(3, 9))), shop, cents);
        }
    }
}

void cHousehold::AddTransfers()
{
    const auto move = [this](int from, int to, QDate day, qint64 cents, const QString& purpose) {
        const cAccount source = m_accounts.at(from);
        const cAccount target = m_accounts.at(to);
        Book(from, day, {u"Ole Muster"_s, target.Iban, purpose, u"DAUERAUFTRAG"_s, {}}, -cents);
        Book(to, day, {u"Ole Muster"_s, source.Iban, purpose, u"GUTSCHR. UEBERWEISUNG"_s, {}}, cents);
    };
    const qint64 rate = Dice(5, 40) * 1000;
    for (int month = 0; month < m_months; ++month) {
        move(Giro, Savings, Workday(Month(month).addDays(4)), rate, u"Sparen"_s);
        if (Happens(15)) {
            move(Savings, Giro, Workday(Month(month).addDays(Dice(6, 26))), Dice(10, 90) * 1000, u"Ruecklage"_s);
        }
        move(Giro, Partner, Workday(Month(month).addDays(2)), 30000, u"Haushaltsgeld"_s);
    }
}

void cHousehold::AddCard()
{
    const QList<cPayee> shops{{u"BOOKING.COM HOTEL"_s, QString(), u"Hotel am See"_s, u"Umsatz"_s},
                              {u"DEUTSCHE BAHN"_s, QString(), u"DB Vertrieb GmbH"_s, u"Umsatz"_s}};
    const cPayee bank{u"Kartenabrechnung"_s, QString(), u"Einzug Kreditkartenabrechnung {0}"_s, u"LASTSCHRIFT"_s};
    for (int month = 0; month < m_months; ++month) {
        qint64 sum = 0;
        for (int i = Dice(1, 4); i > 0; --i) {
            const qint64 cents = Dice(1000, 20000);
            sum += cents;
            Book(Card, Month(month).addDays(Dice(0, 19)), shops.at(Dice(0, 1)), -cents);
        }
        const QDate due = Workday(Month(month).addDays(22));
        Book(Giro, due, bank, -sum);
        Book(Card, due, {u"Ausgleich Kreditkarte"_s, QString(), u"Einzug {0}"_s, u"Ausgleich"_s}, sum);
    }
}

void cHousehold::AddInterest()
{
    const cPayee bank{QString(), QString(), u"Zinsen fuer Sparkonto"_s, u"ABSCHLUSS"_s, u"Geldanlage; Zinseinkünfte"_s};
    Repeat(Savings, bank, Dice(200, 3000), 31, Month(2), Last(), 3);
}
