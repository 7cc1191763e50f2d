#pragma once

#include "store/cDataAccess.h"

// Everything written while this object lives is one step of the user, which Undo takes back as a whole.
class cUndoStep
{
public:
    // `name` says what the user did, in the user's language: "3 Einträge gelöscht".
    cUndoStep(cDataAccess& data, const QString& name) : m_data(data) { m_data.BeginStep(name); }
    cUndoStep(const cUndoStep&) = delete;
    cUndoStep& operator=(const cUndoStep&) = delete;
    ~cUndoStep() { m_data.EndStep(); }

    // Takes back what was written so far, because the rest of the step failed. Always false, so that a failing
    // function can end with it.
    bool Revert()
    {
        m_data.RevertStep();
        return false;
    }

private:
    cDataAccess& m_data;
};

// A part of a step that can be taken back while the rest of the step stays: one file of several. It needs an open step.
class cUndoPart
{
public:
    explicit cUndoPart(cDataAccess& data) : m_data(data) { m_data.BeginPart(); }
    cUndoPart(const cUndoPart&) = delete;
    cUndoPart& operator=(const cUndoPart&) = delete;
    ~cUndoPart() { m_data.EndPart(); }

    // Takes back what was written since this object was made.
    void Revert() { m_data.RevertPart(); }

private:
    cDataAccess& m_data;
};
