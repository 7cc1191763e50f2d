#include "views/entry/modEntryFields.h"

#include "base/modDayText.h"
#include "base/modSum.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

QDate modEntryFields::FirstDay(const cEntryFields& fields, QDate today)
{
    if (!fields.DateText.trimmed().isEmpty()) {
        return modDayText::Read(fields.DateText, today);
    }
    return fields.Date.isValid() || fields.IsDayKept ? fields.Date : today;
}

bool modEntryFields::KeepsDay(const cEntryFields& fields)
{
    return fields.IsDayKept && !fields.Date.isValid() && fields.DateText.trimmed().isEmpty();
}

QDate modEntryFields::LastDay(const cEntryFields& fields, QDate today)
{
    if (!fields.HasEnd) {
        return modRecurrence::OpenEnd;
    }
    if (!fields.EndText.trimmed().isEmpty()) {
        return modDayText::Read(fields.EndText, today);
    }
    return fields.End.isValid() ? fields.End : modRecurrence::OpenEnd;
}

QDate modEntryFields::CancelBy(const cEntryFields& fields, QDate today)
{
    const bool isSeries = fields.Face != eEntryFace::StartBalance && modRecurrence::IsRecurring(fields.Interval);
    if (!isSeries || fields.CancelByText.trimmed().isEmpty()) {
        return isSeries ? fields.CancelBy : QDate();
    }
    return modDayText::Read(fields.CancelByText, today);
}

bool modEntryFields::IsCancelByReadable(const cEntryFields& fields, QDate today)
{
    const bool isTyped = modRecurrence::IsRecurring(fields.Interval) && !fields.CancelByText.trimmed().isEmpty();
    return !isTyped || CancelBy(fields, today).isValid();
}

cEntryItem modEntryFields::Series(const cEntryFields& fields, QDate today)
{
    cEntryItem series;
    series.EntryDate = FirstDay(fields, today);
    series.EntryInterval = fields.Interval.isEmpty() ? modWord::Einmalig : fields.Interval;
    const bool isSeries = modRecurrence::IsRecurring(series.EntryInterval);
    series.EntryDateEnd = isSeries ? LastDay(fields, today) : modRecurrence::OpenEnd;
    return series;
}
