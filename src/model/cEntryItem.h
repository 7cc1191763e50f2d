#pragma once

#include "model/modWord.h"

#include <QDate>
#include <QList>
#include <QString>

// One entry of the book, or one occurrence of a recurring entry. The first fields are the columns of table `data`.
struct cEntryItem
{
    int ID = 0;
    QDate EntryDate; // of an occurrence: its own, or that to which a correction moved it; not the start of the series
    QDate EntryDateEnd;
    QString EntryType;
    QString EntryInterval;
    QString EntryAccount;
    QString EntryAccountMove;
    QString EntryCategory;
    qint64 EntryValue = 0; // cents, never negative; the kind of entry gives the sign
    QString EntryDescription;
    QString EntryFlags; // "key=value" joined by ";"

    // Set while a series is expanded; not stored with the entry.
    bool IsCorrected = false; // its amount; an occurrence that only moved is not
    QString CorrectionComment;
    QDate PlannedDate; // the day that the series has for an occurrence which a correction moved; else invalid

    // How it is called in lists and messages.
    [[nodiscard]] QString Name() const { return EntryDescription.isEmpty() ? EntryCategory : EntryDescription; }
    // Of other kinds a target account may be left over; it says nothing.
    [[nodiscard]] bool IsTransfer() const { return EntryType == modWord::Umbuchung; }
    // Where its money lies: "Girokonto", of a transfer "Girokonto → Sparkonto".
    [[nodiscard]] QString Accounts() const
    {
        return IsTransfer() ? EntryAccount + u" → " + EntryAccountMove : EntryAccount;
    }
    // The day of the series. It tells the period of an occurrence and its correction, whatever day it moved to.
    [[nodiscard]] QDate Planned() const { return PlannedDate.isValid() ? PlannedDate : EntryDate; }
    [[nodiscard]] bool HasCorrection() const { return IsCorrected || PlannedDate.isValid(); }

    bool operator==(const cEntryItem&) const = default;
};

Q_DECLARE_TYPEINFO(cEntryItem, Q_RELOCATABLE_TYPE); // long lists grow without copying each record

using cEntryItemList = QList<cEntryItem>;
