#pragma once

#include "model/cEntryItem.h"
#include "model/modRecurrence.h"
#include "model/modWord.h"

// A one-off expense of 10 euros on 2026-03-10, unless something else is said.
struct cTestEntry
{
    [[nodiscard]] cEntryItem Make() const
    {
        cEntryItem entry;
        entry.EntryDate = Day;
        entry.EntryDateEnd = End;
        entry.EntryType = Type;
        entry.EntryInterval = Interval;
        entry.EntryAccount = Account;
        entry.EntryAccountMove = Target;
        entry.EntryCategory = Category;
        entry.EntryValue = Cents;
        entry.EntryDescription = Text;
        return entry;
    }

    QDate Day = QDate(2026, 3, 10);
    qint64 Cents = 1000;
    QString Text = {};
    QString Category = QStringLiteral("Haushalt; Lebensmittel");
    QString Type = modWord::Ausgabe;
    QString Account = QStringLiteral("Girokonto");
    QString Target = {};
    QString Interval = modWord::Einmalig;
    QDate End = modRecurrence::OpenEnd;
};
