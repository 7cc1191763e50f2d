#pragma once

#include "model/cImportEntry.h"
#include "model/cMatch.h"
#include "model/cOwnRule.h"
#include "model/cRowPlan.h"
#include "views/statement/cPlanFlow.h"

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class cMatchFlow;
class cSeriesCheck;
class cStatementFiles;
struct cBookTools;
struct cFileFinding;
struct cFilesReport;
struct cFileWish;
struct cImportResult;
struct cLayoutTaken;

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

    // What is to become of the open ones of the rows, as the review shows it.
    [[nodiscard]] QHash<int, cRowPlan> Propose(const QList<int>& rowIds);

    // What came of booking.
    struct cBooked
    {
        QStringList Lines;           // for the user
        QStringList UnknownAccounts; // numbers without account; their rows were not booked
        int Left = 0;                // rows that stay open because somebody should look at them
        bool IsDone = false;         // all other rows were booked
    };
    // Brings the rows into the book as the review does by Enter, with its questions.
    [[nodiscard]] cBooked Book(const QList<int>& rowIds);
    // Of the rows what is in the book already or sure, as the review does by "Vorschläge annehmen".
    [[nodiscard]] cBooked Accept(const QList<int>& rowIds);

    [[nodiscard]] cMatchFlow& Matching();
    [[nodiscard]] cMatchResult TryMatching(const QList<int>& rowIds); // writes nothing
    // The entries that a row may belong to, best first; see cMatcher.
    [[nodiscard]] QList<cMatchCandidate> Candidates(int rowId);
    [[nodiscard]] std::optional<cMatchCandidate> ByHand(int rowId, int entryId);

    // Series that the bank does not pay any more, or not yet.
    [[nodiscard]] cSeriesCheck Series();

    // The place of the first rule that matches, by row; -1 for none.
    [[nodiscard]] QList<int> FirstRules(const cImportEntryList& rows, const QList<cOwnRule>& rules);

    // Reads files. Numbers that the book does not know get the account of the wish, else one that something speaks for,
    // else one of their own. The first statement of an account sets its start balance.
    [[nodiscard]] cFilesReport ImportFiles(const QStringList& paths, const cFileWish& wish);
    // Where an online fetch hands over what it brought.
    [[nodiscard]] cStatementFiles& Files();

    // What a file is and how it would be read; a refusal when it cannot be opened.
    [[nodiscard]] cFileFinding Examine(const QString& path, const cFileWish& wish);

    // The layouts that are known by name.
    [[nodiscard]] static QStringList LayoutNames();
    // Writes the layout of a table, as it would be read, as a file for others; see modLayoutFile. What went wrong in
    // German, empty when it is written.
    [[nodiscard]] QString ExportLayout(const QString& path, const cFileWish& wish, const QString& target);
    // Takes such a file; see cLayoutTaken.
    [[nodiscard]] cLayoutTaken ImportLayout(const QString& path);

private:
    struct cWorks; // the tools of the import floor

    [[nodiscard]] cBooked Booked(const cPlanFlow::cOutcome& outcome);
    // False, with a note, when that was wanted and cannot be.
    [[nodiscard]] bool RememberLayout(const cImportResult& result, const cFileWish& wish, QStringList& notes);
    [[nodiscard]] bool SaveLayout(const QString& path, const cFileWish& wish);

    const cBookTools& m_tools;
    std::unique_ptr<cWorks> m_works;
};
