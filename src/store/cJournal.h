#pragma once

#include "store/cDatabase.h"

#include <QString>

#include <deque>
#include <set>
#include <utility>
#include <vector>

// What the program has written since a database was opened, in steps that can be taken back and done again. The
// database tells it of every row before a statement writes it, and it keeps the row as it was, value by value, so that
// also texts in older or unreadable forms come back unchanged. Failures are thrown as cDatabaseError.
class cJournal
{
public:
    explicit cJournal(cDatabase& database);
    cJournal(const cJournal&) = delete;
    cJournal& operator=(const cJournal&) = delete;
    ~cJournal();

    // Everything written until End is one step of the user. A step within a step belongs to the outer one.
    void Begin(const QString& name);
    void End();
    [[nodiscard]] bool IsOpen() const { return m_depth > 0; }
    // Takes back what the open step has written so far; the step goes on empty.
    void Revert();

    // A part of the open step can be taken back by itself; parts may lie within parts. Outside of a step it does
    // nothing.
    void BeginPart();
    void EndPart();
    void RevertPart(); // the part goes on empty

    // The name of the step that Undo or Redo would work on; empty when there is none.
    [[nodiscard]] QString UndoName() const;
    [[nodiscard]] QString RedoName() const;

    // Both work on the newest step. After a failure the step is still there and can be tried again.
    void Undo();
    void Redo();

    // Forgets all steps, because what they know may not be true any more.
    void Forget();

private:
    // A row is known by its table (the place in the list of tables) and its row ID, which is its ID where that is the
    // primary key.
    using cRowKey = std::pair<std::size_t, qint64>;

    // One row as it was; without values it was not there.
    struct cImage
    {
        cRowKey Key;
        cBoundList Values;
    };

    struct cStep
    {
        QString Name;
        std::vector<cImage> Images;
        std::set<cRowKey> Known; // rows that already have their image
    };

    // Rows get a new image within a part, so that they can come back to what they were when it began.
    struct cPart
    {
        std::size_t First = 0; // of its images among those of the step
        std::set<cRowKey> Known;
    };

    void Note(const cRowBefore& row);
    void WriteBack(const std::vector<cImage>& images);
    [[nodiscard]] cStep Apply(const cStep& step); // the step that leads back again
    // The rows that already have their image in the step or in the innermost part.
    [[nodiscard]] std::set<cRowKey>& Known();

    cDatabase& m_database;
    int m_depth = 0;
    cStep m_open;
    cStep* m_back = nullptr; // what a step that is being taken back overwrites
    std::vector<cPart> m_parts;
    std::deque<cStep> m_undo;
    std::deque<cStep> m_redo;
};
