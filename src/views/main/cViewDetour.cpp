#include "views/main/cViewDetour.h"

#include "model/modWord.h"

void cViewDetour::Enter(cViewState& view, const cEntrySelection& selection)
{
    if (!m_before) {
        m_before = view;
    }
    m_selection = selection;
    view.Period = modWord::FreierZeitraum;
    view.Free = selection.Range;
    view.Account = selection.Account.isEmpty() ? modWord::AlleKonten : selection.Account;
    view.Type = selection.Type;
    view.Grouping = modWord::NachSparte;
    view.Filter.clear();
    view.Payer.clear();
    // The figure counts entries of every kind, so the list has to show them.
    view.ShowsSingle = true;
    view.ShowsFix = true;
    view.ShowsFuture = m_before->ShowsFuture || selection.WithFuture;
}

bool cViewDetour::Leave(cViewState& view)
{
    if (!m_before) {
        return false;
    }
    view = *m_before;
    m_before.reset();
    m_selection = {};
    return true;
}

cEntryItemList cViewDetour::Picked(const cEntryItemList& entries) const
{
    return IsPicked() ? m_selection.Pick(entries) : entries;
}
