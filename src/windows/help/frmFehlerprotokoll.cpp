#include "windows/help/frmFehlerprotokoll.h"

#include "base/cText.h"
#include "views/help/cErrorLogView.h"
#include "windows/help/cLogTree.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/modPlace.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

namespace {

constexpr int detailLines = 5;

} // namespace

frmFehlerprotokoll::frmFehlerprotokoll(cErrorLogView& log, QWidget* parent)
    : QDialog(parent),
      m_log(log),
      m_filter(new QLineEdit(this)),
      m_count(new QLabel(this)),
      m_tree(new cLogTree(log, this)),
      m_details(new QPlainTextEdit(this))
{
    setWindowTitle(cText::Tr("Fehlerprotokoll"));
    auto* note = new QLabel(cText::Tr("Beträge, Namen, Kontonummern und Ordner stehen nicht in diesem Protokoll: Was "
                                      "aus Ihrem Buch stammt, ist durch … ersetzt."),
                            this);
    note->setWordWrap(true);
    BuildList();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(note);
    layout->addLayout(BuildFilter());
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_details);
    layout->addLayout(BuildButtons());
    const QSize wanted(fontMetrics().averageCharWidth() * 125, fontMetrics().height() * 28);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    Filter({});
    m_tree->setFocus();
}

QLayout* frmFehlerprotokoll::BuildFilter()
{
    auto* label = new QLabel(cText::Tr("&Filter:"), this);
    label->setBuddy(m_filter);
    m_filter->setClearButtonEnabled(true);
    connect(m_filter, &QLineEdit::textChanged, this, &frmFehlerprotokoll::Filter);
    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(m_filter, 1);
    row->addWidget(m_count);
    return row;
}

void frmFehlerprotokoll::BuildList()
{
    m_details->setReadOnly(true);
    m_details->setTabChangesFocus(true);
    m_details->setAccessibleName(cText::Tr("Ausgewählte Meldung"));
    m_details->setFixedHeight(m_details->fontMetrics().lineSpacing() * detailLines + 2 * m_details->frameWidth()
                              + static_cast<int>(2 * m_details->document()->documentMargin()));
    connect(m_tree, &cLogTree::CurrentRowChanged, this, &frmFehlerprotokoll::ShowLine);
    connect(m_tree, &cLogTree::CopyRequested, this, &frmFehlerprotokoll::Copy);
}

QLayout* frmFehlerprotokoll::BuildButtons()
{
    auto* row = new cFlowLayout;
    m_copy = AddButton(*row, cText::Tr("&Kopieren"), cText::Tr("Kopiert die ausgewählten Meldungen, sonst alle."));
    auto* diagnosis = AddButton(*row, cText::Tr("&Diagnose kopieren"),
                                cText::Tr("Kopiert Versionen, Ordner und Dateigrößen mit dem ganzen Protokoll."));
    auto* save = AddButton(*row, cText::Tr("&Speichern…"), cText::Tr("Schreibt die Diagnose in eine Datei."));
    auto* send = AddButton(*row, cText::Tr("&Rückmeldung…"), cText::Tr("Beginnt eine E-Mail mit der Diagnose."));
    connect(m_copy, &QPushButton::clicked, this, &frmFehlerprotokoll::Copy);
    connect(diagnosis, &QPushButton::clicked, this, [this] { QApplication::clipboard()->setText(m_log.Diagnosis()); });
    connect(save, &QPushButton::clicked, this, [this] { m_log.Save(); });
    connect(send, &QPushButton::clicked, this, [this] { m_log.Send(); });
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    row->AddStretch();
    row->addWidget(close);
    return row;
}

QPushButton* frmFehlerprotokoll::AddButton(QLayout& row, const QString& text, const QString& hint)
{
    auto* button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setToolTip(hint);
    row.addWidget(button);
    return button;
}

void frmFehlerprotokoll::Filter(const QString& words)
{
    m_log.SetFilter(words);
    m_count->setText(m_log.CountText());
    m_copy->setEnabled(m_log.rowCount() > 0);
    m_tree->setCurrentIndex(m_log.index(0, 0));
    ShowLine();
}

void frmFehlerprotokoll::ShowLine()
{
    m_details->setPlainText(m_log.Details(m_tree->currentIndex().row()));
}

void frmFehlerprotokoll::Copy()
{
    QApplication::clipboard()->setText(m_log.TextOf(m_tree->SelectedRows()));
}
