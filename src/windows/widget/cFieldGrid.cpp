#include "windows/widget/cFieldGrid.h"

#include <QLabel>
#include <QStyle>

#include <algorithm>

namespace {

int Height(const QLayoutItem& field, int width)
{
    return field.hasHeightForWidth() ? field.heightForWidth(width) : field.sizeHint().height();
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

std::vector<cFieldGrid::cColumn> cFieldGrid::Columns(const std::vector<cPair>& pairs, std::size_t count) const
{
    std::vector<cColumn> columns(count);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        cColumn& column = columns.at(i % count);
        const bool isAlone = i + 1 == pairs.size() && i % count == 0; // it has the whole row
        column.Label = std::max(column.Label, pairs.at(i).Label->sizeHint().width());
        column.Field = std::max(column.Field, isAlone && count > 1 ? 0 : pairs.at(i).Field->sizeHint().width());
        column.WantsMore = column.WantsMore || pairs.at(i).Field->expandingDirections().testFlag(Qt::Horizontal);
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

// The most columns that have room; one column may be too wide.
std::vector<cFieldGrid::cColumn> cFieldGrid::Fitting(const std::vector<cPair>& pairs, int width) const
{
    for (std::size_t count = std::min(m_mostColumns, pairs.size()); count > 1; --count) {
        std::vector<cColumn> columns = Columns(pairs, count);
        if (Width(columns) <= width) {
            return columns;
        }
    }
    return Columns(pairs, 1);
}

void cFieldGrid::Widen(std::vector<cColumn>& columns, int width) const
{
    const auto wanting = static_cast<int>(
        std::count_if(columns.begin(), columns.end(), [](const cColumn& column) { return column.WantsMore; }));
    const int left = width - Width(columns);
    for (cColumn& column : columns) {
        if (left < 0) {
            column.Field += left; // the only one
        } else if (column.WantsMore) {
            column.Field += left / wanting;
        }
    }
}

void cFieldGrid::PlaceRow(const cRow& row, const std::vector<cColumn>& columns, const QRect& place) const
{
    const Qt::LayoutDirection direction = parentWidget()->layoutDirection();
    const bool isAlone = row.Pairs.size() == 1;
    int left = place.left();
    for (std::size_t i = 0; i < row.Pairs.size(); ++i) {
        const int field = left + columns.at(i).Label + spacing();
        const int width = isAlone ? place.right() + 1 - field : columns.at(i).Field;
        const QRect labelPlace(left, place.top(), columns.at(i).Label, row.Height);
        const QRect fieldPlace(field, place.top(), width, row.Height);
        row.Pairs[i].Label->setGeometry(QStyle::visualRect(direction, place, labelPlace));
        row.Pairs[i].Field->setGeometry(QStyle::visualRect(direction, place, fieldPlace));
        left = field + columns.at(i).Field + ColumnGap();
    }
}

int cFieldGrid::Arrange(const QRect& place, eArrange arrange) const
{
    const std::vector<cPair> pairs = Pairs();
    if (pairs.empty()) {
        return 0;
    }
    std::vector<cColumn> columns = Fitting(pairs, place.width());
    Widen(columns, place.width());
    int top = place.top();
    for (std::size_t first = 0; first < pairs.size(); first += columns.size()) {
        cRow row{std::span(pairs).subspan(first, std::min(columns.size(), pairs.size() - first))};
        for (std::size_t i = 0; i < row.Pairs.size(); ++i) {
            row.Height = std::max(row.Height, Height(*row.Pairs[i].Field, columns.at(i).Field));
        }
        if (arrange == eArrange::Place) {
            PlaceRow(row, columns, QRect(place.left(), top, place.width(), row.Height));
        }
        top += row.Height + spacing();
    }
    return top - spacing() - place.top();
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
