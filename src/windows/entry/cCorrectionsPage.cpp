#include "windows/entry/cCorrectionsPage.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "views/entry/modCorrections.h"
#include "windows/entry/frmKorrektur.h"
#include "windows/widget/cRowDelegate.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QTreeWidget>

namespace {

constexpr int nameColumn = 0;
constexpr int commentColumn = 2;
constexpr int amountColumn = 3;

frmKorrektur::eTaken Taken(modCorrections::eSet set)
{
    switch (set) {
    case modCorrections::eSet::Done: return frmKorrektur::eTaken::Done;
    case modCorrections::eSet::BadAmount: return frmKorrektur::eTaken::BadAmount;
    case modCorrections::eSet::BadDate: return frmKorrektur::eTaken::BadDay;
    case modCorrections::eSet::NoOccurrence: break;
    }
    return frmKorrektur::eTaken::NoOccurrence;
}

} // namespace

cCorrectionsPage::cCorrectionsPage(QDate today, fnFields fields, fnAnswer askToSave, QWidget* parent)
    : QWidget(parent),
      m_today(today),
      m_fields(std::move(fields)),
      m_askToSave(std::move(askToSave)),
      m_list(new QTreeWidget(this)),
      m_add(new QPushButton(cText::Tr("&Hinzufügen…"), this)),
      m_change(new QPushButton(cText::Tr("&Ändern…"), this)),
      m_remove(new QPushButton(cText::Tr("Ent&fernen"), this))
{
    Build();
    connect(m_add, &QPushButton::clicked, this, &cCorrectionsPage::Add);
    connect(m_change, &QPushButton::clicked, this, &cCorrectionsPage::Change);
    connect(m_remove, &QPushButton::clicked, this, &cCorrectionsPage::Remove);
    connect(m_list, &QTreeWidget::itemDoubleClicked, this, &cCorrectionsPage::Change);
    m_list->installEventFilter(this);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &cCorrectionsPage::ShowButtons);
    auto* del = new QShortcut(QKeySequence(QKeySequence::Delete), m_list);
    del->setContext(Qt::WidgetShortcut);
    connect(del, &QShortcut::activated, this, &cCorrectionsPage::Remove);
}

// The list itself would pass Enter on to the window's default button, which saves and closes.
bool cCorrectionsPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_list && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Change();
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void cCorrectionsPage::Build()
{
    m_list->setObjectName(QStringLiteral("lstKorrekturen"));
    m_list->setAccessibleName(cText::Tr("Korrekturen"));
    m_list->setHeaderLabels(
        {cText::Tr("Korrektur"), cText::Tr("Zeitraum"), cText::Tr("Kommentar"), cText::Tr("Betrag")});
    m_list->headerItem()->setTextAlignment(amountColumn, Qt::AlignRight | Qt::AlignVCenter);
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(commentColumn, QHeaderView::Stretch);
    // What is cut there stands in the next column too.
    m_list->header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    m_list->setItemDelegate(new cRowDelegate(m_list));
    m_list->setAllColumnsShowFocus(true);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_change->setToolTip(cText::Tr("Ändert die gewählte Korrektur (Eingabetaste)"));
    m_remove->setToolTip(cText::Tr("Entfernt die gewählte Korrektur (Entf)"));
    auto* row = new QHBoxLayout;
    for (QPushButton* button : {m_add, m_change, m_remove}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    row->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, layout->spacing(), 0, 0); // in line with the buttons below
    layout->addWidget(m_list, 1);
    layout->addLayout(row);
}

void cCorrectionsPage::ShowLines()
{
    const int line = Line();
    m_list->clear();
    const QList<modCorrections::cLine> lines = modCorrections::Lines(m_fields());
    for (const modCorrections::cLine& text : lines) {
        auto* item = new QTreeWidgetItem(m_list, {text.Label, text.Period, text.Comment, text.Amount});
        item->setToolTip(commentColumn, text.Comment);
        item->setTextAlignment(amountColumn, Qt::AlignRight | Qt::AlignVCenter);
    }
    m_list->setCurrentItem(m_list->topLevelItem(qMax(0, qMin(line, m_list->topLevelItemCount() - 1))));
    ShowButtons();
}

int cCorrectionsPage::Line() const
{
    return m_list->indexOfTopLevelItem(m_list->currentItem());
}

void cCorrectionsPage::ShowButtons()
{
    m_change->setEnabled(Line() >= 0);
    m_remove->setEnabled(Line() >= 0);
}

void cCorrectionsPage::Add()
{
    cEntryFields fields = m_fields();
    frmKorrektur form({.Text = cText::Tr("Die Korrektur gilt für den Zeitraum, in dem der Tag liegt."),
                       .Values = {.Day = modDate::ToText(m_today), .Amount = fields.Amount, .Comment = {}},
                       .Decimal = fields.Decimal,
                       .Today = m_today,
                       .IsAmountFirst = false,
                       .Take =
                           [&](const frmKorrektur::cValues& values) {
                               return Taken(
                                   modCorrections::Set(values.Day, values.Amount, values.Comment, m_today, fields));
                           },
                       .AskToSave = m_askToSave,
                       .Remove = {}},
                      this);
    if (form.exec() == QDialog::Accepted) {
        Q_EMIT CorrectionsEdited(fields.Corrections);
    }
}

void cCorrectionsPage::Change()
{
    const int line = Line();
    if (line < 0) {
        return;
    }
    cEntryFields fields = m_fields();
    const modCorrections::cLine text = modCorrections::Lines(fields).at(line);
    frmKorrektur form({.Text = text.Period,
                       .Values = {.Day = {}, .Amount = text.Amount, .Comment = text.Comment},
                       .Decimal = fields.Decimal,
                       .Today = {},
                       .IsAmountFirst = false,
                       .Take =
                           [&](const frmKorrektur::cValues& values) {
                               return Taken(modCorrections::Change(line, values.Amount, values.Comment, fields));
                           },
                       .AskToSave = m_askToSave,
                       .Remove = {}},
                      this);
    if (form.exec() == QDialog::Accepted) {
        Q_EMIT CorrectionsEdited(fields.Corrections);
    }
}

void cCorrectionsPage::Remove()
{
    const int line = Line();
    if (line >= 0) {
        cEntryFields fields = m_fields();
        modCorrections::Remove(line, fields);
        Q_EMIT CorrectionsEdited(fields.Corrections);
    }
}
