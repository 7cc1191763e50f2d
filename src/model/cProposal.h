#pragma once

#include "model/cEntryItem.h"
#include "model/cImportEntry.h"
#include "model/modWord.h"

#include <QDate>
#include <QString>

// The entry that a staged row should become.
struct cProposal
{
    cEntryItem Entry;       // complete but for EntryAccount where the row's account number is not assigned yet
    QString Reason;         // "gelernt aus 5 Buchungen an REWE", "Eigene Regel: rewe"; empty for the mere default
    bool IsDefault = false; // nothing is known about the category
    bool IsSure = false;    // can be booked unseen
    int PartnerRow = 0;     // the other staged row of a transfer between own accounts; 0 when there is none
    int ExistingEntry = 0;  // entry in the book that the row belongs to (its series, or the transfer that waits for its
                            // second row); 0 when a new one is to be made
    QDate Occurrence;       // of its series, the planned day of the occurrence that the row pays
    QString BookedAs;       // what that entry is as long as it is not the transfer that it becomes; else empty
    bool IsMissed = false;  // a transfer that the statement of the other account does not show
    bool HasOwnCategory = false; // the user chose it, so an entry that is there gets it as well
    bool HasOwnText = false;     // the same for the description
    bool IsAlone = false;        // a new entry is wanted, also where a series would take the row

    // The transfer is none: the row is an expense or an income of its own account.
    void MakeSpent(const cImportEntry& row, const QString& account)
    {
        Entry.EntryType = row.ImportValue > 0 ? modWord::Einnahme : modWord::Ausgabe;
        Entry.EntryAccount = account;
        Entry.EntryAccountMove.clear();
        Entry.EntryDate = row.ImportDate; // that of a transfer may be the other account's
        PartnerRow = ExistingEntry = 0;
        BookedAs.clear();
        IsMissed = false;
    }
};
