#pragma once

#include "model/cImportEntry.h"
#include "model/cMatch.h"
#include "model/cOwnRule.h"
#include "model/cProposal.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class cMatchFlow;
class cStatementFiles;
struct cBookTools;
struct cFileFinding;
struct cFileReport;
struct cFileWish;

// The staged rows of a book with all that is done with them, for a program that shows no page of them. Nobody is asked
// how a file is to be read.
class cStatementDesk
{
public:
    explicit cStatementDesk(const cBookTools& tools); // outlive the desk
    ~cStatementDesk();

    [[nodiscard]] cImportEntryList Rows();
    [[nodiscard]] std::optional<cImportEntry> Row(int id);
    [[nodiscard]] QList<int> OpenIds();

    [[nodiscard]] QHash<int, cProposal> Propose(const QList<int>& rowIds);

    // What came of booking.
    struct cBooked
    {
        QString Text;
        QStringList UnknownAccounts; // numbers without account; their rows were not booked
        bool IsDone = false;         // all rows were booked
    };
    // Books the rows as they are proposed.
    [[nodiscard]] cBooked Book(const QList<int>& rowIds);

    [[nodiscard]] cMatchFlow& Matching();
    [[nodiscard]] cMatchResult TryMatching(const QList<int>& rowIds); // writes nothing
    // The entries that a row may belong to, best first; see cMatcher.
    [[nodiscard]] QList<cMatchCandidate> Candidates(int rowId);
    [[nodiscard]] std::optional<cMatchCandidate> ByHand(int rowId, int entryId);

    // The place of the first rule that matches, by row; -1 for none.
    [[nodiscard]] QList<int> FirstRules(const cImportEntryList& rows, const QList<cOwnRule>& rules);

    // Reads a file. Numbers that the book does not know get the account of the wish, else one that something speaks
    // for, else one of their own. The first statement of an account sets its start balance.
    [[nodiscard]] cFileReport ImportFile(const QString& path, const cFileWish& wish);
    // Gives the numbers that the book does not know the wanted account, else one that something speaks for, else one
    // of their own, and notes it. False when the database refuses.
    [[nodiscard]] bool AssignAccounts(const QStringList& numbers, const QString& wanted, QStringList& notes);
    // Where an online fetch hands over what it brought.
    [[nodiscard]] cStatementFiles& Files();

    // What a file is and how it would be read; a refusal when it cannot be opened.
    [[nodiscard]] cFileFinding Examine(const QString& path, const cFileWish& wish);

private:
    struct cWorks; // the tools of the import floor

    [[nodiscard]] bool TakeStart(const QString& number, QStringList& notes);
    [[nodiscard]] bool RememberLayout(const QString& path, const cFileWish& wish, QStringList& notes);

    const cBookTools& m_tools;
    std::unique_ptr<cWorks> m_works;
};
