#pragma once

#include "base/modSum.h"
#include "model/cEntryItemFixMod.h"
#include "model/cReceiptSource.h"

#include <QDate>
#include <QList>
#include <QString>

// Which form the editor shows.
enum class eEntryFace { Normal, Split, StartBalance };

// What came of saving. The bad field is coloured and keeps the focus; BadTarget and an end before the start have shown
// their message, the others come without. Refused has shown its message too, or the user has declined.
enum class eEntrySaved { Saved, BadAmount, BadPart, BadDate, BadEnd, BadCancelBy, BadTarget, Refused };

// One row of the split table.
struct cSplitPart
{
    int ID = 0; // of the stored part; 0 for a new one
    QString Category{};
    QString Description{};
    QString Amount{}; // as typed, sums too; below zero it is of the opposite kind (a deposit returned at the checkout)
    QString CategoryText{}; // what is typed while Category is empty: a text that names no category yet

    bool operator==(const cSplitPart&) const = default;
};

// The fields of the entry editor as the user sees them.
struct cEntryFields
{
    eEntryFace Face = eEntryFace::Normal;
    eDecimal Decimal = eDecimal::Comma; // how amounts are typed and shown here
    QString Amount;               // as typed; in the split face the whole amount, in the start-balance face with sign
    bool IsAmountTyped = false;   // the user has edited the amount
    bool IsAccountChosen = false; // the user has chosen the account, so that a proposal leaves it alone
    QString Description;
    QString Category;     // path; empty while none is chosen
    QString CategoryText; // what is typed while Category is empty: a text that names no category yet
    QString Type;         // stored word; empty while none is chosen
    QString BroughtType;  // by a category or the entry before; while Type is still that, nobody has chosen otherwise
    QString OpenType;     // of the entry before: what Type is again when a category brings none
    QString Account;
    QString Target;   // only for transfers
    QString Payer;    // who paid; empty for nobody in particular
    QDate Date;       // invalid means today
    QString DateText; // the day as typed; what stands here counts instead of Date
    bool IsDayKept =
        false; // the stored day cannot be read, and stays while neither Date nor DateText names another one
    bool HasEnd = false;
    QDate End;                         // only with HasEnd
    QString EndText;                   // the last day as typed; what stands here counts instead of End
    QDate CancelBy;                    // of a series that is a contract; invalid: it is none
    QString CancelByText;              // the same as typed; what stands here counts instead of CancelBy
    QString Interval;                  // stored word; empty while none is chosen
    QString BroughtInterval;           // by a category; while Interval is still that, nobody has chosen otherwise
    QList<cSplitPart> Parts;           // only in the split face; rows without any text are passed over
    cEntryItemFixModList Corrections;  // of an existing series, by period; taken over on saving
    QList<cReceiptSource> NewReceipts; // copied and hung at the entry on saving

    bool operator==(const cEntryFields&) const = default;
};
