#include "windows/statement/frmImportReview.h"

#include "base/cText.h"
#include "views/statement/cImportReview.h"
#include "windows/main/cSavedViewMenu.h"
#include "windows/statement/cStagedActions.h"
#include "windows/statement/cStagedPanel.h"
#include "windows/statement/cStagedTree.h"
#include "windows/widget/cSummaryText.h"
#include "windows/widget/modPlace.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QScreen>

frmImportReview::frmImportReview(cImportReview& review, QWidget* parent)
    : QDialog(parent),
      m_review(review),
      m_panel(new cStagedPanel(review, this)),
      m_summary(new cSummaryText(this)),
      m_bookAll(new QPushButton(cText::Tr("&Alle gezeigten buchen"), this))
{
    setWindowTitle(cText::Tr("Umsätze eines Imports durchsehen"));
    Build();
    connect(&m_review, &cImportReview::RowsChanged, this, &frmImportReview::ShowRows);
    connect(&m_review, &cImportReview::SummaryChanged, this, &frmImportReview::ShowSummary);
    connect(&m_review.View(), &cStagedChoice::Changed, this, &frmImportReview::ShowRows);
    connect(m_bookAll, &QPushButton::clicked, m_panel->Actions().Get(cStagedActions::All), &QAction::trigger);
    ShowRows();
    ShowSummary();
    m_panel->Actions().GoSoon(m_review.Guide().Staged(m_review.Rows().OpenIds()));
}

void frmImportReview::Build()
{
    m_panel->AddMore(BuildViews()->menuAction());
    auto* done = new QPushButton(cText::Tr("&Fertig"), this);
    done->setToolTip(cText::Tr("Schließt das Fenster; was offen ist, wartet auf der Seite „Kontoauszüge“"));
    connect(done, &QPushButton::clicked, this, &QDialog::accept);
    // The Enter key belongs to the list, where it books.
    for (QPushButton* button : {m_bookAll, done}) {
        button->setAutoDefault(false);
    }
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(m_bookAll);
    buttons->addStretch();
    buttons->addWidget(done);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_panel, 1);
    layout->addWidget(m_summary);
    layout->addLayout(buttons);
    const QSize wanted(fontMetrics().averageCharWidth() * 190, fontMetrics().height() * 36);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
}

// The menu of the main window cannot be reached from here.
QMenu* frmImportReview::BuildViews()
{
    cStagedChoice& view = m_review.View();
    auto* menu = new QMenu(cText::Tr("&Meine Ansichten"), this);
    QAction* keep = menu->addAction(cText::Tr("Ansicht &merken…"));
    keep->setEnabled(!m_review.IsReadOnly());
    auto* kept = new cSavedViewMenu(*menu);
    kept->Show(view.KeptNames());
    connect(keep, &QAction::triggered, &view, &cStagedChoice::Keep);
    connect(kept, &cSavedViewMenu::Chosen, &view, qOverload<int>(&cStagedChoice::ShowKept));
    connect(&view, &cStagedChoice::ViewsChanged, kept, [&view, kept] { kept->Show(view.KeptNames()); });
    return menu;
}

void frmImportReview::ShowRows()
{
    m_bookAll->setEnabled(!m_review.IsReadOnly() && !m_review.Rows().OpenIds().isEmpty());
}

void frmImportReview::ShowSummary()
{
    m_summary->ShowLines(m_review.Summary());
}
