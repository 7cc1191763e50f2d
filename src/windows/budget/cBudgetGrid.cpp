#include "windows/budget/cBudgetGrid.h"

#include "views/budget/cBudgetModel.h"
#include "windows/budget/cBudgetTable.h"

#include <QEvent>
#include <QGridLayout>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

#include <algorithm>

cBudgetGrid::cBudgetGrid(cBudgetModel& model, QWidget* parent)
    : QFrame(parent),
      m_lines(new cBudgetTable(model, cBudgetTable::ePart::Categories, this)),
      m_rule(new QFrame(this)),
      m_sum(new cBudgetTable(model, cBudgetTable::ePart::Sum, this)),
      m_layout(new QGridLayout(this))
{
    setFrameStyle(StyledPanel | Sunken);
    m_rule->setFrameStyle(HLine | Sunken);
    m_layout->setContentsMargins({});
    m_layout->setSpacing(0);
    m_layout->setColumnStretch(0, 1);
    m_layout->addWidget(m_lines, 0, 0, 1, 2);
    m_layout->addWidget(m_rule, 1, 0, 1, 2);
    m_layout->addWidget(m_sum, 2, 0);
    setFocusProxy(m_lines);
    FollowColumns();
    FitColumns();
    FitSum();
}

// The lines have the headlines and the sum the bar that scrolls both.
void cBudgetGrid::FollowColumns()
{
    m_lines->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_sum->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_sum->horizontalHeader()->hide();
    m_lines->verticalHeader()->setMinimumWidth(m_sum->verticalHeader()->sizeHint().width());
    QScrollBar* lines = m_lines->horizontalScrollBar();
    QScrollBar* sum = m_sum->horizontalScrollBar();
    connect(lines, &QScrollBar::valueChanged, sum, &QScrollBar::setValue);
    connect(sum, &QScrollBar::valueChanged, lines, &QScrollBar::setValue);
    connect(sum, &QScrollBar::rangeChanged, this, &cBudgetGrid::FitSum);
    connect(m_lines->horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int /*before*/, int width) { ColumnResized(column, width); });
    connect(m_lines->model(), &QAbstractItemModel::dataChanged, this, [this] { Fit(eFit::Grow); });
    connect(m_sum->model(), &QAbstractItemModel::dataChanged, this, [this] { Fit(eFit::Grow); });
    connect(m_sum->model(), &QAbstractItemModel::modelReset, this, &cBudgetGrid::FitSum);
    m_lines->viewport()->installEventFilter(this);
}

void cBudgetGrid::FitColumns()
{
    Fit(eFit::Exact);
}

// While somebody types columns only grow: what stands there does not move with every figure.
void cBudgetGrid::Fit(eFit fit)
{
    const QScopedValueRollback guard(m_isFitting, true);
    for (int column = 0; column < cBudgetModel::ColumnCount; ++column) {
        if (!m_drawn.contains(column)) {
            const int least = fit == eFit::Grow ? m_lines->columnWidth(column) : 0;
            m_lines->setColumnWidth(column,
                                    std::max({least, m_lines->ContentWidth(column), m_sum->ContentWidth(column)}));
        }
    }
}

void cBudgetGrid::ColumnResized(int column, int width)
{
    m_sum->setColumnWidth(column, width);
    if (!m_isFitting) {
        m_drawn.insert(column);
    }
}

bool cBudgetGrid::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        Align();
    }
    return QFrame::eventFilter(watched, event);
}

// Beside the sum as much stays free as the lines need for their names and their scroll bar.
void cBudgetGrid::Align()
{
    const QRect seen = m_lines->viewport()->geometry();
    m_layout->setColumnMinimumWidth(1, m_lines->width() - seen.right() - 1);
    m_sum->SetHeadWidth(m_lines->verticalHeader()->width());
}

// One line high, with the scroll bar where there is something to scroll.
void cBudgetGrid::FitSum()
{
    const QScrollBar* bar = m_sum->horizontalScrollBar();
    const bool hasSum = m_sum->model()->rowCount() > 0;
    m_rule->setVisible(hasSum);
    m_sum->setVisible(hasSum);
    m_sum->setFixedHeight(m_sum->verticalHeader()->defaultSectionSize()
                          + (bar->maximum() > 0 ? bar->sizeHint().height() : 0));
}
