#include "windows/main/cAccountPanel.h"

#include "base/cText.h"
#include "views/main/cAccountListModel.h"
#include "views/sheet/modRowDrag.h"
#include "windows/look/modIcon.h"
#include "windows/look/modTone.h"

#include <QBoxLayout>
#include <QDropEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QStyledItemDelegate>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int leastNameLetters = 13; // of an account, beside how many transactions are open
constexpr int narrowNameLetters = 8; // in the narrowest list

class cAccountDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize size = QStyledItemDelegate::sizeHint(option, index);
        return {size.width() + 6, option.fontMetrics.height() + 10};
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const int kind = index.data(cAccountListModel::KindRole).toInt();
        const bool isChosen = index.data(cAccountListModel::ChosenRole).toBool();
        if (kind == cAccountListModel::Total || isChosen) {
            option->font.setBold(true);
        }
        if (kind == cAccountListModel::Group) {
            option->palette.setColor(QPalette::Text, modTone::Quiet(option->palette));
        } else if (index.data(cAccountListModel::WarningRole).toBool()) {
            MarkWarning(*option, index);
        } else if (index.data(cAccountListModel::ToneRole).toBool()) {
            option->palette.setColor(QPalette::Text, modTone::Expense(option->palette));
        }
    }

private:
    // A sign beside the amount, so that nothing hangs on the colour alone.
    static void MarkWarning(QStyleOptionViewItem& option, const QModelIndex& index)
    {
        option.palette.setColor(QPalette::Text, modTone::Warning(option.palette));
        if (index.column() == cAccountListModel::Balance) {
            static const QIcon sign = modIcon::Get(QStringLiteral("warnung"));
            option.features |= QStyleOptionViewItem::HasDecoration;
            option.icon = sign;
            option.decorationSize = QSize(option.fontMetrics.height(), option.fontMetrics.height());
        }
    }
};

} // namespace

cAccountPanel::cAccountPanel(cAccountListModel& model, QWidget* parent)
    : QWidget(parent),
      m_model(model),
      m_title(new QLabel(this)),
      m_view(new QTreeView(this))
{
    m_view->setModel(&m_model);
    m_view->setItemDelegate(new cAccountDelegate(m_view));
    m_view->setRootIsDecorated(false);
    m_view->setIndentation(0);
    m_view->setAllColumnsShowFocus(true);
    m_view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    m_view->setAccessibleName(cText::Tr("Konten"));
    m_view->header()->setStretchLastSection(false);
    m_view->header()->setSectionResizeMode(cAccountListModel::Name, QHeaderView::Stretch);
    m_view->header()->setSectionResizeMode(cAccountListModel::Balance, QHeaderView::ResizeToContents);
    m_view->header()->setSectionResizeMode(cAccountListModel::Open, QHeaderView::ResizeToContents);
    m_view->viewport()->setAcceptDrops(true);
    m_view->installEventFilter(this);
    m_view->viewport()->installEventFilter(this);
    connect(&m_model, &QAbstractItemModel::modelReset, this, &cAccountPanel::FitColumns);
    m_title->setBuddy(m_view);
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 0, 6);
    layout->addWidget(m_title);
    layout->addWidget(m_view);
    connect(m_view, &QTreeView::clicked, this, &cAccountPanel::Choose);
    connect(m_view, &QTreeView::doubleClicked, this, [this] { Q_EMIT AccountChosen({}); });
    connect(m_view, &QWidget::customContextMenuRequested, this, &cAccountPanel::OpenMenu);
}

void cAccountPanel::SetTitle(const QString& title)
{
    m_title->setText(title);
}

void cAccountPanel::Choose(const QModelIndex& row)
{
    if (const std::optional<QString> account = m_model.ChoiceAt(row)) {
        Q_EMIT AccountChosen(*account);
    }
}

int cAccountPanel::BalanceWidth() const
{
    int width = m_view->header()->sectionSizeHint(cAccountListModel::Balance);
    for (int row = 0; row < m_model.rowCount(); ++row) {
        width = std::max(width, m_view->sizeHintForIndex(m_model.index(row, cAccountListModel::Balance)).width());
    }
    return width;
}

// Names matter more than how many transactions are open, but a balance without its end would be another one: the list
// gets no narrower than it and the beginning of a name. The name of a group has the whole line.
void cAccountPanel::FitColumns()
{
    QHeaderView& header = *m_view->header();
    const int letter = fontMetrics().averageCharWidth();
    const int balance = BalanceWidth();
    const int room = m_view->viewport()->width() - letter * leastNameLetters;
    header.setSectionHidden(cAccountListModel::Open, false); // a hidden one would want no room
    header.setSectionHidden(cAccountListModel::Open, room < balance + header.sectionSizeHint(cAccountListModel::Open));
    m_view->setMinimumWidth(balance + letter * narrowNameLetters + 2 * m_view->frameWidth());
    for (int row = 0; row < m_model.rowCount(); ++row) {
        const int kind = m_model.index(row, 0).data(cAccountListModel::KindRole).toInt();
        m_view->setFirstColumnSpanned(row, {}, kind == cAccountListModel::Group);
    }
}

bool cAccountPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        FitColumns();
    }
    const bool isDrag =
        event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove || event->type() == QEvent::Drop;
    if (isDrag && watched == m_view->viewport()) {
        TakeDrag(*static_cast<QDropEvent*>(event)); // the two others are derived from it
        return event->isAccepted();
    }
    if (event->type() == QEvent::DragLeave) {
        Highlight(m_view->currentIndex());
    }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key(); // the event says what it is
        if (key == Qt::Key_Escape) {
            Q_EMIT AccountChosen({});
            return true;
        }
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            Choose(m_view->currentIndex());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void cAccountPanel::TakeDrag(QDropEvent& event)
{
    const QModelIndex row = m_view->indexAt(event.position().toPoint());
    const QString account = m_model.AccountAt(row);
    const bool isRows = m_takesRows && event.mimeData()->hasFormat(modRowDrag::Format);
    event.setAccepted(isRows && (!account.isEmpty() || event.type() == QEvent::DragEnter));
    const bool isTarget = event.type() == QEvent::DragMove && event.isAccepted();
    Highlight(isTarget ? row : m_view->currentIndex());
    if (event.type() == QEvent::Drop && event.isAccepted()) {
        // The mouse is let go first: what follows asks.
        QMetaObject::invokeMethod(
            this,
            [this, account, bytes = event.mimeData()->data(modRowDrag::Format)] {
                Q_EMIT RowsDropped(modRowDrag::FromBytes(bytes), account, modRowDrag::ShownFromBytes(bytes));
            },
            Qt::QueuedConnection);
    }
}

// The account that would be hit; otherwise the one that the keys stand on.
void cAccountPanel::Highlight(const QModelIndex& row)
{
    m_view->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void cAccountPanel::OpenMenu(const QPoint& position)
{
    const QString account = m_model.AccountAt(m_view->indexAt(position));
    QMenu menu(this);
    QAction* only = menu.addAction(cText::Tr("&Nur dieses Konto zeigen"));
    QAction* all = menu.addAction(cText::Tr("&Alle Konten zeigen"));
    only->setShortcut(Qt::Key_Return); // shown here; the list itself listens to them
    all->setShortcut(Qt::Key_Escape);
    menu.addSeparator();
    QAction* rename = menu.addAction(cText::Tr("Konto &umbenennen…"));
    only->setEnabled(!account.isEmpty());
    rename->setEnabled(!account.isEmpty());
    const QAction* chosen = menu.exec(m_view->viewport()->mapToGlobal(position));
    if (chosen == only) {
        Q_EMIT AccountChosen(account);
    } else if (chosen == all) {
        Q_EMIT AccountChosen({});
    } else if (chosen == rename) {
        Q_EMIT RenameRequested(account);
    }
}
