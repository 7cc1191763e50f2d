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
