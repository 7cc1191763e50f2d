#include "windows/statement/cImportPreview.h"

#include "base/cText.h"
#include "views/statement/cImportAssistant.h"
#include "windows/look/modTone.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>
#include <QTableWidget>
#include <QWheelEvent>

namespace {

constexpr int widestColumn = 36; // average characters
constexpr int purposeColumn = 2;
constexpr int amountColumn = 3;

// The wheel scrolls the table and changes no meaning by accident.
class cMeaningBox final : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void wheelEvent(QWheelEvent* event) override { event->ignore(); }
};

QTableWidget* MakeTable(const QString& name, QWidget* parent)
{
    auto* table = new QTableWidget(parent);
    table->setAccessibleName(name);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setTabKeyNavigation(false);
    table->setWordWrap(false);
    table->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    table->verticalHeader()->setDefaultSectionSize(parent->fontMetrics().height() + 6);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setHighlightSections(false);
    return table;
}

QString LineText(int line)
{
    return line > 0 ? QString::number(line) : QString();
}

} // namespace

cImportPreview::cImportPreview(cImportAssistant& assistant, QWidget* parent)
    : QWidget(parent),
      m_assistant(assistant),
      m_cellsLabel(new QLabel(cText::Tr("&Spalten der Datei, darüber ihre Bedeutung:"), this)),
      m_cells(MakeTable(cText::Tr("Zeilen der Datei"), this)),
      m_read(MakeTable(cText::Tr("Gelesene Umsätze"), this))
{
    Build();
    Refresh();
}

void cImportPreview::Build()
{
    m_cellsLabel->setBuddy(m_cells);
    auto* readLabel = new QLabel(cText::Tr("So wird &gelesen:"), this);
    readLabel->setBuddy(m_read);
    m_read->setColumnCount(5);
    m_read->setHorizontalHeaderLabels({cText::Tr("Tag"), cText::Tr("Empfänger/Auftraggeber"),
                                       cText::Tr("Verwendungszweck"), cText::Tr("Betrag"), cText::Tr("Hinweis")});
    m_read->horizontalHeaderItem(amountColumn)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int shownLines = 5; // at least; more of them with a taller window
    for (QTableWidget* table : {m_cells, m_read}) {
        table->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        table->setMinimumHeight(table->verticalHeader()->defaultSectionSize() * shownLines);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_cellsLabel);
    layout->addWidget(m_cells, 1);
    layout->addWidget(readLabel);
    layout->addWidget(m_read, 1);
}

void cImportPreview::Refresh()
{
    const bool isTable = m_assistant.IsTable();
    m_cellsLabel->setVisible(isTable);
    m_cells->setVisible(isTable);
    if (isTable) {
        ShowCells();
    }
    ShowRead();
}

// What is left out is in a colour of its own, which goes with the others.
void cImportPreview::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) {
        return;
    }
    for (const QTableWidget* table : {m_cells, m_read}) {
        for (int cell = 0; cell < table->rowCount() * table->columnCount(); ++cell) {
            QTableWidgetItem* item = table->item(cell / table->columnCount(), cell % table->columnCount());
            if (item != nullptr && item->foreground().style() != Qt::NoBrush) {
                item->setForeground(modTone::Quiet(palette()));
            }
        }
    }
}

void cImportPreview::ShowCells()
{
    const QStringList columns = m_assistant.Columns();
    const QList<cPreviewRow>& rows = m_assistant.Rows();
    const int scrolled = m_cells->horizontalScrollBar()->value();
    m_cells->setColumnCount(static_cast<int>(columns.size()));
    m_cells->setHorizontalHeaderLabels(columns);
    m_cells->setRowCount(static_cast<int>(rows.size()) + 1);
    QStringList lines{QString()};
    for (int i = 0; i < rows.size(); ++i) {
        const cPreviewRow& row = rows.at(i);
        lines.append(LineText(row.Line));
        for (int column = 0; column < columns.size(); ++column) {
            auto* item = new QTableWidgetItem(row.Cells.value(column));
            if (row.IsLeftOut) {
                item->setForeground(modTone::Quiet(palette()));
            }
            m_cells->setItem(i + 1, column, item);
        }
    }
    m_cells->setVerticalHeaderLabels(lines);
    ShowMeanings();
    FitColumns(*m_cells);
    m_cells->horizontalScrollBar()->setValue(scrolled);
}

// The lists stay as long as the columns do, so that the keyboard can go on in one that was just used.
void cImportPreview::ShowMeanings()
{
    const QStringList columns = m_assistant.Columns();
    if (m_meanings.size() != columns.size()) {
        m_meanings.clear();
        for (int column = 0; column < columns.size(); ++column) {
            AddMeaning(column, columns.at(column));
        }
        if (!m_meanings.isEmpty()) {
            m_cells->verticalHeader()->resizeSection(0, m_meanings.first()->sizeHint().height());
        }
    }
    for (int column = 0; column < m_meanings.size(); ++column) {
        m_meanings.at(column)->setCurrentIndex(m_assistant.Meaning(column));
        const qsizetype letters = m_meanings.at(column)->currentText().size();
        m_meanings.at(column)->setMinimumContentsLength(static_cast<int>(letters));
        const QString name = cText::Tr("Bedeutung von {0}", {columns.at(column)});
        m_meanings.at(column)->setAccessibleName(name);
        // Screen readers find a widget in a cell only by the focus, so that the cell tells the same.
        auto* cell = new QTableWidgetItem;
        cell->setData(Qt::AccessibleTextRole, cText::Tr("{0}: {1}", {name, m_meanings.at(column)->currentText()}));
        m_cells->setItem(0, column, cell);
    }
}

void cImportPreview::AddMeaning(int column, const QString& name)
{
    auto* box = new cMeaningBox(m_cells);
    box->addItems(cImportAssistant::Meanings());
    box->setToolTip(name);
    box->view()->setMinimumWidth(box->sizeHint().width()); // narrow above its column, wide when it is open
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setFocusPolicy(Qt::StrongFocus);
    connect(box, &QComboBox::activated, this, [this, column](int meaning) { m_assistant.SetMeaning(column, meaning); });
    m_cells->setCellWidget(0, column, box);
    setTabOrder(m_meanings.isEmpty() ? static_cast<QWidget*>(m_cells) : m_meanings.last(), box);
    m_meanings.append(box);
}

void cImportPreview::ShowRead()
{
    const QList<cPreviewRow>& rows = m_assistant.Rows();
    m_read->setRowCount(static_cast<int>(rows.size()));
    QStringList lines;
    for (int i = 0; i < rows.size(); ++i) {
        const cPreviewRow& row = rows.at(i);
        lines.append(row.Line > 0 ? LineText(row.Line) : QString::number(i + 1));
        const QStringList texts{row.Day, row.Name, row.Purpose, row.Amount, row.Remark};
        for (int column = 0; column < texts.size(); ++column) {
            auto* item = new QTableWidgetItem(texts.at(column));
            item->setToolTip(texts.at(column));
            if (row.IsLeftOut) {
                item->setForeground(modTone::Quiet(palette()));
            }
            if (column == amountColumn) {
                item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
            }
            m_read->setItem(i, column, item);
        }
    }
    m_read->setVerticalHeaderLabels(lines);
    FitColumns(*m_read);
    m_read->horizontalHeader()->setSectionResizeMode(purposeColumn, QHeaderView::Stretch);
}

void cImportPreview::FitColumns(QTableWidget& table) const
{
    table.resizeColumnsToContents();
    const int most = fontMetrics().averageCharWidth() * widestColumn;
    for (int column = 0; column < table.columnCount(); ++column) {
        const QWidget* box = table.cellWidget(0, column);
        const int least = box == nullptr ? 0 : box->sizeHint().width();
        table.setColumnWidth(column, qMax(least, qMin(most, table.columnWidth(column))));
    }
}
