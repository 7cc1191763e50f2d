#include "base/cText.h"
#include "model/modWord.h"
#include "views/main/cMainModel.h"
#include "views/main/modViewText.h"

using namespace Qt::Literals::StringLiterals;

// The part of the main model that shows selected entries for a while and finds the way back.

void cMainModel::ShowEntries(const cEntrySelection& selection)
{
    if (!m_detour) {
        m_detour = cDetour{m_view, {}};
    }
    m_detour->Selection = selection;
    m_view.Period = modWord::FreierZeitraum;
    m_view.Free = selection.Range;
    m_view.Account = selection.Account.isEmpty() ? modWord::AlleKonten : selection.Account;
    m_view.Type = selection.Type;
    m_view.Grouping = u"Nach Sparte"_s;
    m_view.Filter.clear();
    // The figure counts entries of every kind, so the list has to show them.
    m_view.ShowsSingle = true;
    m_view.ShowsFix = true;
    m_view.ShowsFuture = m_detour->Before.ShowsFuture || selection.WithFuture;
    RefreshView();
}

void cMainModel::GoBack()
{
    if (m_detour) {
        LeaveSelection();
        RefreshView();
    }
}

// What the user had chosen holds again, without showing it yet.
void cMainModel::LeaveSelection()
{
    if (m_detour) {
        m_view = m_detour->Before;
        m_detour.reset();
    }
}

QString cMainModel::SelectionText() const
{
    return m_detour ? m_detour->Selection.Title : QString();
}

QStringList cMainModel::ViewLines() const
{
    QStringList lines = modViewText::Lines(m_view, ShownRange());
    if (m_detour) {
        lines.append(cText::Tr("Auswahl: {0}", {SelectionText()}));
    }
    return lines;
}
