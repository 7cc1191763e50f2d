#pragma once

#include <QDate>
#include <QString>

// Which of an entry's intervals a query wants.
enum class eBookingKind { All, Single, Fix };

// What GetEntries looks for. An invalid date leaves that side open, an empty text does not filter.
struct cEntryQuery
{
    QDate Start;
    QDate End;
    QString Type; // "Einnahmen", "Ausgaben", "Umbuchungen"; anything else means all types
    QString Account;
    QString Category;
    eBookingKind Kind = eBookingKind::All;
};
