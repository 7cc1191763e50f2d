#pragma once

#include "store/cDataAccess.h"

#include <utility>

// Everything written while this object lives is one step of the user: it is there as a whole or not at all, also when
// the program is killed or the disk is full, and Undo takes it back as a whole.
class cUndoStep
{
public:
    // `name` says what the user did, in the user's language: "3 Einträge gelöscht".
    cUndoStep(cDataAccess& data, const QString& name, cJournal::eWrites writes = cJournal::eWrites::Whole)
        : m_journal(data.Journal())
    {
        m_journal.Begin(name, writes);
    }
    cUndoStep(const cUndoStep&) = delete;
    cUndoStep& operator=(const cUndoStep&) = delete;
    ~cUndoStep() { (void)Done(); }

    // Ends the step; a function that says whether it has succeeded ends with it. False when the outermost step could
    // not be put into the file: the user was told, and nothing of it is there. Without it the step ends with the
    // object.
    bool Done() { return !std::exchange(m_isOpen, false) || m_journal.End(); }

    // The same for a step whose last write has told whether it succeeded; else the step is taken back.
    bool DoneIf(bool isWritten) { return isWritten ? Done() : Revert(); }

    // Takes back what was written so far, because the rest of the step failed. Always false, so that a failing
    // function can end with it.
    bool Revert()
    {
        m_journal.Revert();
        return false;
    }

private:
    cJournal& m_journal;
    bool m_isOpen = true;
};

// A part of a step that can be taken back while the rest of the step stays: one file of several. It needs an open step.
class cUndoPart
{
public:
    explicit cUndoPart(cDataAccess& data) : m_journal(data.Journal()) { m_journal.BeginPart(); }
    cUndoPart(const cUndoPart&) = delete;
    cUndoPart& operator=(const cUndoPart&) = delete;
    ~cUndoPart() { (void)Done(); }

    // Ends the part; false when it could not be put into the file, of which the user was told.
    bool Done() { return !std::exchange(m_isOpen, false) || m_journal.EndPart(); }

    // Takes back what was written since this object was made.
    void Revert() { m_journal.RevertPart(); }

private:
    cJournal& m_journal;
    bool m_isOpen = true;
};
