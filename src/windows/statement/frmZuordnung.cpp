#include "windows/statement/frmZuordnung.h"

#include "base/cText.h"
#include "views/statement/cAssignListModel.h"
#include "windows/look/modTone.h"
#include "windows/widget/cColumnFit.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/modEmptyText.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QTreeView>

namespace {

using eKind = cColumnFit::eKind;

const std::vector<cColumnFit::cColumn> columns{{13, eKind::Day},    {26}, {26}, {14, eKind::Amount},
                                               {10, eKind::Amount}, {20}};

class cAssignDelegate final : public cRowDelegate
{
public:
    using cRowDelegate::cRowDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        cRowDelegate::initStyleOption(option, index);
        if (index.data(cAssignListModel::TakenRole).toBool()) {
            option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
        } else if (index.column() == cAssignListModel::Amount) {
            SetTone(*option, index.data(cAssignListModel::ToneRole));
        }
    }
};

class cAssignTree final : public QTreeView
{
public:
    cAssignTree(cAssignListModel& list, QWidget* parent) : QTreeView(parent), m_list(list) { setModel(&list); }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QTreeView::paintEvent(event);
        if (m_list.rowCount() == 0) {
            modEmptyText::Paint(*viewport(), m_list.EmptyTitle(), m_list.EmptyHint());
        }
    }

private:
    cAssignListModel& m_list;
};

} // namespace

frmZuordnung::frmZuordnung(cAssignListModel& list, QWidget* parent)
    : QDialog(parent),
      m_list(list),
      m_tree(new cAssignTree(list, this))
{
    setWindowTitle(cText::Tr("Umsatz zuordnen"));
    Build();
    m_tree->header()->setSectionsMovable(false);
    new cColumnFit(*m_tree, columns, cAssignListModel::Reason);
    m_tree->setCurrentIndex(m_list.index(m_list.Proposed(), 0));
    m_tree->setFocus();
}

void frmZuordnung::Build()
{
    auto* text = new QLabel(m_list.RowText(), this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    QFont bold = text->font();
    bold.setBold(true);
    text->setFont(bold);
    auto* label = new QLabel(cText::Tr("&Einträge, zu denen der Umsatz gehören kann:"), this);
    label->setBuddy(m_tree);
    m_tree->setItemDelegate(new cAssignDelegate(this));
    m_tree->setRootIsDecorated(false);
    m_tree->setUniformRowHeights(true);
    m_tree->setAlternatingRowColors(true);
    m_tree->setAllColumnsShowFocus(true);
    m_tree->setAccessibleName(cText::Tr("Mögliche Einträge"));
    // Enter goes to the default button, which does the same.
    connect(m_tree, &QTreeView::doubleClicked, this, &frmZuordnung::Assign);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(label);
    layout->addWidget(m_tree, 1);
    layout->addWidget(BuildScope());
    layout->addWidget(BuildButtons());
    ShowState();
    const QSize wanted(fontMetrics().averageCharWidth() * 170, fontMetrics().height() * 22);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
}

QCheckBox* frmZuordnung::BuildScope()
{
    auto* scope = new QCheckBox(cText::Tr("&Auch Einträge zeigen, die weniger passen"), this);
    scope->setToolTip(cText::Tr("Alle Einträge dieser Tage, zum Beispiel wenn mehrere Umsätze einen Eintrag bezahlen"));
    connect(scope, &QCheckBox::toggled, this, [this](bool isAll) {
        m_list.SetScope(isAll ? cAssignListModel::eScope::All : cAssignListModel::eScope::Likely);
        m_tree->setCurrentIndex(m_list.index(m_list.Proposed(), 0));
        ShowState();
    });
    return scope;
}

void frmZuordnung::ShowState()
{
    const bool isEmpty = m_list.rowCount() == 0;
    m_assign->setEnabled(!isEmpty);
    (isEmpty ? m_cancel : m_assign)->setDefault(true);
}

QDialogButtonBox* frmZuordnung::BuildButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    m_assign = buttons->addButton(cText::Tr("&Zuordnen"), QDialogButtonBox::AcceptRole);
    m_cancel = buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmZuordnung::Assign);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void frmZuordnung::Assign()
{
    if (m_list.Assign(m_tree->currentIndex().row())) {
        accept();
    }
}
