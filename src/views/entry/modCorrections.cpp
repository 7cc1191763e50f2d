#include "views/entry/modCorrections.h"

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
        lines.append({modRecurrence::CorrectionLabel(fixMod),
                      modDate::ToGerman(fixMod.EntryStartDate) + u" – "_s + modDate::ToGerman(fixMod.EntryEndDate),
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
    fields.Corrections[line].EntryValue = std::abs(*cents);
    fields.Corrections[line].EntryComment = comment;
    return eSet::Done;
}

void modCorrections::Remove(qsizetype line, cEntryFields& fields)
{
    if (line >= 0 && line < fields.Corrections.size()) {
        fields.Corrections.removeAt(line);
    }
}
