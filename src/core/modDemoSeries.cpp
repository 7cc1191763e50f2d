#include "core/modDemoSeries.h"

#include "model/modRecurrence.h"
#include "model/modWord.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

// Months of the book: from 0 on counted from its beginning, below 0 from its end.
constexpr int Open = 100000;

struct cRow
{
    const char* Type;
    const char* Interval;
    const char* Account;
    const char* Target;
    const char* Category;
    const char* Description;
    qint64 Cents;
    int FromMonth;
    int Day;
    int ToMonth;
};

constexpr std::array Rows{
    cRow{"Einnahme", "Monatlich", "Girokonto", "", "Einkommen; Kindergeld", "Familienkasse, zwei Kinder", 51000, 0, 8,
         Open},
    cRow{"Einnahme", "Jährlich", "Girokonto", "", "Einkommen; Weihnachts- und Urlaubsgeld", "Weihnachtsgeld Jana",
         140000, 7, 28, Open},
    cRow{"Einnahme", "Alle 3 Monate", "Sparkonto", "", "Geldanlage; Zinseinkünfte", "Zinsen Sparkonto", 2140, 2, 30,
         Open},

    // The rent rose a year ago: the old series ends, its successor goes on.
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Wohnung; Miete", "Miete Lindenhof 12", 112000, 0, 3, -13},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Wohnung; Miete", "Miete Lindenhof 12", 116500, -12, 3, Open},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Wohnung; Strom", "Stadtwerke Talheim, Abschlag", 9500, 0, 5, Open},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Wohnung; Internet und Telefon", "Telefonanschluss, alter Vertrag",
         4495, 0, 12, -20},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Wohnung; Internet und Telefon", "Glasfaser, neuer Vertrag", 3995,
         -19, 12, Open},
    cRow{"Ausgabe", "Alle 3 Monate", "Girokonto", "", "Wohnung; GEZ-Gebühren", "Rundfunkbeitrag", 5508, 1, 15, Open},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Alltag; Handy", "Handy Jana und Mirko", 2998, 0, 18, Open},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Alltag; Bus und Bahn", "Monatskarte Mirko", 5800, 0, 1, Open},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Kinder; Kita und Schule", "Hort und Mittagessen", 17400, 0, 2, Open},
    cRow{"Ausgabe", "Monatlich", "Bargeld", "", "Kinder; Taschengeld", "Taschengeld Lotte und Emil", 4000, 0, 1, Open},
    cRow{"Ausgabe", "Wöchentlich", "Bargeld", "", "Kinder; Vereine und Unterricht", "Schwimmkurs Emil", 900, 6, 10, 11},
    cRow{"Ausgabe", "Alle 2 Wochen", "Bargeld", "", "Haushalt", "Fensterputzer", 2800, 3, 6, Open},
    cRow{"Ausgabe", "Alle 4 Wochen", "Girokonto", "", "Haustier; Futter", "Futterpaket", 3490, 2, 9, Open},

    cRow{"Ausgabe", "Jährlich", "Girokonto", "", "Versicherung; Haftpflicht", "Privathaftpflicht", 7980, 1, 2, Open},
    cRow{"Ausgabe", "Jährlich", "Girokonto", "", "Versicherung; Hausrat", "Hausratversicherung", 11840, 5, 2, Open},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Versicherung; Berufsunfähigkeit", "Berufsunfähigkeit Jana", 5420, 0,
         4, Open},
    cRow{"Ausgabe", "Alle 6 Monate", "Girokonto", "", "Auto; Kfz-Steuer / Versicherung", "Kfz-Versicherung", 28460, 2,
         2, Open},
    cRow{"Ausgabe", "Jährlich", "Girokonto", "", "Auto; Kfz-Steuer / Versicherung", "Kfz-Steuer", 13200, 4, 20, Open},
    cRow{"Ausgabe", "Jährlich", "Girokonto", "", "Auto; Automobilclub", "Mitgliedsbeitrag", 6400, 8, 15, Open},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Freizeit; Fitnessstudio", "Fitnessstudio Jana", 2990, 4, 1, -9},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Freizeit; Musik und Filme", "Filmabonnement", 1399, 0, 22, Open},
    cRow{"Ausgabe", "Jährlich", "Girokonto", "", "Freizeit; Vereinsbeiträge", "Turnverein, Familienbeitrag", 14400, 9,
         1, Open},
    cRow{"Ausgabe", "Jährlich", "Girokonto", "", "Haustier; Hundesteuer", "Stadtkasse Talheim", 9600, 10, 15, Open},
    cRow{"Ausgabe", "Alle 2 Monate", "Girokonto", "", "Sonstiges; Spenden", "Patenschaft", 3000, 1, 25, Open},

    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Geldanlage; Bausparen", "Bausparvertrag", 8000, 0, 3, Open},
    cRow{"Ausgabe", "Monatlich", "Girokonto", "", "Geldanlage; Altersvorsorge", "Rentenversicherung Mirko", 10000, 0, 3,
         Open},
    cRow{"Umbuchung", "Monatlich", "Girokonto", "Sparkonto", "Geldanlage; Sparen", "Rücklage", 85000, 0, 4, Open},
};

QDate DayIn(const modDemo::cDemoPlan& plan, int month, int day)
{
    const int fromStart = month < 0 ? plan.Years * 12 + month : month;
    const QDate first = modDemo::FirstDay(plan).addMonths(fromStart);
    return first.addDays(qMin(day, first.daysInMonth()) - 1);
}

QDate LastDay(const modDemo::cDemoPlan& plan, int month)
{
    return month == Open ? modRecurrence::OpenEnd : DayIn(plan, month, 31);
}

modDemo::cDemoSeries FromRow(const modDemo::cDemoPlan& plan, const cRow& row)
{
    modDemo::cDemoSeries series;
    cEntryItem& entry = series.Entry;
    entry.EntryDate = DayIn(plan, row.FromMonth, row.Day);
    entry.EntryDateEnd = LastDay(plan, row.ToMonth);
    entry.EntryType = QString::fromUtf8(row.Type);
    entry.EntryInterval = QString::fromUtf8(row.Interval);
    entry.EntryAccount = QString::fromUtf8(row.Account);
    entry.EntryAccountMove = QString::fromUtf8(row.Target);
    entry.EntryCategory = QString::fromUtf8(row.Category);
    entry.EntryDescription = QString::fromUtf8(row.Description);
    entry.EntryValue = row.Cents;
    return series;
}

cEntryItemFixMod Correction(const modDemo::cDemoPlan& plan, const cEntryItem& entry, int month, qint64 cents,
                            const QString& comment)
{
    const auto period = modRecurrence::OccurrencePeriod(DayIn(plan, month, entry.EntryDate.day()), entry.EntryInterval);
    cEntryItemFixMod fixMod;
    fixMod.EntryModType = modWord::Betrag;
    fixMod.EntryStartDate = period.Start;
    fixMod.EntryEndDate = period.End;
    fixMod.EntryValue = cents;
    fixMod.EntryComment = comment;
    return fixMod;
}

// Every year the salary rises, so each year is a series of its own; over the whole book it gains about 15 percent.
void AddSalary(const modDemo::cDemoPlan& plan, const QString& person, qint64 cents, QList<modDemo::cDemoSeries>& list)
{
    const QByteArray description = (u"Gehalt "_s % person).toUtf8();
    for (int year = 0; year < plan.Years; ++year) {
        const int yearsAgo = plan.Years - 1 - year;
        const cRow row{"Einnahme",
                       "Monatlich",
                       "Girokonto",
                       "",
                       "Einkommen; Lohn / Gehalt",
                       description.constData(),
                       cents - cents * 15 * yearsAgo / (qint64{100} * plan.Years),
                       year * 12,
                       28,
                       yearsAgo == 0 ? Open : year * 12 + 11};
        list.append(FromRow(plan, row));
    }
}

} // namespace

QDate modDemo::FirstDay(const cDemoPlan& plan)
{
    const QDate day = plan.Today.addYears(-plan.Years).addMonths(1);
    return QDate(day.year(), day.month(), 1);
}

QList<modDemo::cDemoSeries> modDemo::Series(const cDemoPlan& plan)
{
    QList<cDemoSeries> list;
    AddSalary(plan, u"Jana"_s, 296000, list);
    AddSalary(plan, u"Mirko"_s, 178000, list);
    for (const cRow& row : Rows) {
        cDemoSeries series = FromRow(plan, row);
        if (series.Entry.EntryCategory == "Wohnung; Strom"_L1) {
            series.Mods = {Correction(plan, series.Entry, -21, 14230, u"Nachzahlung aus der Jahresabrechnung"_s),
                           Correction(plan, series.Entry, -9, 6100, u"Guthaben aus der Jahresabrechnung verrechnet"_s)};
        }
        list.append(series);
    }
    return list;
}
