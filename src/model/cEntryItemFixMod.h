#pragma once

#include <QDate>
#include <QList>
#include <QString>

// One correction of a recurring entry for one period, a row of table `datamod`.
struct cEntryItemFixMod
{
    int ID = 0;
    int EntryRelation = 0; // ID of the corrected entry
    QString EntryModType;
    QDate EntryStartDate; // with EntryRelation the key of a correction
    QDate EntryEndDate;
    qint64 EntryValue = 0; // cents
    QString EntryComment;
    QDate EntryDay{}; // to which the occurrence moves; invalid: the day of the series. Stored behind the kind.

    bool operator==(const cEntryItemFixMod&) const = default;
};

using cEntryItemFixModList = QList<cEntryItemFixMod>;
