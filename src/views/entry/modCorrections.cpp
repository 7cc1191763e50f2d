#include "views/entry/modCorrections.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "base/modDayText.h"
#include "base/modSum.h"
#include "model/modRecurrence.h"
#include "model/modSeries.h"
#include "views/entry/modEntryFields.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;

QList<modCorrections::cLine> modCorrections::Lines(const cEntryFields& fields)
{
    QList<cLine> lines;
    for (const cEntryItemFixMod& fixMod : fields.Corrections) {
        const QString period = modDate::ToText(fixMod.EntryStartDate) + u" – "_s + modDate::ToText(fixMod.EntryEndDate);
        lines.append(
            {modRecurrence::CorrectionLabel(fixMod),
             fixMod.EntryDay.isValid() ? cText::Tr("{0}, am {1}", {period, modDate::ToText(fixMod.EntryDay)}) : period,
             modSum::ToText(fixMod.EntryValue, fields.Decimal), fixMod.EntryComment});
    }
    return lines;
}

modCorrections::eSet modCorrections::Set(const QString& dayText, const QString& amount, const QString& comment,
                                         QDate today, cEntryFields& fields)
{
    const QDate day = modDayText::Read(dayText, today);
    const cEntryItem series = modEntryFields::Series(fields, today);
    if (!day.isValid() || !series.EntryDate.isValid() || !series.EntryDateEnd.isValid()) {
        return eSet::BadDate;
    }
    const std::optional<cEntryItem> occurrence = modSeries::OccurrenceAt(series, day);
    if (!occurrence) {
        return eSet::NoOccurrence;
    }
    const std::optional<qint64> cents = modSum::Evaluate(amount, fields.Decimal);
    if (!cents) {
        return eSet::BadAmount;
    }
    cEntryItemFixMod fixMod = modSeries::CorrectionFor(*occurrence);
    fixMod.EntryValue = std::abs(*cents);
    fixMod.EntryComment = comment;
    cEntryItemFixModList& list = fields.Corrections;
    const auto isLater = [&](const cEntryItemFixMod& other) { return other.EntryStartDate >= fixMod.EntryStartDate; };
    const auto place = std::find_if(list.begin(), list.end(), isLater);
    if (place != list.end() && place->EntryStartDate == fixMod.EntryStartDate) {
        fixMod.EntryDay = place->EntryDay; // the page asks for the amount; where the occurrence lies stays
        *place = fixMod;
    } else {
        list.insert(place, fixMod);
    }
    return eSet::Done;
}

modCorrections::eSet modCorrections::Change(qsizetype line, const QString& amount, const QString& comment,
                                            cEntryFields& fields)
{
    const std::optional<qint64> cents = modSum::Evaluate(amount, fields.Decimal);
    if (!cents || line < 0 || line >= fields.Corrections.size()) {
        return eSet::BadAmount;
    }
    cEntryItemFixMod& fixMod = fields.Corrections[line];
    // What the user types is no longer what the bank said.
    const bool isOwn = fixMod.EntryValue != std::abs(*cents);
    const bool isStale = isOwn && comment == fixMod.EntryComment && modSeries::IsFromBank(comment);
    fixMod.EntryValue = std::abs(*cents);
    fixMod.EntryComment = isStale ? QString() : comment;
    return eSet::Done;
}

void modCorrections::Remove(qsizetype line, cEntryFields& fields)
{
    if (line >= 0 && line < fields.Corrections.size()) {
        fields.Corrections.removeAt(line);
    }
}
