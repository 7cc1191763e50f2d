#pragma once

#include "store/cDatabase.h"

#include <QString>

#include <deque>
#include <functional>
#include <set>
#include <utility>
#include <vector>

class cUser;

// What the program has written since a database was opened, in steps that can be taken back and done again. The
// database tells it of every row before a statement writes it, and it keeps the row as it was, value by value, so that
// also texts in older or unreadable forms come back unchanged. A step is also one transaction of the file: killed in
// the middle of it, or when the disk is full, none of its writes is there. A write to a table of the book outside of a
// step cannot be taken back, and neither can the steps before it. Of failures the user is told.
class cJournal
{
public:
    cJournal(cDatabase& database, cUser& user);
    cJournal(const cJournal&) = delete;
    cJournal& operator=(const cJournal&) = delete;
    ~cJournal();

    // Everything written until End is one step of the user; use cUndoStep rather than these. A step within a step
    // belongs to the outer one. In portions: what was written for a second, or by a part that has ended, stays when the
    // program is killed.
    using eWrites = cDatabase::eGathering;
    void Begin(const QString& name, eWrites writes = eWrites::Whole);
    // The outermost End puts the step into the file; false when that fails: then nothing of it is there.
    bool End();
    [[nodiscard]] bool IsOpen() const { return m_depth > 0; }
    // Takes back what the open step has written so far; the step goes on empty.
    void Revert();
    // Called when the outermost step has ended; false when nothing was written, because it was taken back or failed.
    void OnEnd(std::function<void(bool isWritten)> tell) { m_tell = std::move(tell); }

    // A part of the open step can be taken back by itself; parts may lie within parts. Outside of a step it does
    // nothing. Use cUndoPart rather than these.
    void BeginPart();
    bool EndPart();    // false: it could not be put into the file
    void RevertPart(); // the part goes on empty

    // The name of the step that Undo or Redo would work on; empty when there is none.
    [[nodiscard]] QString UndoName() const;
    [[nodiscard]] QString RedoName() const;

    // Both work on the newest step. After a failure the step is still there and can be tried again.
    [[nodiscard]] bool Undo();
    [[nodiscard]] bool Redo();

    // How many rows of the book were written so far. Those of table `setting` count within a step, where they belong to
    // the book as a limit or a list of statements does; which columns a list has is nothing that somebody would miss.
    // What was taken back counts as well.
    [[nodiscard]] quint64 RowsWritten() const { return m_rowsWritten; }

    // Goes up whenever rows were put back: by a step that was reverted, has failed, or was undone or redone. Whoever
    // keeps rows in memory compares it.
    [[nodiscard]] quint64 TimesPutBack() const { return m_timesPutBack; }

    // Forgets all steps, because what they know may not be true any more: another file was opened.
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

    // Runs what may throw; of a failure the user is told under this name.
    [[nodiscard]] bool Try(const char16_t* operation, const std::function<void()>& action);
    void Note(const cRowBefore& row);
    void ForgetRow(const cRowKey& key);
    void ForgetPassing(cStep& step);
    void Join(cPart part);
    [[nodiscard]] bool KeepPortion();
    void Move(std::deque<cStep>& from, std::deque<cStep>& to);
    void WriteBack(const std::vector<cImage>& images);
    [[nodiscard]] cStep Apply(const cStep& step); // the step that leads back again
    // The rows that already have their image in the step or in the innermost part.
    [[nodiscard]] std::set<cRowKey>& Known();

    cDatabase& m_database;
    cUser& m_user;
    std::function<void(bool)> m_tell;
    int m_depth = 0;
    eWrites m_writes = eWrites::Whole; // of the open step
    cStep m_open;
    cStep* m_back = nullptr; // what a step that is being taken back overwrites
    std::vector<cPart> m_parts;
    std::deque<cStep> m_undo;
    std::deque<cStep> m_redo;
    quint64 m_rowsWritten = 0;
    quint64 m_timesPutBack = 0;
};
