#include "core/modDemoShopping.h"

#include "core/modDemoSeries.h"
#include "model/modBalance.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int PurchasesPerYear = 340;
constexpr int rowMonths = 12; // of which the bank's rows are there
constexpr QLatin1StringView Giro = "Girokonto"_L1;
constexpr QLatin1StringView Spar = "Sparkonto"_L1;
const QString DemoBank = u"99900010"_s;

struct cShop
{
    const char* Name;
    const char* Booking; // the bank's word for it; empty when paid in cash
    const char* Purpose;
    const char* Category;
    qint64 LowCents;
    qint64 HighCents;
    int Weight;
};

constexpr std::array Shops{
    cShop{"REWE Markt Talheim", "Kartenzahlung", "REWE SAGT DANKE", "Haushalt; Lebensmittel", 2300, 9800, 22},
    cShop{"ALDI SUED", "Kartenzahlung", "ALDI SUED SAGT DANKE", "Haushalt; Lebensmittel", 1500, 7500, 14},
    cShop{"EDEKA Center Brückner", "Kartenzahlung", "EDEKA DANKT", "Haushalt; Lebensmittel", 1800, 8900, 10},
    cShop{"Bäckerei Kornblume", "Kartenzahlung", "Einkauf Filiale 3", "Haushalt; Lebensmittel", 350, 1290, 8},
    cShop{"Getränkemarkt Quelle", "Kartenzahlung", "Getränke", "Haushalt; Getränke", 1200, 3800, 3},
    cShop{"ARAL Tankstelle Talheim", "Kartenzahlung", "ARAL STATION 0417", "Auto; Benzin", 4500, 8800, 5},
    cShop{"Shell Station Ost", "Kartenzahlung", "SHELL 1180", "Auto; Benzin", 4200, 8600, 3},
    cShop{"Rossmann", "Kartenzahlung", "Rossmann Filiale 2208", "Haushalt", 800, 3900, 6},
    cShop{"Linden-Apotheke", "Kartenzahlung", "Apotheke", "Haushalt; Medikamente", 600, 3400, 3},
    cShop{"Baumarkt Nagel", "Kartenzahlung", "Baumarkt Talheim", "Haushalt", 1500, 11900, 2},
    cShop{"Trattoria Sole", "Kartenzahlung", "Tisch 7", "Freizeit; Restaurant / Café", 3200, 9400, 3},
    cShop{"Buchhandlung Seitenweise", "Lastschrift", "Rechnung Kundin 2216", "Alltag; Bücher und Zeitschriften", 990,
          4200, 2},
    cShop{"Modehaus Lindner", "Kartenzahlung", "Danke für Ihren Einkauf", "Alltag; Kleidung", 2900, 14900, 2},
    cShop{"Schuhhaus Tritt", "Kartenzahlung", "Schuhe Kinder", "Alltag; Schuhe", 3990, 11900, 1},
    cShop{"Spielwaren Wirbelwind", "Kartenzahlung", "Kasse 2", "Kinder; Spielzeug", 1200, 5900, 2},
    cShop{"Zahnarztpraxis Dr. Sommer", "Überweisung", "Rechnung Zahnreinigung", "Gesundheit; Arzt und Zahnarzt", 4500,
          16000, 1},
    cShop{"Cineplex Talheim", "Kartenzahlung", "Cineplex Tickets", "Freizeit; Kino / Theater", 1800, 5200, 1},
    cShop{"Gärtnerei Grünberg", "Kartenzahlung", "Pflanzen", "Wohnung; Garten", 900, 6400, 1},
    cShop{"Amazon", "Lastschrift", "Amazon Bestellung", "Haushalt; Anschaffungen", 1290, 8900, 4},
    cShop{"Stadtverkehr Talheim", "Lastschrift", "Tickets im Vormonat", "Alltag; Bus und Bahn", 290, 1900, 2},
    cShop{"Wochenmarkt", "", "", "Haushalt; Lebensmittel", 900, 3200, 7},
    cShop{"Eisdiele", "", "", "Freizeit; Restaurant / Café", 650, 1900, 3},
    cShop{"Friseur", "", "", "Alltag; Friseur und Körperpflege", 2800, 6500, 1},
    cShop{"Parkhaus", "", "", "Auto; Parken", 200, 900, 2},
};

// A generator of our own (Knuth's constants), because the same book must come out on every machine.
class cDice
{
public:
    // 0 to below `bound`.
    qint64 Roll(qint64 bound)
    {
        m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<qint64>(m_state >> 33) % bound;
    }

private:
    quint64 m_state = 20260315;
};

qsizetype PickShop(cDice& dice)
{
    static const int total =
        std::accumulate(Shops.begin(), Shops.end(), 0, [](int sum, const cShop& shop) { return sum + shop.Weight; });
    qint64 rest = dice.Roll(total);
    qsizetype index = 0;
    while (rest >= Shops[static_cast<size_t>(index)].Weight) {
        rest -= Shops[static_cast<size_t>(index)].Weight;
        ++index;
    }
    return index;
}

// An IBAN with right check digits at a bank code that no German bank has.
QString Iban(qsizetype number)
{
    const QString account = QString::number(4820000000 + number * 13797);
    const QString digits = DemoBank % account % u"131400"_s; // "DE" as 1314 and the check digits as 00
    int rest = 0;
    for (const QChar digit : digits) {
        rest = (rest * 10 + digit.digitValue()) % 97;
    }
    return u"DE%1%2%3"_s.arg(98 - rest, 2, 10, QChar(u'0')).arg(DemoBank, account);
}

cEntryItem OneOff(QDate date, const QString& type, const QString& account, const QString& category, qint64 cents,
                  const QString& description)
{
    cEntryItem entry;
    entry.EntryDate = date;
    entry.EntryDateEnd = modRecurrence::OpenEnd;
    entry.EntryType = type;
    entry.EntryInterval = modWord::Einmalig;
    entry.EntryAccount = account;
    entry.EntryCategory = category;
    entry.EntryValue = cents;
    entry.EntryDescription = description;
    return entry;
}

cImportEntry BankRow(QDate date, const QString& number, const QString& booking, const QString& name,
                     const QString& purpose, qint64 signedCents)
{
    cImportEntry row;
    row.ImportAccount = number;
    row.ImportDate = date;
    row.ImportType = booking;
    row.ImportBeneficiary = name;
    row.ImportPurpose = purpose;
    row.ImportValue = signedCents;
    row.ImportCurrency = u"EUR"_s;
    return row;
}

modDemo::cDemoPurchase Purchase(QDate date, qsizetype index, qint64 cents)
{
    const cShop& shop = Shops[static_cast<size_t>(index)];
    const QString name = QString::fromUtf8(shop.Name);
    const QString booking = QString::fromUtf8(shop.Booking);
    const QString purpose = QString::fromUtf8(shop.Purpose);
    const QString category = QString::fromUtf8(shop.Category);

    modDemo::cDemoPurchase purchase;
    if (booking.isEmpty()) {
        purchase.Entry = OneOff(date, modWord::Ausgabe, u"Bargeld"_s, category, cents, name);
        return purchase;
    }
    purchase.Entry = OneOff(date, modWord::Ausgabe, u"Girokonto"_s, category, cents, name % u" - " % purpose);
    purchase.Staged = BankRow(date, modDemo::GiroNumber, booking, name, purpose, -cents);
    purchase.Staged.ImportBeneficiaryAccount = Iban(index);
    purchase.Staged.ImportBeneficiaryBLZ = u"DEMODE77XXX"_s;
    return purchase;
}

cEntryItem Transfer(QDate date, const QString& from, const QString& to, const QString& category, qint64 cents,
                    const QString& description)
{
    cEntryItem entry = OneOff(date, modWord::Umbuchung, from, category, cents, description);
    entry.EntryAccountMove = to;
    return entry;
}

QString NumberOf(const QString& account)
{
    return account == Giro ? modDemo::GiroNumber : account == Spar ? modDemo::SparNumber : QString();
}

cImportEntry RowOf(const cEntryItem& occurrence, const QString& account, const QString& other)
{
    const qint64 cents = modBalance::Effect(occurrence, account);
    const bool isRent = occurrence.EntryCategory == "Wohnung; Miete"_L1;
    const QString name = isRent ? u"Hausverwaltung Lindenhof"_s : occurrence.EntryDescription;
    const QString booking = cents > 0                          ? u"Gutschrift"_s
        : !other.isEmpty() && NumberOf(other).isEmpty()        ? u"Auszahlung"_s
        : modRecurrence::IsRecurring(occurrence.EntryInterval) ? u"Dauerauftrag"_s
                                                               : u"Überweisung"_s;
    cImportEntry row =
        BankRow(occurrence.EntryDate, NumberOf(account), booking, name, occurrence.EntryDescription, cents);
    row.ImportBeneficiaryAccount =
        other.isEmpty() ? Iban(static_cast<qsizetype>(Shops.size()) + occurrence.ID) : NumberOf(other);
    row.ImportBeneficiaryBLZ = other.isEmpty() ? u"DEMODE77XXX"_s : NumberOf(other).isEmpty() ? QString() : DemoBank;
    row.ImportAssigned = true;
    row.ImportAssignedEntry = occurrence.ID;
    return row;
}

cImportEntryList RowsOf(const cEntryItem& occurrence)
{
    const QString& account = occurrence.EntryAccount;
    const QString& target = occurrence.EntryAccountMove;
    cImportEntryList rows;
    if (!NumberOf(account).isEmpty()) {
        rows.append(RowOf(occurrence, account, target));
    }
    if (!NumberOf(target).isEmpty()) {
        rows.append(RowOf(occurrence, target, account));
    }
    return rows;
}

void AddYear(int year, cEntryItemList& list)
{
    const QString giro = u"Girokonto"_s;
    const QString holiday = u"Freizeit; Urlaub"_s;
    const QString transfer = u"Sonstiges; Umbuchung"_s;
    list.append(OneOff(QDate(year, 2, 12), modWord::Ausgabe, giro, holiday, 68000, u"Skihütte, Anzahlung und Rest"_s));
    list.append(OneOff(QDate(year, 4, 24), modWord::Ausgabe, giro, u"Auto; Werkstatt"_s, 38450,
                       u"Inspektion und Reifenwechsel"_s));
    list.append(OneOff(QDate(year, 6, 17), modWord::Einnahme, giro, u"Staat; Steuererstattung"_s, 61230,
                       u"Finanzamt Talheim"_s));
    list.append(Transfer(QDate(year, 7, 20), u"Sparkonto"_s, giro, transfer, 220000, u"Für den Sommerurlaub"_s));
    list.append(OneOff(QDate(year, 7, 24), modWord::Ausgabe, giro, holiday, 214000, u"Ferienhaus an der Ostsee"_s));
    list.append(OneOff(QDate(year, 8, 8), modWord::Ausgabe, giro, holiday, 46200, u"Ausflüge und Fähre"_s));
    list.append(OneOff(QDate(year, 10, 9), modWord::Ausgabe, giro, u"Haushalt; Anschaffungen"_s, 54900,
                       u"IKEA, Schränke fürs Kinderzimmer"_s));
    list.append(
        OneOff(QDate(year, 12, 10), modWord::Ausgabe, giro, u"Freizeit; Geschenke"_s, 42000, u"Weihnachtsgeschenke"_s));
}

} // namespace

int modDemo::UsualPurchases(const cDemoPlan& plan)
{
    return plan.Years * PurchasesPerYear;
}

QList<modDemo::cDemoPurchase> modDemo::Purchases(const cDemoPlan& plan, int count)
{
    QList<cDemoPurchase> list;
    list.reserve(count);
    cDice dice;
    const QDate first = FirstDay(plan);
    const qint64 days = first.daysTo(plan.Today);
    const qint64 usual = UsualPurchases(plan);
    for (qint64 i = 0; i < count; ++i) {
        const qsizetype shop = PickShop(dice);
        const qint64 low = Shops[static_cast<size_t>(shop)].LowCents;
        const qint64 cents = low + dice.Roll(Shops[static_cast<size_t>(shop)].HighCents - low);
        const qint64 shrunk = count > usual ? qMax<qint64>(cents * usual / count, 1) : cents;
        list.append(Purchase(first.addDays(days * i / count), shop, shrunk));
    }
    return list;
}

QDate modDemo::FirstBankDay(const cDemoPlan& plan)
{
    return plan.Today.addMonths(-rowMonths);
}

cImportEntryList modDemo::BankRows(const cEntryItem& entry, const cEntryItemFixModList& fixMods, const cDemoPlan& plan)
{
    cEntryItemList occurrences;
    modRecurrence::Expand(entry, {FirstBankDay(plan), plan.Today}, fixMods, occurrences);
    cImportEntryList rows;
    for (const cEntryItem& occurrence : occurrences) {
        if (occurrence.EntryDate >= FirstBankDay(plan)) { // one that is no series is its own occurrence on any day
            rows.append(RowsOf(occurrence));
        }
    }
    // The last rent waits: it belongs to an occurrence that is in the book already.
    if (entry.EntryCategory == "Wohnung; Miete"_L1 && entry.EntryDateEnd == modRecurrence::OpenEnd) {
        rows.last().ImportAssigned = false;
        rows.last().ImportAssignedEntry = -1;
    }
    return rows;
}

cEntryItemList modDemo::Events(const cDemoPlan& plan)
{
    cEntryItemList list;
    const QDate first = FirstDay(plan);
    for (int year = first.year(); year <= plan.Today.year(); ++year) {
        AddYear(year, list);
    }
    for (QDate day = first.addDays(1); day <= plan.Today; day = day.addMonths(1)) {
        list.append(
            Transfer(day, u"Girokonto"_s, u"Bargeld"_s, u"Allgemein; Barauszahlung"_s, 18000, u"Geldautomat"_s));
    }
    list.removeIf([&](const cEntryItem& entry) { return entry.EntryDate < first || entry.EntryDate > plan.Today; });
    return list;
}

cImportEntryList modDemo::Mail(const cDemoPlan& plan)
{
    const QDate today = plan.Today;
    const QString credit = u"Gutschrift"_s;
    const QString debit = u"Lastschrift"_s;
    cImportEntry out =
        BankRow(today.addDays(-6), GiroNumber, u"Überweisung"_s, u"Jana Berger"_s, u"Übertrag"_s, -25000);
    cImportEntry in = BankRow(today.addDays(-5), SparNumber, credit, u"Jana Berger"_s, u"Übertrag"_s, 25000);
    out.ImportBeneficiaryAccount = SparNumber;
    in.ImportBeneficiaryAccount = GiroNumber;
    out.ImportBeneficiaryBLZ = in.ImportBeneficiaryBLZ = DemoBank;
    return {
        out,
        in,
        BankRow(today.addDays(-9), GiroNumber, credit, u"Finanzamt Talheim"_s, u"Steuererstattung Vorjahr"_s, 41237),
        BankRow(today.addDays(-8), GiroNumber, u"Auszahlung"_s, u"Sparkasse Talheim"_s, u"GA NR0815 BARGELD"_s, -10000),
        BankRow(today.addDays(-7), GiroNumber, credit, u"Amazon"_s, u"Gutschrift zur Bestellung 303"_s, 3999),
        BankRow(today.addDays(-4), GiroNumber, debit, u"Fahrschule Kreisel"_s, u"Grundbetrag"_s, -8900),
        BankRow(today.addDays(-3), GiroNumber, credit, u"Gerda Berger"_s, u"Zum Geburtstag"_s, 5000),
        BankRow(today.addDays(-2), GiroNumber, debit, u"Wasserwerk Talheim"_s, u"Nachzahlung Vorjahr"_s, -18460),
        BankRow(today.addDays(-1), GiroNumber, debit, u"Stadtkasse Talheim"_s, u"Bußgeld 4412"_s, -1500)};
}
