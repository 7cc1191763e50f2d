#include "windows/statement/cReconcilePanel.h"

#include "base/cText.h"
#include "views/ledger/cReconcileListModel.h"
#include "windows/widget/cColumnFit.h"
#include "windows/widget/cRowDelegate.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QTreeView>

namespace {

using eKind = cColumnFit::eKind;

constexpr int shownLines = 6; // more of them scroll

const std::vector<cColumnFit::cColumn> columns{
    {20}, {28}, {13, eKind::Day}, {14, eKind::Amount}, {13, eKind::Day}, {14, eKind::Amount}};

class cReconcileDelegate final : public cRowDelegate
{
public:
    using cRowDelegate::cRowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        cRowDelegate::initStyleOption(option, index);
        SetTone(*option, index.data(cReconcileListModel::ToneRole));
    }
};

} // namespace

cReconcilePanel::cReconcilePanel(cReconcileListModel& model, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_title(new QLabel(this)),
      m_list(new QTreeView(this)),
      m_cure(new QPushButton(this)),
      m_open(new QPushButton(cText::Tr("Eintra&g öffnen"), this)),
      m_confirm(new QPushButton(this))
{
    Build();
    connect(&m_model, &cReconcileListModel::Changed, this, &cReconcilePanel::Fill);
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &cReconcilePanel::ShowButtons);
    connect(m_list, &QTreeView::doubleClicked, this, &cReconcilePanel::OpenEntry);
    connect(m_cure, &QPushButton::clicked, this, &cReconcilePanel::Cure);
    connect(m_open, &QPushButton::clicked, this, &cReconcilePanel::OpenEntry);
    connect(m_confirm, &QPushButton::clicked, this, [this] {
        m_model.Confirm();
        Q_EMIT Cured();
    });
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut(key, m_list, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this,
                &cReconcilePanel::Cure);
    }
    Fill();
}

void cReconcilePanel::Build()
{
    m_title->setWordWrap(true);
    m_title->setBuddy(m_list);
    m_list->setModel(&m_model);
    m_list->setItemDelegate(new cReconcileDelegate(m_list));
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setAlternatingRowColors(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setAccessibleName(cText::Tr("Unterschiede zwischen Bank und Buch"));
    m_list->setMaximumHeight((fontMetrics().height() + 6) * (shownLines + 1));
    new cColumnFit(*m_list, columns, cReconcileListModel::Name);
    m_cure->setToolTip(cText::Tr("Behebt den markierten Unterschied (Eingabetaste)"));
    m_confirm->setToolTip(cText::Tr("Merkt sich, dass Bank und Buch bis zu diesem Tag übereinstimmen"));
    auto* top = new QHBoxLayout;
    top->addWidget(m_title, 1);
    top->addStretch();
    for (QPushButton* button : {m_cure, m_open, m_confirm}) {
        button->setAutoDefault(false); // Enter belongs to the list
        top->addWidget(button);        // the row below the list is the window's
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(top);
    layout->addWidget(m_list);
}

void cReconcilePanel::Fill()
{
    const bool hasItems = m_model.rowCount() > 0;
    const cReconciliation& found = m_model.Found();
    const bool isSaid = found.Agrees() || found.Account().isEmpty(); // above the list of the statement
    const QString finding = m_model.Finding() + u' ' + found.WayOut(cText::Tr("Abgleichen"));
    m_title->setText(isSaid ? QString() : finding.trimmed());
    m_title->setVisible(!m_title->text().isEmpty());
    m_list->setVisible(hasItems);
    m_cure->setVisible(hasItems);
    m_open->setVisible(hasItems);
    m_confirm->setText(m_model.ConfirmText());
    m_confirm->setVisible(m_model.CanConfirm());
    if (hasItems && !m_list->currentIndex().isValid()) {
        m_list->setCurrentIndex(m_model.index(0, 0));
    }
    ShowButtons();
}

void cReconcilePanel::ShowButtons()
{
    const int row = m_list->currentIndex().row();
    const std::optional<cReconcileItem> item = m_model.ItemAt(row);
    m_cure->setText(m_model.CureText(row));
    m_cure->setEnabled(item.has_value());
    m_open->setEnabled(item && item->EntryId > 0);
}

void cReconcilePanel::Cure()
{
    const int row = m_list->currentIndex().row();
    const std::optional<cReconcileItem> item = m_model.ItemAt(row);
    if (!item) {
        return;
    }
    switch (item->Kind) {
    case cReconcileItem::eKind::BankOnly: Q_EMIT BookRequested(item->RowId); break;
    case cReconcileItem::eKind::BookOnly: Q_EMIT DeleteRequested(item->EntryId, item->BookDay); break;
    case cReconcileItem::eKind::Differs:
    case cReconcileItem::eKind::Start: (void)m_model.TakeBank(row); break; // of a refusal the user has been told
    }
    Q_EMIT Cured();
}

void cReconcilePanel::OpenEntry()
{
    const std::optional<cReconcileItem> item = m_model.ItemAt(m_list->currentIndex().row());
    if (item && item->EntryId > 0) {
        Q_EMIT EntryRequested(item->EntryId, item->BookDay);
    }
}
