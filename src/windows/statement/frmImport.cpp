#include "windows/statement/frmImport.h"

#include "base/cText.h"
#include "views/statement/cImportReview.h"
#include "views/statement/cStatementFiles.h"
#include "windows/look/modIcon.h"
#include "windows/statement/cLeftOutBox.h"
#include "windows/statement/cStagedActions.h"
#include "windows/statement/cStagedPanel.h"
#include "windows/statement/cStagedTree.h"
#include "windows/statement/frmImportAssistent.h"
#include "windows/statement/frmImportReview.h"
#include "windows/widget/cProgressBox.h"
#include "windows/widget/cSummaryText.h"

#include <QAction>
#include <QBoxLayout>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

frmImport::frmImport(cImportReview& review, QWidget* parent)
    : QWidget(parent),
      m_review(review),
      m_import(new QPushButton(modIcon::Get(u"import"_s), cText::Tr("Datei i&mportieren…"), this)),
      m_assistant(new QAction(cText::Tr("Import&assistent…"), this)),
      m_again(new QAction(cText::Tr("&Noch einmal mit dem Assistenten…"), this)),
      m_statement(new QAction(cText::Tr("&Kontoauszug anzeigen"), this)),
      m_reviewImport(new QPushButton(cText::Tr("Diesen &Import durchsehen"), this)),
      m_panel(new cStagedPanel(review, this)),
      m_summary(new cSummaryText(this))
{
    Build();
    Connect();
    m_reviewImport->hide();
    ShowRows();
    ShowSummary();
}

void frmImport::Build()
{
    m_panel->AddFirst(m_import);
    m_panel->AddMore(m_assistant);
    m_panel->AddMore(m_again);
    m_panel->AddMore(m_statement);
    m_assistant->setToolTip(cText::Tr("Zeigt vor dem Einlesen, wie eine Datei gelesen wird; Spalten und Konto lassen "
                                      "sich dort ändern"));
    m_again->setToolTip(cText::Tr("Liest die zuletzt eingelesenen Dateien anders ein; was von ihnen noch offen ist, "
                                  "wird dabei ersetzt"));
    m_statement->setToolTip(cText::Tr("Zeigt die Umsätze eines Bankkontos mit dem Kontostand nach jedem und vergleicht "
                                      "ihn mit dem, den die Bank nennt"));
    m_reviewImport->setToolTip(cText::Tr("Zeigt nur die Umsätze der zuletzt eingelesenen Dateien in einem Fenster"));
    auto* result = new QHBoxLayout;
    result->addWidget(m_summary, 1);
    result->addWidget(m_reviewImport, 0, Qt::AlignTop);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 4);
    layout->addWidget(m_panel, 1);
    auto* leftOut = new cLeftOutBox(m_review.Files().LeftOut(), this);
    leftOut->addActions(m_panel->actions()); // the keys of the list work there too
    layout->addWidget(leftOut);
    layout->addLayout(result);
}

void frmImport::Connect()
{
    SetAssistant();
    connect(m_import, &QPushButton::clicked, this, &frmImport::ChooseFiles);
    connect(m_assistant, &QAction::triggered, this, &frmImport::ChooseWithAssistant);
    connect(m_again, &QAction::triggered, this, &frmImport::ReadAgain);
    connect(m_statement, &QAction::triggered, this, &frmImport::StatementRequested);
    connect(m_reviewImport, &QPushButton::clicked, this, [this] { ReviewImport(); });
    connect(&m_panel->Actions(), &cStagedActions::ImportRequested, this, &frmImport::ReviewImport);
    connect(&m_review, &cImportReview::RowsChanged, this, &frmImport::ShowRows);
    connect(&m_review, &cImportReview::RowsStaged, this, &frmImport::ShowStaged);
    connect(&m_review, &cImportReview::SummaryChanged, this, &frmImport::ShowSummary);
}

void frmImport::ChooseFiles()
{
    cProgressBox progress(this, cText::Tr("Der Kontoauszug wird eingelesen …"));
    m_review.Files().ChooseFiles(progress);
}

void frmImport::ImportFiles(const QStringList& paths)
{
    cProgressBox progress(this, cText::Tr("Der Kontoauszug wird eingelesen …"));
    m_review.Files().ImportFiles(paths, progress);
}

void frmImport::SetAssistant()
{
    m_review.Files().SetAssist([page = QPointer(this)](cImportAssistant& assistant) {
        return frmImportAssistent(assistant, page).exec() == QDialog::Accepted;
    });
}

void frmImport::ChooseWithAssistant()
{
    cProgressBox progress(this, cText::Tr("Der Kontoauszug wird eingelesen …"));
    m_review.Files().ChooseFiles(progress, cStatementFiles::eAssist::Always);
}

void frmImport::ReadAgain()
{
    cProgressBox progress(this, cText::Tr("Der Kontoauszug wird eingelesen …"));
    m_review.Files().ReadAgain(progress);
}

void frmImport::ReviewImport(int rowId)
{
    if (const std::unique_ptr<cImportReview> review = m_review.StartImportReview(rowId)) {
        frmImportReview(*review, this).exec();
        m_review.Refresh(); // what was chosen there for rows that are still open
        m_panel->ResetLayout();
    }
}

void frmImport::ResetLayout()
{
    m_review.View().SetGrouping(static_cast<int>(modStagedGroup::eGrouping::Plan));
    m_panel->ResetLayout();
}

void frmImport::ShowRows()
{
    m_import->setEnabled(!m_review.IsReadOnly());
    m_assistant->setEnabled(!m_review.IsReadOnly());
    m_again->setEnabled(m_review.Files().CanReadAgain());
}

void frmImport::ShowStaged(const QList<int>& ids)
{
    m_panel->Actions().GoSoon(m_review.Guide().Staged(ids));
    m_reviewImport->setVisible(!ids.isEmpty());
}

void frmImport::ShowSummary()
{
    m_summary->ShowLines(m_review.Summary());
    m_reviewImport->setVisible(m_reviewImport->isVisibleTo(this) && !m_review.Summary().isEmpty());
}

void frmImport::showEvent(QShowEvent* event)
{
    m_review.SetShown(true);
    QWidget::showEvent(event);
}

void frmImport::hideEvent(QHideEvent* event)
{
    m_review.SetShown(false);
    QWidget::hideEvent(event);
}
