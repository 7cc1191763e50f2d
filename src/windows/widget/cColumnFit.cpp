#include "windows/widget/cColumnFit.h"

#include "views/list/modColumnWidth.h"
#include "views/look/cCategoryLooks.h"

#include <QEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTreeView>

#include <algorithm>
#include <functional>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int enoughLetters = 11; // for a word such as a kind or an interval
constexpr int mostLetters = 40;   // that a column of texts takes of room that is left
constexpr int rowsToMeasure = 200;

// With a mark before it, or the arrow of the field that opens on it.
int WidthOf(const QModelIndex& index, const QFontMetrics& metrics)
{
    const bool isMarked = index.data(Qt::CheckStateRole).isValid() || (index.flags() & Qt::ItemIsEditable) != 0
        || index.data(cCategoryLooks::Role).value<cCategoryLook>() != cCategoryLook{};
    return metrics.horizontalAdvance(index.data().toString()) + (isMarked ? metrics.height() * 2 : 0);
}

} // namespace

cColumnFit::cColumnFit(QTreeView& view, std::vector<cColumn> columns, int rest)
    : QObject(&view),
      m_view(view),
      m_columns(std::move(columns)),
      m_rest(rest),
      m_wanted(static_cast<qsizetype>(m_columns.size()), 0),
      m_least(static_cast<qsizetype>(m_columns.size()), 0),
      m_longest(static_cast<qsizetype>(m_columns.size()), 0),
      m_isAway(static_cast<qsizetype>(m_columns.size()), false)
{
    QHeaderView& header = *m_view.header();
    header.setStretchLastSection(false);
    header.setMinimumSectionSize(Letter() * 2);
    m_view.viewport()->installEventFilter(this);
    connect(m_view.model(), &QAbstractItemModel::modelReset, this, &cColumnFit::Measure);
    connect(&header, &QHeaderView::sectionResized, this,
            [this](int column, int /*before*/, int width) { TakeDragged(column, width); });
    SetLayout(std::nullopt);
}

int cColumnFit::Letter() const
{
    return m_view.fontMetrics().averageCharWidth();
}

int cColumnFit::Wanted(int column) const
{
    const int wanted = m_wanted.at(column);
    return wanted > 0 ? wanted : m_columns.at(static_cast<std::size_t>(column)).Letters * Letter();
}

QString cColumnFit::WidestAmount(int column) const
{
    const QAbstractItemModel& model = *m_view.model();
    const QVariant known = model.headerData(column, Qt::Horizontal, modColumnWidth::WidestRole);
    if (known.isValid()) {
        return known.toString();
    }
    QString widest;
    const auto look = [&](const QModelIndex& parent, const auto& again) -> void {
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QString text = model.index(row, column, parent).data().toString();
            widest = text.size() > widest.size() ? text : widest;
            again(model.index(row, 0, parent), again);
        }
    };
    look({}, look);
    return widest;
}

// What a day or an amount needs with its margins; the title of such a column is read whole as well.
int cColumnFit::Least(int column) const
{
    const cColumn& wish = m_columns.at(static_cast<std::size_t>(column));
    if (wish.Kind == eKind::Text) {
        return wish.LeastLetters * Letter();
    }
    const QString text = wish.Kind == eKind::Day ? u"00.00.0000"_s : WidestAmount(column);
    const int margin = m_view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &m_view) + 1;
    const int titleMargin = m_view.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, m_view.header()) + 1;
    const QString title = m_view.model()->headerData(column, Qt::Horizontal).toString();
    return std::max(m_view.fontMetrics().horizontalAdvance(text) + 2 * margin,
                    m_view.header()->fontMetrics().horizontalAdvance(title) + 2 * titleMargin)
        + Letter() / 2; // italics lean over
}

// A width that the user chose stays.
int cColumnFit::Most(int column) const
{
    return m_wanted.at(column) > 0 ? 0 : m_longest.at(column);
}

// With some room, because the longest text that the model names need not be the widest. Where it names none, the rows
// at the top speak for all.
int cColumnFit::Longest(int column) const
{
    if (m_columns.at(static_cast<std::size_t>(column)).Kind != eKind::Text) {
        return 0;
    }
    const QAbstractItemModel& model = *m_view.model();
    const QFontMetrics metrics = m_view.fontMetrics();
    int width = 0;
    int left = rowsToMeasure;
    const auto look = [&](const QModelIndex& parent, int indent, const auto& again) -> void {
        for (int row = 0; row < model.rowCount(parent) && left-- > 0; ++row) {
            const QModelIndex first = model.index(row, 0, parent);
            const QModelIndex index = first.siblingAtColumn(column);
            if (column > 0 || !model.hasChildren(first)) { // what heads a branch may reach over other columns
                width = std::max(width, WidthOf(index, metrics) + 2 * Letter() + indent);
            }
            again(first, column == 0 ? indent + m_view.indentation() : 0, again);
        }
    };
    const QVariant known = model.headerData(column, Qt::Horizontal, modColumnWidth::WidestRole);
    if (known.isValid()) {
        width = metrics.horizontalAdvance(known.toString()) + 5 * Letter();
    } else {
        look({}, column == 0 && m_view.rootIsDecorated() ? m_view.indentation() : 0, look);
    }
    return std::max(m_view.header()->sectionSizeHint(column),
                    std::min(width, std::max(mostLetters * Letter(), Wanted(column))));
}

void cColumnFit::Measure()
{
    for (int column = 0; column < m_least.size(); ++column) {
        m_longest[column] = Longest(column);
        m_least[column] = m_longest.at(column) > 0 ? std::min(Least(column), m_longest.at(column)) : Least(column);
    }
    Fit();
}

void cColumnFit::SendAway()
{
    QHeaderView& header = *m_view.header();
    const auto isWished = [&](int column) { return m_isAway.at(column) || !header.isSectionHidden(column); };
    int needed = 0;
    for (int column = 0; column < m_least.size(); ++column) {
        needed += isWished(column) ? m_least.at(column) : 0;
    }
    std::multimap<int, int, std::greater<>> spare;
    for (int column = 0; column < m_least.size(); ++column) {
        if (const int rank = m_columns.at(static_cast<std::size_t>(column)).Spare; rank > 0 && isWished(column)) {
            spare.emplace(rank, column);
        }
    }
    for (const auto& [rank, column] : spare) {
        m_isAway[column] = needed > m_view.viewport()->width();
        needed -= m_isAway.at(column) ? m_least.at(column) : 0;
        header.setSectionHidden(column, m_isAway.at(column));
    }
}

void cColumnFit::Fit()
{
    if (m_isFitting) {
        return;
    }
    const QScopedValueRollback guard(m_isFitting, true);
    SendAway();
    QHeaderView& header = *m_view.header();
    QList<int> shown;
    QList<modColumnWidth::cColumn> columns;
    int rest = -1;
    for (int column = 0; column < m_wanted.size(); ++column) {
        if (!header.isSectionHidden(column)) {
            const bool takesRest = column == m_rest && m_wanted.at(column) == 0;
            rest = takesRest ? static_cast<int>(shown.size()) : rest;
            const int least = column == m_dragged ? Wanted(column) : m_least.at(column);
            columns.append(
                {Wanted(column), enoughLetters * Letter(), least, Most(column), header.sectionSizeHint(column)});
            shown.append(column);
        }
    }
    const QList<int> widths = modColumnWidth::Share(columns, rest, m_view.viewport()->width());
    for (qsizetype i = 0; i < shown.size(); ++i) {
        header.resizeSection(shown.at(i), widths.at(i));
    }
}

void cColumnFit::SetShown(int column, bool isShown)
{
    const QScopedValueRollback guard(m_isFitting, true); // the width that it gets then is nobody's wish
    m_isAway[column] = false;
    m_view.header()->setSectionHidden(column, !isShown);
}

// The column under the mouse gets what it is drawn to, the others give way.
void cColumnFit::TakeDragged(int column, int width)
{
    const bool isByHand = !m_isFitting && m_view.isVisible() && width > 0;
    if (isByHand) {
        m_dragged = column;
        m_wanted[column] = std::max(width, m_least.at(column));
        Fit();
        m_dragged = -1;
    }
}

void cColumnFit::SetLayout(const std::optional<cListLayout>& layout)
{
    QHeaderView& header = *m_view.header();
    m_wanted.fill(0);
    for (int column = 0; column < m_wanted.size(); ++column) {
        header.moveSection(header.visualIndex(column), column);
    }
    if (layout) {
        const cListLayout scaled = layout->ForLetter(Letter());
        int visual = 0;
        for (const cListLayout::cColumn& column : scaled.Columns) {
            header.moveSection(header.visualIndex(column.Column), visual++);
            m_wanted[column.Column] = column.Width;
        }
    }
    Measure();
}

cListLayout cColumnFit::Layout() const
{
    const QHeaderView& header = *m_view.header();
    cListLayout layout;
    for (int visual = 0; visual < header.count(); ++visual) {
        const int column = header.logicalIndex(visual);
        layout.Columns.push_back({column, m_wanted.at(column), m_isAway.at(column) || !header.isSectionHidden(column)});
    }
    layout.SortColumn = header.sortIndicatorSection();
    layout.IsDescending = header.sortIndicatorOrder() == Qt::DescendingOrder;
    layout.Letter = Letter();
    return layout;
}

QList<int> cColumnFit::Shown() const
{
    QList<int> shown;
    const cListLayout layout = Layout();
    for (const cListLayout::cColumn& column : layout.Columns) {
        if (column.IsShown) {
            shown.append(column.Column);
        }
    }
    return shown;
}

bool cColumnFit::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        Fit();
    } else if (event->type() == QEvent::FontChange) {
        Measure();
    }
    return QObject::eventFilter(watched, event);
}
