#include "views/entry/cSeriesChange.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "base/modDayText.h"
#include "base/modSum.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "store/cUndoStep.h"
#include "views/common/modUnsaved.h"
#include "views/entry/cReconciledDays.h"

#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

namespace {

QString LeftOut()
{
    return cText::Tr("Ausgelassen");
}

} // namespace

cSeriesChange::cSeriesChange(const cBookTools& tools, eReconciled reconciled)
    : m_tools(tools),
      m_data(tools.Data),
      m_reconciled(reconciled)
{
}

bool cSeriesChange::Step(const QString& name, const std::function<bool()>& write)
{
    cUndoStep step(m_data, name);
    if (m_reconciled == eReconciled::Leave) {
        return step.DoneIf(write());
    }
    cReconciledGuard guard(m_tools);
    return step.DoneIf(write() && guard.Allows());
}

std::optional<cEntryItem> cSeriesChange::Occurrence(int entryId, QDate day)
{
    const std::optional<cEntryItem> series = m_data.LoadEntry(entryId);
    return series && day.isValid() ? modSeries::OccurrenceAt(*series, day) : std::nullopt;
}

bool cSeriesChange::IsOccurrence(int entryId, QDate day)
{
    const std::optional<cEntryItem> occurrence = Occurrence(entryId, day);
    return occurrence && occurrence->EntryDate == day;
}

cSeriesChange::eEdit cSeriesChange::AskWhatToEdit(int entryId, QDate day)
{
    const std::optional<cEntryItem> series = m_data.LoadEntry(entryId);
    if (!series || !IsOccurrence(entryId, day)) {
        return eEdit::Entry;
    }
    QList<eEdit> edits{eEdit::Period};
    QStringList options{cText::Tr("Nur diesen Zeitraum")};
    if (day > series->EntryDate) {
        edits.append(eEdit::FromHere);
        options.append(cText::Tr("Ab hier"));
    }
    edits.append(eEdit::Entry);
    options.append(cText::Tr("Ganze Serie"));
    const QString earlier = EarlierText(entryId, day);
    const int choice = m_tools.User.Decide(
        {.Text = cText::Tr("'{0}' vom {1} gehört zu einer Serie ({2} seit {3}).\nWas möchten Sie ändern?",
                           {series->Name(), DayText(entryId, day), modWord::Intervals().ToShown(series->EntryInterval),
                            modDate::ToText(series->EntryDate)})
             + (earlier.isEmpty() || options.size() < 3 ? QString() : u"\n\n"_s + earlier),
         .Title = cText::Tr("Serie bearbeiten"),
         .Options = options});
    return edits.value(choice, eEdit::Nothing);
}

std::optional<cEntryItemFixMod> cSeriesChange::Correction(int entryId, QDate day)
{
    const std::optional<cEntryItem> occurrence = Occurrence(entryId, day);
    if (!occurrence) {
        return std::nullopt;
    }
    const QDate start = modSeries::CorrectionFor(*occurrence).EntryStartDate;
    const cEntryItemFixModList fixMods = m_data.GetEntryMods(entryId);
    for (const cEntryItemFixMod& fixMod : fixMods) {
        if (fixMod.EntryStartDate == start) {
            return fixMod;
        }
    }
    return std::nullopt;
}

QString cSeriesChange::DayText(int entryId, QDate day)
{
    const QDate moved = Correction(entryId, day).value_or(cEntryItemFixMod{}).EntryDay;
    return moved.isValid() && moved != day
        ? cText::Tr("{0} (geplant am {1})", {modDate::ToText(moved), modDate::ToText(day)})
        : modDate::ToText(day);
}

QString cSeriesChange::EarlierText(int entryId, QDate from)
{
    const std::optional<cEntryItem> first = Occurrence(entryId, from);
    if (!first) {
        return {};
    }
    const QDate start = modSeries::CorrectionFor(*first).EntryStartDate;
    const cEntryItemFixModList fixMods = m_data.GetEntryMods(entryId);
    const QDate moved = Correction(entryId, from).value_or(cEntryItemFixMod{}).EntryDay;
    const QDate shown = moved.isValid() ? moved : first->EntryDate;
    QStringList days;
    for (const cEntryItemFixMod& fixMod : fixMods) {
        const bool isEarlier = fixMod.EntryStartDate > start && fixMod.EntryDay.isValid() && fixMod.EntryDay < shown;
        const auto occurrence = isEarlier ? Occurrence(entryId, fixMod.EntryStartDate) : std::nullopt;
        if (occurrence) {
            days.append(DayText(entryId, occurrence->EntryDate));
        }
    }
    return days.isEmpty()
        ? QString()
        : cText::Tr("Zu \"Ab hier\" gehört auch, was auf einen Tag davor verschoben ist: {0}.", {days.join(u", "_s)});
}

std::optional<cSeriesChange::cPeriodFields> cSeriesChange::StartPeriod(int entryId, QDate day, QDate today)
{
    const std::optional<cEntryItem> occurrence = Occurrence(entryId, day);
    if (!occurrence) {
        return std::nullopt;
    }
    const std::optional<cEntryItemFixMod> correction = Correction(entryId, day);
    const cEntryItemFixMod period = modSeries::CorrectionFor(*occurrence);
    cPeriodFields fields;
    fields.EntryId = entryId;
    fields.Day = occurrence->EntryDate;
    fields.Title =
        cText::Tr("'{0}' vom {1} bis {2}",
                  {occurrence->Name(), modDate::ToText(period.EntryStartDate), modDate::ToText(period.EntryEndDate)});
    fields.Today = today;
    fields.DayText = modDate::ToText(correction && correction->EntryDay.isValid() ? correction->EntryDay : fields.Day);
    fields.Amount =
        modSum::ToText(correction ? correction->EntryValue : occurrence->EntryValue, m_tools.Format.Decimal());
    fields.Decimal = m_tools.Format.Decimal();
    fields.Comment = correction ? correction->EntryComment : QString();
    fields.IsCorrected = correction.has_value();
    return fields;
}

cSeriesChange::eSaved cSeriesChange::SavePeriod(const cPeriodFields& fields)
{
    const std::optional<qint64> cents = modSum::Evaluate(fields.Amount, fields.Decimal);
    if (!cents) {
        return eSaved::BadAmount;
    }
    const bool isAsked = fields.Today.isValid() && !fields.DayText.trimmed().isEmpty();
    const QDate day = isAsked ? modDayText::Read(fields.DayText, fields.Today) : fields.Day;
    if (!day.isValid()) {
        return eSaved::BadDay;
    }
    const std::optional<QDate> moveTo = fields.Today.isValid() ? std::optional(day) : std::nullopt;
    return CorrectPeriod(fields.EntryId, fields.Day, *cents, fields.Comment, moveTo) ? eSaved::Saved : eSaved::Refused;
}

eAnswer cSeriesChange::AskToSave() const
{
    return modUnsaved::Ask(m_tools.User);
}

bool cSeriesChange::CorrectPeriod(int entryId, QDate day, qint64 cents, const QString& comment,
                                  const std::optional<QDate>& moveTo)
{
    const std::optional<cEntryItem> occurrence = Occurrence(entryId, day);
    if (!occurrence) {
        return false;
    }
    const cEntryItemFixMod before = Correction(entryId, day).value_or(modSeries::CorrectionFor(*occurrence));
    cEntryItemFixMod fixMod = modSeries::CorrectionFor(*occurrence);
    fixMod.EntryValue = std::abs(cents);
    fixMod.EntryDay = moveTo.value_or(before.EntryDay);
    if (fixMod.EntryDay == occurrence->EntryDate && fixMod.EntryDay != before.EntryDay) {
        fixMod.EntryDay = {};
    }
    // What the user types is no longer what the bank said, and with an amount it is no longer left out.
    const bool isOwn = fixMod.EntryValue != before.EntryValue || fixMod.EntryDay != before.EntryDay;
    const bool isStale = isOwn && comment == before.EntryComment && modSeries::IsFromBank(comment);
    const bool isBack = fixMod.EntryValue != 0 && comment == LeftOut();
    fixMod.EntryComment = isBack || isStale ? QString() : comment;
    return Store(fixMod,
                 fixMod.EntryDay == before.EntryDay ? cText::Tr("Betrag von '{0}' korrigiert", {occurrence->Name()})
                                                    : cText::Tr("'{0}' verschoben", {occurrence->Name()}));
}

bool cSeriesChange::SkipPeriod(int entryId, QDate day)
{
    const std::optional<cEntryItem> occurrence = Occurrence(entryId, day);
    if (!occurrence) {
        return false;
    }
    cEntryItemFixMod fixMod = modSeries::CorrectionFor(*occurrence);
    fixMod.EntryDay = Correction(entryId, day).value_or(fixMod).EntryDay;
    fixMod.EntryComment = LeftOut();
    return Store(fixMod, cText::Tr("'{0}' einmal ausgelassen", {occurrence->Name()}));
}

bool cSeriesChange::Store(const cEntryItemFixMod& fixMod, const QString& step)
{
    return Step(step, [&] { return m_data.AddNewEntryMod(fixMod); });
}

bool cSeriesChange::RemoveCorrection(int entryId, QDate day)
{
    const std::optional<cEntryItemFixMod> correction = Correction(entryId, day);
    const std::optional<cEntryItem> entry = m_data.LoadEntry(entryId);
    if (!correction || !entry) {
        return false;
    }
    return Step(cText::Tr("Korrektur von '{0}' entfernt", {entry->Name()}),
                [&] { return m_data.DeleteEntryMod(correction->ID); });
}
