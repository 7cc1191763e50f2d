#pragma once

#include "store/cDatabase.h"

#include <QString>

#include <deque>
#include <set>
#include <string>
#include <utility>
#include <vector>

// What the program has written since a database was opened, in steps that can be taken back and done again. It keeps
// the rows as they were, value by value, so that also texts in older or unreadable forms come back unchanged. Failures
// are thrown as cDatabaseError.
class cJournal
{
public:
    enum class eTable { Data, FixMods, Templates, Imports, Settings };

    explicit cJournal(cDatabase& database) : m_database(database) {}

    // Everything written until End is one step of the user. A step within a step belongs to the outer one.
    void Begin(const QString& name);
    void End();
    // Takes back what the open step has written so far; the step goes on empty.
    void Revert();

    // A part of the open step can be taken back by itself; parts may lie within parts. Outside of a step it does
    // nothing.
    void BeginPart();
    void EndPart();
    void RevertPart(); // the part goes on empty

    // Called before rows are changed or removed; `where` is the condition of the statement with its values.
    void Keep(eTable table, const std::string& where, const cBoundList& values);
    // Called after a row was added.
    void NoteAdded(eTable table, qint64 id);

    // The name of the step that Undo or Redo would work on; empty when there is none.
    [[nodiscard]] QString UndoName() const;
    [[nodiscard]] QString RedoName() const;

    // Both work on the newest step. After a failure the step is still there and can be tried again.
    void Undo();
    void Redo();

    // Forgets all steps, because what they know may not be true any more.
    void Forget();

private:
    // One row as it was; without values it was not there.
    struct cImage
    {
        eTable Table = eTable::Data;
        qint64 Id = 0;
        cBoundList Values;
    };

    struct cStep
    {
        QString Name;
        std::vector<cImage> Images;
        std::set<std::pair<eTable, qint64>> Known; // rows that already have their image
    };

    // False when a write cannot be noted: it then stands outside all steps, and what they know is of no use.
    [[nodiscard]] bool IsNoting(eTable table);
    void Note(cImage image);
    [[nodiscard]] cImage Current(eTable table, qint64 id);
    [[nodiscard]] cStep Apply(const cStep& step); // the step that leads back again
    void Write(const cImage& image);

    // Rows get a new image within a part, so that they can come back to what they were when it began.
    struct cPart
    {
        std::size_t First = 0; // of its images among those of the step
        std::set<std::pair<eTable, qint64>> Known;
    };

    // The rows that already have their image in the step or in the innermost part.
    [[nodiscard]] std::set<std::pair<eTable, qint64>>& Known();

    cDatabase& m_database;
    int m_depth = 0;
    cStep m_open;
    std::vector<cPart> m_parts;
    std::deque<cStep> m_undo;
    std::deque<cStep> m_redo;
};
