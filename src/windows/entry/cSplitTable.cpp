#include "windows/entry/cSplitTable.h"

#include "base/cText.h"
#include "views/entry/modSplitParts.h"
#include "windows/entry/cSplitDelegate.h"
#include "windows/widget/modBadField.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QToolTip>

namespace {

constexpr int visibleLines = 5;
constexpr int idRole = Qt::UserRole;

} // namespace

cSplitTable::cSplitTable(cEntrySuggestions& suggestions, eDecimal decimal, QWidget* parent)
    : cTypedCells(0, ColumnCount, parent),
      m_decimal(decimal),
      m_delegate(new cSplitDelegate(suggestions, decimal, this))
{
    Build();
    setItemDelegate(m_delegate);
    connect(m_delegate, &cSplitDelegate::CategoryPicked, this, &cSplitTable::CategoryPicked);
    connect(m_delegate, &cSplitDelegate::DescriptionPicked, this, &cSplitTable::DescriptionPicked);
    connect(m_delegate, &cSplitDelegate::NewCategoryWanted, this, &cSplitTable::NewCategoryWanted);
    connect(this, &QTableWidget::itemChanged, this, [this](QTableWidgetItem* item) { TakeChange(*item); });
    ShowParts({});
}

void cSplitTable::Build()
{
    setObjectName(QStringLiteral("rptSplit"));
    setAccessibleName(cText::Tr("Teilbeträge"));
    setHorizontalHeaderLabels({cText::Tr("Kategorie"), cText::Tr("Beschreibung"), cText::Tr("Betrag")});
    horizontalHeaderItem(Amount)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    horizontalHeaderItem(Category)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeaderItem(Description)->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(Amount, QHeaderView::Interactive);
    horizontalHeader()->setHighlightSections(false);
    setAlternatingRowColors(true);
    setColumnWidth(Amount, fontMetrics().averageCharWidth() * 13);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 7 / 4);
    setSelectionMode(SingleSelection);
    setEditTriggers(AnyKeyPressed | EditKeyPressed | DoubleClicked | SelectedClicked);
    setWordWrap(false);
}

void cSplitTable::SetType(const QString& type)
{
    m_delegate->SetType(type);
}

void cSplitTable::AppendLine()
{
    const int line = rowCount();
    insertRow(line);
    for (int column = 0; column < ColumnCount; ++column) {
        auto* item = new QTableWidgetItem;
        item->setTextAlignment((column == Amount ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        setItem(line, column, item);
    }
}

void cSplitTable::ShowLine(int line, const cSplitPart& part)
{
    item(line, Category)->setData(cSplitDelegate::PathRole, part.Category);
    const QStringList texts{part.Category.isEmpty() ? part.CategoryText : part.Category, part.Description, part.Amount};
    for (int column = 0; column < ColumnCount; ++column) {
        if (item(line, column)->text() != texts.at(column)) {
            item(line, column)->setText(texts.at(column));
        }
    }
    item(line, Category)->setData(idRole, part.ID);
}

void cSplitTable::ShowParts(const QList<cSplitPart>& parts)
{
    const QSignalBlocker blocker(this);
    QList<cSplitPart> lines = parts;
    if (lines.isEmpty() || !modSplitParts::IsBlank(lines.last(), m_decimal)) {
        lines.append(cSplitPart());
    }
    const int count = static_cast<int>(lines.size());
    setRowCount(qMin(rowCount(), count));
    for (int line = 0; line < count; ++line) {
        if (line == rowCount()) {
            AppendLine();
        }
        ShowLine(line, lines.at(line));
    }
    if (currentRow() < 0) {
        setCurrentCell(0, 0);
    }
}

QList<cSplitPart> cSplitTable::Parts() const
{
    QList<cSplitPart> parts;
    for (int line = 0; line < rowCount(); ++line) {
        const QTableWidgetItem& category = *item(line, Category);
        const QString path = category.data(cSplitDelegate::PathRole).toString();
        parts.append({.ID = category.data(idRole).toInt(),
                      .Category = path,
                      .Description = item(line, Description)->text(),
                      .Amount = item(line, Amount)->text(),
                      .CategoryText = path.isEmpty() ? category.text() : QString()});
    }
    return parts;
}

void cSplitTable::TakeChange(QTableWidgetItem& item)
{
    {
        const QSignalBlocker blocker(this);
        item.setData(Qt::BackgroundRole, {});
        item.setData(Qt::ForegroundRole, {});
        item.setToolTip({});
        if (!modSplitParts::IsBlank(Parts().last(), m_decimal)) {
            AppendLine();
        }
    }
    Q_EMIT PartsEdited();
}

void cSplitTable::RemoveLine()
{
    const int line = currentRow();
    if (line < 0 || line == rowCount() - 1) {
        return; // the empty line stays
    }
    removeRow(line);
    Q_EMIT PartsEdited();
}

void cSplitTable::Commit()
{
    if (state() == EditingState) {
        setFocus(); // leaving the cell's field takes its text
    }
}

void cSplitTable::MarkAmount(int line)
{
    QTableWidgetItem* amount = item(line, Amount);
    if (amount != nullptr) {
        const QSignalBlocker blocker(this);
        amount->setBackground(modBadField::Color());
        amount->setForeground(Qt::black);
        amount->setToolTip(modSum::Fault(amount->text(), m_decimal));
        QToolTip::showText(viewport()->mapToGlobal(visualItemRect(amount).bottomLeft()), amount->toolTip(), this);
    }
}

void cSplitTable::ChooseCell(int line, int column)
{
    setCurrentCell(qBound(0, line, rowCount() - 1), column);
    setFocus();
}

void cSplitTable::FocusOpen()
{
    ChooseCell(0, Parts().constFirst().Category.isEmpty() ? Category : Amount);
}

QSize cSplitTable::sizeHint() const
{
    const int lines = verticalHeader()->defaultSectionSize() * visibleLines;
    return {fontMetrics().averageCharWidth() * 88, horizontalHeader()->sizeHint().height() + lines + 2 * frameWidth()};
}

// One line less, where a large type on a small screen needs the room.
QSize cSplitTable::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 50, sizeHint().height() - verticalHeader()->defaultSectionSize()};
}

void cSplitTable::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete) {
        RemoveLine();
        return;
    }
    QTableWidget::keyPressEvent(event);
}

void cSplitTable::focusInEvent(QFocusEvent* event)
{
    QTableWidget::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason) {
        setCurrentCell(0, 0);
    } else if (event->reason() == Qt::BacktabFocusReason) {
        setCurrentCell(rowCount() - 1, ColumnCount - 1);
    }
}

bool cSplitTable::IsAtEnd(bool forward) const
{
    return forward ? currentRow() == rowCount() - 1 && (currentColumn() == ColumnCount - 1 || IsOnEmptyLine())
                   : currentRow() <= 0 && currentColumn() <= 0;
}

// Nothing is to be filled in behind the first cell of the empty line.
bool cSplitTable::IsOnEmptyLine() const
{
    return currentRow() == rowCount() - 1 && currentColumn() == 0;
}

// At its end the table is left as any other widget is. The item view's own answer would be the next cell.
// NOLINTBEGIN(bugprone-parent-virtual-call)
bool cSplitTable::focusNextPrevChild(bool next)
{
    return IsAtEnd(next) ? QAbstractScrollArea::focusNextPrevChild(next) : QTableWidget::focusNextPrevChild(next);
}

void cSplitTable::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint)
{
    const bool leaves = (hint == QAbstractItemDelegate::EditNextItem && IsAtEnd(true))
        || (hint == QAbstractItemDelegate::EditPreviousItem && IsAtEnd(false));
    QTableWidget::closeEditor(editor, leaves ? QAbstractItemDelegate::NoHint : hint);
    if (leaves) {
        QAbstractScrollArea::focusNextPrevChild(hint == QAbstractItemDelegate::EditNextItem);
    }
}
// NOLINTEND(bugprone-parent-virtual-call)
