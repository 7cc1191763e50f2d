#pragma once

#include "model/cEntryItem.h"
#include "views/list/cEntrySelection.h"
#include "views/main/cViewState.h"

#include <QString>

#include <optional>

// A selection of entries that is shown for a while in place of the user's view, and the way back to that.
class cViewDetour
{
public:
    [[nodiscard]] bool IsOn() const { return m_before.has_value(); }

    // Makes `view` show the selection. What it showed before the first one is kept for Leave.
    void Enter(cViewState& view, const cEntrySelection& selection);
    // Makes `view` again what the user had chosen; false when it shows no selection.
    bool Leave(cViewState& view);

    // The user's own view: what is stored, and what a change of a switch has to reach as well.
    [[nodiscard]] cViewState& Own(cViewState& view) { return m_before ? *m_before : view; }

    // Some of the view's entries were picked, so sums over the view say nothing about them.
    [[nodiscard]] bool IsPicked() const { return IsOn() && m_selection.Pick != nullptr; }
    [[nodiscard]] cEntryItemList Picked(const cEntryItemList& entries) const;
    [[nodiscard]] QString Title() const { return IsOn() ? m_selection.Title : QString(); }

private:
    std::optional<cViewState> m_before;
    cEntrySelection m_selection;
};
