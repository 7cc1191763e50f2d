#include "views/ledger/modImportText.h"

#include "base/cText.h"
#include "base/modCount.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "import/match/modMatchScore.h"
#include "import/propose/cBooking.h"
#include "import/stage/cImportResult.h"
#include "model/cMatch.h"
#include "model/cProposal.h"
#include "model/cRowPlan.h"
#include "model/modCutText.h"

#include <QFileInfo>

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype shownProblems = 20; // more lines tell the user nothing new

} // namespace

QString modImportText::Numbers(const cImportResult& result, const cAmountFormat& format)
{
    QStringList parts{cText::Tr("{0} gelesen", {QString::number(result.Read)}),
                      cText::Tr("{0} neu", {QString::number(result.Staged)})};
    if (const qsizetype known = result.Duplicates.size() + result.Alike.size(); known > 0) {
        parts.append(cText::Tr("{0} schon vorhanden", {QString::number(known)}));
    }
    if (result.Proven > 0) {
        parts.append(
            cText::Tr("{0} davon mehrfach gleich, durch den Kontostand belegt", {QString::number(result.Proven)}));
    }
    if (result.Told > 0) {
        parts.append(cText::Tr("{0} davon mehrfach gleich, von der Bank einzeln gekennzeichnet",
                               {QString::number(result.Told)}));
    }
    if (!result.Repeats.isEmpty()) {
        parts.append(cText::Tr("{0} mehrfach gleich", {QString::number(result.Repeats.size())}));
    }
    if (!result.Deleted.isEmpty()) {
        parts.append(cText::Tr("{0} früher gelöscht", {QString::number(result.Deleted.size())}));
    }
    if (result.Zero > 0) {
        parts.append(cText::Tr("{0} ohne Betrag", {QString::number(result.Zero)}));
    }
    if (result.Failed > 0) {
        parts.append(cText::Tr("{0} nicht gespeichert", {QString::number(result.Failed)}));
    }
    if (result.ClosingBalance) {
        parts.append(cText::Tr("Schlusssaldo {0}", {format.Cents(*result.ClosingBalance)}));
    }
    if (result.IsAccountRemembered && !result.Accounts.isEmpty()) {
        parts.append(cText::Tr("wie zuletzt von Konto {0}", {result.Accounts.constFirst()}));
    }
    return parts.join(u", "_s);
}

QString modImportText::Count(int rows)
{
    return rows == 1 ? cText::Tr("Ein Umsatz") : modCount::Rows(rows);
}

QString modImportText::Problem(const cReadProblem& problem)
{
    return problem.Line > 0 ? cText::Tr("Zeile {0}: {1}", {QString::number(problem.Line), problem.Text}) : problem.Text;
}

QStringList modImportText::Summary(const cImportResult& result, const cAmountFormat& format)
{
    const QString name = result.IsFetched ? result.File : QFileInfo(result.File).fileName();
    if (result.IsRefused) {
        return {cText::Tr("{0}: nicht eingelesen. {1}", {name, result.Message})};
    }
    if (result.IsCancelled) {
        return {cText::Tr("{0}: abgebrochen, nichts davon übernommen.", {name})};
    }
    QStringList lines;
    QList<cReadProblem> problems = result.Problems;
    for (const cSkippedRow& row : result.Skipped) {
        problems.insert(row.Kind == eSkipped::CutOff ? 0 : problems.size(), row.Reason); // what is cut off says most
    }
    for (const cReadProblem& problem : std::as_const(problems)) {
        lines.append(Problem(problem));
    }
    return QStringList(cText::Tr("{0}: {1}", {name, Numbers(result, format)})) + modCount::Cut(lines, shownProblems);
}

QStringList modImportText::Readings(const cTableDoubt& doubt, const cAmountFormat& format)
{
    QStringList readings;
    for (const cImportEntry& entry : {doubt.AsWritten, doubt.Negated}) {
        const QString sign = entry.ImportValue > 0 ? u"+"_s : QString();
        QStringList parts{modDate::ToText(entry.ImportDate), entry.ImportBeneficiary.simplified(),
                          entry.ImportPurpose.simplified().left(60), sign + format.Cents(entry.ImportValue)};
        parts.removeAll(QString());
        readings.append(parts.join(u"  ·  "_s));
    }
    return readings;
}

QString modImportText::Question(const cTableDoubt& doubt, const cAmountFormat& format)
{
    const QString sign = doubt.Negated.ImportValue > 0 ? u"+"_s : QString();
    return cText::Tr("{0} oder {1}?",
                     {Readings(doubt, format).constFirst(), sign + format.Cents(doubt.Negated.ImportValue)});
}

QString modImportText::Row(const cImportEntry& row, const cAmountFormat& format)
{
    QStringList parts{
        modDate::ToText(row.ImportDate), format.Cents(row.ImportValue),
        modCutText::Name(row.ImportBeneficiary).simplified(),
        (row.ImportPurpose.isEmpty() ? row.ImportType : modCutText::Purpose(row.ImportPurpose)).simplified()};
    parts.removeAll(QString());
    return parts.join(u"  ·  "_s);
}

QString modImportText::Details(const cImportEntry& row)
{
    QStringList lines{modCutText::Name(row.ImportBeneficiary), modCutText::Purpose(row.ImportPurpose), row.ImportType,
                      QString(row.ImportBeneficiaryAccount + u' ' + row.ImportBeneficiaryBLZ).trimmed()};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString modImportText::Booked(const cBookingResult& result)
{
    QStringList parts{cText::Tr("{0} gebucht", {Count(result.Rows)})};
    parts.append(result.Entries == 1 ? cText::Tr("ein neuer Eintrag")
                                     : cText::Tr("{0} neue Einträge", {QString::number(result.Entries)}));
    if (result.Joined > 0) {
        parts.append(result.Joined == 1 ? cText::Tr("einer davon zu einem vorhandenen Eintrag")
                                        : cText::Tr("{0} zu vorhandenen Einträgen", {QString::number(result.Joined)}));
    }
    if (result.Failed > 0) {
        parts.append(
            cText::Tr("{0} nicht gebucht, weil die Datenbank nicht schreibt", {QString::number(result.Failed)}));
    }
    return parts.join(u", "_s) + u'.';
}

QString modImportText::WithoutCategory(int bare, int entries)
{
    return bare == entries && bare == 1
        ? cText::Tr("Der Eintrag steht unter 'Allgemein', weil keine Kategorie bekannt ist.")
        : cText::Tr("{0} davon unter 'Allgemein', weil keine Kategorie bekannt ist.", {QString::number(bare)});
}

QString modImportText::NoAccount(const QString& number)
{
    return number.isEmpty()
        ? cText::Tr("Umsätze ohne Kontonummer haben noch kein Konto und werden nicht gebucht.")
        : cText::Tr("Die Kontonummer {0} hat noch kein Konto; ihre Umsätze werden nicht gebucht.", {number});
}

QString modImportText::NoAccountToMatch(const QString& number)
{
    return number.isEmpty()
        ? cText::Tr("Umsätze ohne Kontonummer haben noch kein Konto und bleiben offen.")
        : cText::Tr("Die Kontonummer {0} hat noch kein Konto; ihre Umsätze bleiben offen.", {number});
}

QString modImportText::EntryName(const cEntryItem& entry)
{
    return cText::Tr("'{0}' vom {1}", {entry.Name().simplified(), modDate::ToShortText(entry.EntryDate)});
}

QString modImportText::Candidate(const cMatchCandidate& candidate)
{
    return cText::Tr("{0} ({1})", {EntryName(candidate.Entry), Percent(candidate.Score)});
}

QString modImportText::Percent(double share)
{
    return cText::Tr("{0} %", {QString::number(std::lround(share * 100.0))});
}

QString modImportText::Reason(const cRowPlan& plan)
{
    if (plan.Match && plan.Group == eRowGroup::InBook) {
        return cText::Tr("schon im Buch: {0} ({1})", {EntryName(plan.Match->Entry), plan.Reason});
    }
    if (plan.Match) {
        return cText::Tr("passt zu {0}", {Candidate(*plan.Match)});
    }
    const QString reason = plan.Reason.isEmpty() ? cText::Tr("keine Regel passt") : plan.Reason;
    const bool isSaid = plan.Proposal.ExistingEntry == 0 || !plan.Proposal.BookedAs.isEmpty();
    return isSaid ? reason : cText::Tr("{0}; gehört zu einem vorhandenen Eintrag", {reason});
}

QString modImportText::Group(eRowGroup group)
{
    switch (group) {
    case eRowGroup::InBook: return cText::Tr("schon im Buch");
    case eRowGroup::Sure: return cText::Tr("sicher");
    case eRowGroup::Look: break;
    }
    return cText::Tr("bitte ansehen");
}

QString modImportText::TwinReason(const cRowTwin& twin)
{
    const bool isCounterparty = twin.Same == cRowTwin::eSame::Counterparty;
    if (twin.Days == 0) {
        return isCounterparty ? cText::Tr("gleicher Tag, Betrag und Gegenkonto")
                              : cText::Tr("gleicher Tag, Betrag und ähnlicher Name");
    }
    const QStringList days{modMatchScore::DayText(twin.Days)};
    return isCounterparty ? cText::Tr("gleicher Betrag und Gegenkonto, {0}", days)
                          : cText::Tr("gleicher Betrag und ähnlicher Name, {0}", days);
}
