#include "windows/widget/cFieldGrid.h"

#include <QLabel>
#include <QStyle>

#include <algorithm>

namespace {

int Height(const QLayoutItem& field, int width)
{
    return field.hasHeightForWidth() ? field.heightForWidth(width) : field.sizeHint().height();
}

bool WantsMore(const QLayoutItem& field)
{
    return field.expandingDirections().testFlag(Qt::Horizontal);
}

// A text that is typed needs its room, while one that is chosen can be read in its list.
int ShortWidth(const QLayoutItem& field)
{
    return WantsMore(field) ? field.sizeHint().width() : field.minimumSize().width();
}

} // namespace

cFieldGrid::cFieldGrid(int mostColumns, QWidget* parent)
    : cWrapLayout(parent),
      m_mostColumns(static_cast<std::size_t>(mostColumns))
{
}

void cFieldGrid::AddField(QWidget* label, QWidget* field)
{
    addWidget(label);
    addWidget(field);
}

void cFieldGrid::AddField(const QString& label, QWidget* field)
{
    auto* text = new QLabel(label, field->parentWidget());
    text->setBuddy(field->focusProxy() == nullptr ? field : field->focusProxy());
    AddField(text, field);
}

std::vector<cFieldGrid::cPair> cFieldGrid::Pairs() const
{
    std::vector<cPair> pairs;
    for (int i = 0; i + 1 < count(); i += 2) {
        if (!itemAt(i)->isEmpty()) {
            pairs.push_back({itemAt(i), itemAt(i + 1)});
        }
    }
    return pairs;
}

std::vector<cFieldGrid::cColumn> cFieldGrid::Columns(const cPairs& pairs, std::size_t count, eField field)
{
    std::vector<cColumn> columns(count);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        cColumn& column = columns.at(i % count);
        const bool isAlone = i + 1 == pairs.size() && i % count == 0; // it has the whole row
        column.Label = std::max(column.Label, pairs[i].Label->sizeHint().width());
        column.Wanted = std::max(column.Wanted, isAlone && count > 1 ? 0 : pairs[i].Field->sizeHint().width());
        column.Field = field == eField::Whole ? column.Wanted : std::max(column.Field, ShortWidth(*pairs[i].Field));
        column.WantsMore = column.WantsMore || WantsMore(*pairs[i].Field);
    }
    return columns;
}

int cFieldGrid::Width(const std::vector<cColumn>& columns) const
{
    int width = -ColumnGap();
    for (const cColumn& column : columns) {
        width += column.Label + spacing() + column.Field + ColumnGap();
    }
    return width;
}

std::vector<cFieldGrid::cRow> cFieldGrid::AlignedRows(const cPairs& pairs, const std::vector<cColumn>& columns)
{
    std::vector<cRow> rows;
    for (std::size_t first = 0; first < pairs.size(); first += columns.size()) {
        rows.push_back({pairs.subspan(first, std::min(columns.size(), pairs.size() - first)), columns});
    }
    return rows;
}

// As many side by side as each row has room for, whatever stands below.
std::vector<cFieldGrid::cRow> cFieldGrid::RaggedRows(const cPairs& pairs, int width, eField field) const
{
    std::vector<cRow> rows;
    for (std::size_t first = 0; first < pairs.size();) {
        std::size_t count = 1;
        while (first + count < pairs.size()
               && Width(Columns(pairs.subspan(first, count + 1), count + 1, field)) <= width) {
            ++count;
        }
        rows.push_back({pairs.subspan(first, count), Columns(pairs.subspan(first, count), count, field)});
        first += count;
    }
    return rows;
}

// Aligned where two columns have room. Below that lines are saved first, with shortened fields where it takes them, and
// only then all fields stand in one column, which may still be too wide.
std::vector<cFieldGrid::cRow> cFieldGrid::Rows(const cPairs& pairs, int width) const
{
    for (std::size_t count = std::min(m_mostColumns, pairs.size()); count > 1; --count) {
        const std::vector<cColumn> columns = Columns(pairs, count);
        if (Width(columns) <= width) {
            return AlignedRows(pairs, columns);
        }
    }
    for (const eField field : {eField::Whole, eField::Short}) {
        std::vector<cRow> ragged = m_mostColumns > 1 ? RaggedRows(pairs, width, field) : std::vector<cRow>();
        if (!ragged.empty() && 3 * ragged.size() <= 2 * pairs.size()) { // else it is not worth it
            return ragged;
        }
    }
    return AlignedRows(pairs, Columns(pairs, 1));
}

void cFieldGrid::Widen(std::vector<cColumn>& columns, int width) const
{
    const auto wanting = static_cast<int>(
        std::count_if(columns.begin(), columns.end(), [](const cColumn& column) { return column.WantsMore; }));
    int left = width - Width(columns);
    for (cColumn& column : columns) {
        const int lacking = std::clamp(column.Wanted - column.Field, 0, std::max(left, 0));
        column.Field += lacking;
        left -= lacking;
    }
    for (cColumn& column : columns) {
        if (left < 0) {
            column.Field += left; // the only one
        } else if (column.WantsMore) {
            column.Field += left / wanting;
        }
    }
}

void cFieldGrid::PlaceRow(const cRow& row, const QRect& place) const
{
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    const bool isAlone = row.Pairs.size() == 1 && WantsMore(*row.Pairs[0].Field);
    int left = place.left();
    for (std::size_t i = 0; i < row.Pairs.size(); ++i) {
        const cColumn& column = row.Columns.at(i);
        const int field = left + column.Label + spacing();
        const int width = isAlone ? place.right() + 1 - field : column.Field;
        const QRect labelPlace(left, place.top(), column.Label, place.height());
        const QRect fieldPlace(field, place.top(), width, place.height());
        row.Pairs[i].Label->setGeometry(QStyle::visualRect(direction, place, labelPlace));
        row.Pairs[i].Field->setGeometry(QStyle::visualRect(direction, place, fieldPlace));
        left = field + column.Field + ColumnGap();
    }
}

int cFieldGrid::Arrange(const QRect& place, eArrange arrange) const
{
    const std::vector<cPair> pairs = Pairs();
    int top = place.top();
    for (cRow& row : Rows(pairs, place.width())) {
        Widen(row.Columns, place.width());
        int height = 0;
        for (std::size_t i = 0; i < row.Pairs.size(); ++i) {
            height = std::max(height, Height(*row.Pairs[i].Field, row.Columns.at(i).Field));
        }
        if (arrange == eArrange::Place) {
            PlaceRow(row, QRect(place.left(), top, place.width(), height));
        }
        top += height + spacing();
    }
    return pairs.empty() ? 0 : top - spacing() - place.top();
}

QSize cFieldGrid::WantedSize() const
{
    const std::vector<cPair> pairs = Pairs();
    if (pairs.empty()) {
        return {0, 0};
    }
    const int width = Width(Columns(pairs, std::min(m_mostColumns, pairs.size())));
    return {width, Arrange(QRect(0, 0, width, 0), eArrange::Measure)};
}

QSize cFieldGrid::LeastSize() const
{
    cColumn least;
    int height = 0;
    for (const cPair& pair : Pairs()) {
        least.Label = std::max(least.Label, pair.Label->minimumSize().width());
        least.Field = std::max(least.Field, pair.Field->minimumSize().width());
        height = std::max(height, pair.Field->sizeHint().height());
    }
    return {least.Label + spacing() + least.Field, height};
}
