#pragma once

#include "views/entry/cEntryFields.h"

#include <QDate>
#include <QList>
#include <QString>

// The corrections page of the editor. Changes count when the editor is saved, in the same step as the rest.
namespace modCorrections {

// One line of the page.
struct cLine
{
    QString Label;  // "Manuelle Korrektur vom {0}"
    QString Period; // "01.03.2026 – 31.03.2026", and "…, am 04.03.2026" of one that names its day
    QString Amount; // "12,50"
    QString Comment;
};

enum class eSet { Done, BadAmount, BadDate, NoOccurrence };

[[nodiscard]] QList<cLine> Lines(const cEntryFields& fields);

// Corrects the period that holds the day, in place of an earlier correction of it. The sign of the amount is ignored.
// BadDate: the text is no day, or one of the days of the series cannot be read. NoOccurrence: the series has none in
// a period around that day.
[[nodiscard]] eSet Set(const QString& dayText, const QString& amount, const QString& comment, QDate today,
                       cEntryFields& fields);

// Changes amount and comment of a line.
[[nodiscard]] eSet Change(qsizetype line, const QString& amount, const QString& comment, cEntryFields& fields);

void Remove(qsizetype line, cEntryFields& fields);

} // namespace modCorrections
