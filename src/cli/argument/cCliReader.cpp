#include "cli/argument/cCliReader.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/modDate.h"
#include "base/modDayText.h"
#include "base/modFold.h"
#include "base/modSum.h"
#include "cli/call/cCliBook.h"
#include "cli/console/cConsoleUser.h"
#include "model/modPeople.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modWord.h"
#include "views/common/modBookNames.h"
#include "views/people/cPeople.h"

#include <QFileInfo>

#include <fcntl.h>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace {

// The planned day of the occurrence that lists show on that day because a correction moved it; invalid when the series
// has none, or another that is planned for the day.
QDate PlannedOf(const cEntryItem& series, const cEntryItemFixModList& fixMods, QDate shown)
{
    cEntryItemList occurrences;
    modRecurrence::Expand(series, {shown, shown}, fixMods, occurrences);
    const bool isPlanned = std::any_of(occurrences.begin(), occurrences.end(),
                                       [](const cEntryItem& occurrence) { return !occurrence.PlannedDate.isValid(); });
    return occurrences.isEmpty() || isPlanned ? QDate() : occurrences.first().PlannedDate;
}

// The same text for a person: letter case, umlauts and blanks around the separator do not matter.
QString Loose(const QString& text)
{
    return modFold::Fold(text.simplified()).Spelled.replace(u" ;"_s, u";"_s).replace(u"; "_s, u";"_s);
}

// Those of `names` that a person may have meant.
template <typename tKey>
QStringList Meant(const QStringList& names, const QString& text, tKey key)
{
    QStringList found;
    std::copy_if(names.begin(), names.end(), std::back_inserter(found),
                 [&](const QString& name) { return Loose(key(name)) == Loose(text); });
    return found;
}

QString Itself(const QString& name)
{
    return name;
}

} // namespace

void cCliReader::Keep(int code, const QString& problem)
{
    if (IsGood()) {
        m_code = code;
        m_problem = problem;
    }
}

void cCliReader::CheckTarget(const QString& path)
{
    if (QFileInfo(path) == QFileInfo(m_context.Book->File().Path())) {
        Misused(cText::Tr("'{0}' ist die Datenbank selbst. Bitte einen anderen Namen angeben.", {path}));
    }
}

// Those that the program opened itself are closed for its children.
void cCliReader::CheckOpenFile(const QString& option)
{
    if (m_context.Call.Has(option) && ::fcntl(modCliCommands::Fd(m_context, option), F_GETFD) != 0) {
        Misused(
            cText::Tr("--{0} braucht die Nummer einer geöffneten Datei, zum Beispiel: --{0} 3 3< datei.txt", {option}));
    }
}

int cCliReader::Report() const
{
    modConsole::Error(m_problem);
    return m_code;
}

QString cCliReader::Compact(QString number)
{
    return number.removeIf([](QChar c) { return c.isSpace(); }).toUpper();
}

bool cCliReader::IsNone(const QString& text)
{
    return text.compare(u"ohne"_s, Qt::CaseInsensitive) == 0;
}

QDate cCliReader::Day(const QString& text)
{
    const QDate day = modDayText::Read(text, m_context.Clock.Today());
    if (!day.isValid() && !text.isEmpty()) {
        const QDate example(m_context.Clock.Today().year(), 1, 31);
        Misused(cText::Tr("'{0}' ist kein Datum. Möglich sind {1}, {2}, {3}, heute, gestern oder +7.",
                          {text, modDate::ToIso(example), modDate::ToText(example), modDate::ToShortText(example)}));
    }
    return day;
}

qint64 cCliReader::Cents(const QString& text)
{
    const eDecimal decimal = m_context.Book == nullptr ? eDecimal::Comma : m_context.Book->Format().Decimal();
    const std::optional<qint64> cents = modSum::Evaluate(text, decimal);
    if (!cents && modSum::IsDoubtful(text, decimal)) {
        Misused(modSum::Fault(text, decimal));
    } else if (!cents && !text.isEmpty()) {
        Misused(cText::Tr("'{0}' ist kein Betrag. Möglich sind {1} oder eine Rechnung wie {1}+{2}.",
                          {text, modSum::ToText(1250, decimal), modSum::ToText(399, decimal)}));
    }
    return cents.value_or(0);
}

int cCliReader::Id(const QString& text)
{
    bool isNumber = false;
    const int id = text.toInt(&isNumber);
    if (!isNumber) {
        Misused(cText::Tr("'{0}' ist keine Nummer. Die Nummern stehen in der Spalte ID.", {text}));
    } else if (!m_context.Book->File().Entry(id)) {
        Missing(cText::Tr("Einen Eintrag mit der Nummer {0} gibt es nicht.", {text}));
    }
    return id;
}

QList<int> cCliReader::Ids(const QStringList& texts)
{
    QList<int> ids;
    for (const QString& text : texts) {
        ids.append(Id(text));
    }
    return ids;
}

std::optional<cImportEntry> cCliReader::StagedRow(const QString& text)
{
    bool isNumber = false;
    const int id = text.toInt(&isNumber);
    if (!isNumber) {
        Misused(cText::Tr("'{0}' ist keine Nummer. Die Nummern stehen in der Spalte ID.", {text}));
        return std::nullopt;
    }
    std::optional<cImportEntry> row = m_context.Book->Statements.Row(id);
    if (!row) {
        Missing(cText::Tr("Einen Umsatz mit der Nummer {0} gibt es nicht.", {text}));
    }
    return row;
}

QDate cCliReader::Occurrence(int id, const QString& text, eOccurrence which)
{
    constexpr int shownDays = 3;
    const QDate day = Day(text);
    if (text.isEmpty()) {
        Misused(cText::Tr("Bitte nennen Sie den Tag des Vorkommens."));
    }
    const std::optional<cEntryItem> series = m_context.Book->File().Entry(id);
    if (!series || !day.isValid()) {
        return {};
    }
    if (!modRecurrence::IsRecurring(series->EntryInterval)) {
        Missing(cText::Tr("Eintrag {0} ist keine Serie.", {QString::number(id)}));
        return {};
    }
    if (const QDate planned = PlannedOf(*series, m_context.Book->File().Corrections(id), day); planned.isValid()) {
        return planned;
    }
    const std::optional<cEntryItem> occurrence = modSeries::OccurrenceAt(*series, day);
    if (occurrence && (which == eOccurrence::OfPeriod || occurrence->EntryDate == day)) {
        return occurrence->EntryDate;
    }
    QStringList days;
    const QList<QDate> next = modSeries::Next(*series, qMax(day, series->EntryDate), shownDays);
    if (which == eOccurrence::From && !next.isEmpty()) {
        return next.constFirst();
    }
    for (const QDate other : next) {
        days.append(modDate::ToText(other));
    }
    const QStringList names{QString::number(id), modDate::ToText(day)};
    const QString problem = which == eOccurrence::From
        ? cText::Tr("Die Serie {0} hat ab dem {1} kein Vorkommen.", names)
        : cText::Tr("Die Serie {0} hat am {1} kein Vorkommen.", names);
    Missing(days.isEmpty() ? problem : problem + u' ' + cText::Tr("Danach kommen: {0}.", {days.join(u", "_s)}));
    return {};
}

QString cCliReader::Word(const QString& text, const QStringList& stored, const QString& problem)
{
    const QStringList meant = Meant(stored, text, Itself);
    if (meant.isEmpty() && !text.isEmpty()) {
        Misused(cText::Tr("{0} Möglich sind: {1}.", {problem, stored.join(u", "_s)}));
    }
    return meant.value(0);
}

QString cCliReader::Kind(const QString& text)
{
    const QStringList many = Meant({modWord::Einnahmen, modWord::Ausgaben, modWord::Umbuchungen}, text, Itself);
    const QString one = many.isEmpty() ? text : many.constFirst();
    const QStringList kinds = modWord::EntryTypes().Stored();
    for (const QString& kind : kinds) {
        if (modWord::QueryType(kind) == one) {
            return kind;
        }
    }
    return Word(text, kinds, cText::Tr("Die Buchungsart '{0}' gibt es nicht.", {text}));
}

QString cCliReader::Interval(const QString& text)
{
    return Word(text, modWord::Intervals().Stored(), cText::Tr("Das Intervall '{0}' gibt es nicht.", {text}));
}

QString cCliReader::Account(const QString& text, eCliNames names)
{
    if (text.isEmpty()) {
        return {};
    }
    cDataAccess& data = m_context.Book->Data;
    const QStringList accounts =
        names == eCliNames::Used ? modBookNames::UsedAccounts(data) : modBookNames::Accounts(data);
    const QStringList meant = accounts.contains(text) ? QStringList{text} : Meant(accounts, text, Itself);
    if (meant.isEmpty()) {
        Missing(cText::Tr("Das Konto '{0}' gibt es nicht. Möglich sind: {1}.", {text, accounts.join(u", "_s)}));
    }
    return meant.value(0);
}

QString cCliReader::Person(const QString& text)
{
    const QStringList names = cPeople(m_context.Book->Tools).Names();
    const QStringList meant = names.contains(text) ? QStringList{text} : Meant(names, text, Itself);
    if (meant.isEmpty()) {
        Missing(names.isEmpty()
                    ? cText::Tr("Noch gibt es keine Personen. \"people add NAME\" legt eine an.")
                    : cText::Tr("Die Person '{0}' gibt es nicht. Möglich sind: {1}.", {text, names.join(u", "_s)}));
    }
    return meant.value(0);
}

QString cCliReader::Payer(const QString& text)
{
    if (text.isEmpty()) {
        return {};
    }
    return IsNone(text) ? modPeople::Nobody : Person(text);
}

QStringList cCliReader::Categories(eCliNames names) const
{
    cDataAccess& data = m_context.Book->Data;
    return names == eCliNames::Used ? modTemplate::WithMains(modBookNames::UsedCategories(data))
                                    : modBookNames::Categories(data);
}

QString cCliReader::Category(const QString& text, eCliNames names)
{
    if (text.isEmpty()) {
        return {};
    }
    const QStringList paths = Categories(names);
    if (paths.contains(text)) {
        return text;
    }
    QStringList meant = Meant(paths, text, Itself);
    if (meant.isEmpty()) {
        meant = Meant(paths, text, modTemplate::SubOf);
    }
    if (meant.isEmpty()) {
        Missing(NoCategory(text, paths));
    } else if (meant.size() > 1) {
        Missing(cText::Tr("'{0}' kann mehrere Kategorien meinen: {1}.", {text, meant.join(u", "_s)}));
    }
    return meant.value(0);
}

bool cCliReader::IsCategoryPath(const QString& text, eCliNames names) const
{
    return !Meant(Categories(names), text, Itself).isEmpty();
}

QString cCliReader::NoCategory(const QString& text, const QStringList& paths) const
{
    constexpr qsizetype most = 10;
    QStringList alike;
    const QList<modFold::cFolded> words = modFold::Words(text);
    std::copy_if(paths.begin(), paths.end(), std::back_inserter(alike),
                 [&](const QString& path) { return modFold::HoldsAll(modFold::Fold(path), words); });
    const QString problem = cText::Tr("Die Kategorie '{0}' gibt es nicht.", {text}) + u' ';
    return alike.isEmpty()
        ? problem + cText::Tr("\"kontorelle-cli categories\" zeigt alle, \"categories add\" legt eine neue an.")
        : problem + cText::Tr("Ähnlich sind: {0}.", {alike.mid(0, most).join(u", "_s)});
}

modPeriod::cRange cCliReader::Period(const QString& name)
{
    const cCliCall& call = m_context.Call;
    const bool hasDays = call.Has(u"from"_s) || call.Has(u"to"_s);
    if (hasDays && call.Has(u"period"_s)) {
        Misused(cText::Tr("Bitte entweder --period oder --from und --to angeben."));
    }
    if (hasDays) {
        const QDate start = Day(call.Value(u"from"_s));
        const QDate end = Day(call.Value(u"to"_s));
        if (start.isValid() && end.isValid() && end < start) {
            Misused(cText::Tr("Der letzte Tag liegt vor dem ersten."));
        }
        return {start, end};
    }
    if (!call.Has(u"period"_s)) {
        return modPeriod::Range(name, m_context.Clock.Today(), {});
    }
    return PeriodNamed(call.Value(u"period"_s));
}

modPeriod::cRange cCliReader::PeriodNamed(const QString& text)
{
    QStringList names = modWord::Periods().Stored();
    names.removeAll(modWord::FreierZeitraum);
    return modPeriod::Range(Word(text, names, cText::Tr("Den Zeitraum '{0}' gibt es nicht.", {text})),
                            m_context.Clock.Today(), {});
}
