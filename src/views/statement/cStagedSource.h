#pragma once

#include <QString>

struct cImportEntry;

// The groups of the review in their order: what is to be done with an open row. Of a pile that is too high to be
// planned at once some are not known yet.
enum class eStagedGroup { InBook, Sure, Look, Unknown, Booked };

// What is known of a bank transaction beyond its row: where it goes, or where it went.
struct cStagedInfo
{
    QString Account; // of the book; empty when the bank's number is not assigned yet
    QString Category;
    QString Interval;         // stored word
    QString Reason;           // why this category is proposed, or what speaks against booking the row
    QString Hint;             // more about a doubt; empty without one
    bool HasCategory = false; // one that says something; a transfer needs none
    bool IsDoubtful = false;  // the same transaction may be there twice
};

// Where the list asks for what it shows beyond the rows. Asked for the rows in sight only, unless the list is sorted by
// one of these columns.
class cStagedSource
{
public:
    cStagedSource() = default;
    cStagedSource(const cStagedSource&) = delete;
    cStagedSource& operator=(const cStagedSource&) = delete;
    virtual ~cStagedSource() = default;

    [[nodiscard]] virtual cStagedInfo Info(const cImportEntry& row) = 0;
    // Never takes long; asked for every row that is shown in groups.
    [[nodiscard]] virtual eStagedGroup Group(const cImportEntry& row) = 0;
};
