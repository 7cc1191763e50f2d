#include "views/statement/cStagedListModel.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modCutText.h"
#include "model/modWord.h"
#include "views/ledger/modImportText.h"
#include "views/list/modEntryOrder.h"
#include "views/look/modMoneyTone.h"

#include <algorithm>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// Ids of rows inside a group are spread, because views hash row and id into one number.
constexpr quintptr idStep = 16;

constexpr std::array<const char*, cStagedListModel::ColumnCount> titles{
    QT_TRANSLATE_NOOP("cText", "Status"),
    QT_TRANSLATE_NOOP("cText", "Datum"),
    QT_TRANSLATE_NOOP("cText", "Empfänger / Auftraggeber"),
    QT_TRANSLATE_NOOP("cText", "Verwendungszweck"),
    QT_TRANSLATE_NOOP("cText", "Betrag"),
    QT_TRANSLATE_NOOP("cText", "Konto"),
    QT_TRANSLATE_NOOP("cText", "Kategorie"),
    QT_TRANSLATE_NOOP("cText", "Intervall"),
    QT_TRANSLATE_NOOP("cText", "Grund"),
};

std::size_t At(int index)
{
    return static_cast<std::size_t>(index);
}

} // namespace

cStagedListModel::cStagedListModel(cStagedSource& source, const cAmountFormat& format, QObject* parent)
    : QAbstractItemModel(parent),
      m_source(source),
      m_format(format),
      m_order(format)
{
    m_order.SetHasCategory([this](const cImportEntry& row) { return InfoOf(row).HasCategory; });
    m_order.SetKnowledge({[this](const cImportEntry& row) { return m_source.Group(row); },
                          [this](const cImportEntry& row) { return InfoOf(row).Category; }});
}

void cStagedListModel::SetRows(cImportEntryList rows)
{
    beginResetModel();
    m_order.SetRows(std::move(rows));
    m_info.clear();
    Arrange();
    endResetModel();
}

void cStagedListModel::SetShown(const cStagedOrder::cShown& shown)
{
    beginResetModel();
    m_order.SetShown(shown);
    Arrange();
    endResetModel();
}

void cStagedListModel::SetFilter(const QString& text)
{
    const QList<modFold::cFolded> words = modFold::Words(text);
    if (words != m_order.Words()) {
        beginResetModel();
        m_order.SetWords(words);
        endResetModel();
    }
}

void cStagedListModel::SetGrouping(modStagedGroup::eGrouping grouping)
{
    beginResetModel();
    m_order.SetGrouping(grouping);
    Arrange();
    endResetModel();
}

void cStagedListModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= ColumnCount) {
        return;
    }
    beginResetModel();
    m_sortColumn = column;
    m_sortOrder = order;
    Arrange();
    endResetModel();
}

void cStagedListModel::Arrange()
{
    // The newest day stands first when the days are sorted downwards, and names follow their column in the same way.
    // What is to be done keeps its order.
    using modStagedGroup::eGrouping;
    const int column = Grouping() == eGrouping::Day ? Date
        : Grouping() == eGrouping::Counterparty     ? Counterparty
        : Grouping() == eGrouping::Category         ? Category
                                                    : -1;
    m_order.Arrange([this](const std::vector<int>& among) { return SortKeys(among); }, m_sortOrder,
                    m_sortColumn == column ? m_sortOrder : Qt::AscendingOrder);
}

std::vector<qint64> cStagedListModel::SortKeys(const std::vector<int>& among) const
{
    const cImportEntryList& rows = m_order.Rows();
    if (m_sortColumn != Date && m_sortColumn != Amount && m_sortColumn != State) {
        return modEntryOrder::Rank(static_cast<int>(among.size()),
                                   [&](int i) { return Text(rows.at(among[At(i)]), m_sortColumn); })
            .Ranks;
    }
    std::vector<qint64> keys;
    keys.reserve(among.size());
    for (const int i : among) {
        const cImportEntry& row = rows.at(i);
        keys.push_back(m_sortColumn == State      ? (row.ImportAssigned ? 1 : 0)
                           : m_sortColumn == Date ? row.ImportDate.toJulianDay()
                                                  : row.ImportValue);
    }
    return keys;
}

void cStagedListModel::Regroup()
{
    beginResetModel();
    m_info.clear();
    Arrange();
    endResetModel();
}

void cStagedListModel::ForgetInfo()
{
    m_info.clear();
    for (int row = 0; row < static_cast<int>(m_order.Groups().size()); ++row) {
        const QModelIndex head = index(row, 0);
        Q_EMIT dataChanged(index(0, 0, head), index(rowCount(head) - 1, Reason, head));
    }
    if (m_order.Groups().empty() && m_order.Count() > 0) {
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, Reason));
    }
}

bool cStagedListModel::IsHead(const QModelIndex& index) const
{
    return index.isValid() && index.internalId() == 0 && !m_order.Groups().empty();
}

QString cStagedListModel::GroupName(const QModelIndex& index) const
{
    const QModelIndex head = index.parent().isValid() ? index.parent() : index;
    return IsHead(head) ? GroupOf(head).Name : QString();
}

const cStagedOrder::cGroup& cStagedListModel::GroupOf(const QModelIndex& head) const
{
    return m_order.Groups()[At(head.row())];
}

int cStagedListModel::PositionOf(const QModelIndex& index) const
{
    if (!index.isValid() || IsHead(index)) {
        return -1;
    }
    const int first = index.internalId() == 0 ? 0 : static_cast<int>(index.internalId() / idStep) - 1;
    return first + index.row() < m_order.Count() ? first + index.row() : -1;
}

int cStagedListModel::IdAt(const QModelIndex& index) const
{
    const int position = PositionOf(index);
    return position < 0 ? 0 : m_order.At(position).ID;
}

QModelIndex cStagedListModel::IndexAt(int position) const
{
    const int group = m_order.GroupAt(position);
    return group < 0 ? index(position, 0) : index(position - m_order.Groups()[At(group)].First, 0, index(group, 0));
}

QList<int> cStagedListModel::IdsIn(const QItemSelection& selection) const
{
    std::vector<bool> isSelected(At(m_order.Count()));
    const auto mark = [&](int first, int count) { std::fill_n(isSelected.begin() + first, count, true); };
    for (const QItemSelectionRange& range : selection) {
        if (!range.isValid()) {
            continue;
        }
        if (range.parent().isValid()) {
            mark(GroupOf(range.parent()).First + range.top(), range.height());
        } else if (m_order.Groups().empty()) {
            mark(range.top(), range.height());
        }
        for (int head = range.top(); IsHead(range.topLeft()) && head <= range.bottom(); ++head) {
            const cStagedOrder::cGroup& group = m_order.Groups()[At(head)];
            mark(group.First, group.Count);
        }
    }
    QList<int> ids;
    for (int position = 0; position < m_order.Count(); ++position) {
        if (isSelected[At(position)]) {
            ids.append(m_order.At(position).ID);
        }
    }
    return ids;
}

// Rows that follow each other become one range: a view takes thousands of ranges very badly.
QItemSelection cStagedListModel::SelectionOf(const QList<int>& ids) const
{
    QItemSelection selection;
    const QList<int> positions = m_order.PositionsOf(ids);
    QModelIndex first;
    QModelIndex last;
    for (const int position : positions) {
        const QModelIndex row = IndexAt(position);
        if (last.isValid() && row.internalId() == last.internalId() && row.row() == last.row() + 1) {
            last = row;
            continue;
        }
        if (first.isValid()) {
            selection.append(QItemSelectionRange(first, last.siblingAtColumn(ColumnCount - 1)));
        }
        first = last = row;
    }
    if (first.isValid()) {
        selection.append(QItemSelectionRange(first, last.siblingAtColumn(ColumnCount - 1)));
    }
    return selection;
}

QModelIndex cStagedListModel::IndexOf(int id) const
{
    const QList<int> positions = id == 0 ? QList<int>() : m_order.PositionsOf({id});
    return positions.isEmpty() ? QModelIndex() : IndexAt(positions.constFirst());
}

QModelIndex cStagedListModel::HeadNamed(const QString& name) const
{
    const std::vector<cStagedOrder::cGroup>& groups = m_order.Groups();
    const auto found =
        std::find_if(groups.begin(), groups.end(), [&](const auto& group) { return group.Name == name; });
    return found == groups.end() ? QModelIndex() : index(static_cast<int>(found - groups.begin()), 0);
}

QList<int> cStagedListModel::OpenIds() const
{
    QList<int> ids;
    for (int position = 0; position < m_order.Count(); ++position) {
        if (!m_order.At(position).ImportAssigned) {
            ids.append(m_order.At(position).ID);
        }
    }
    return ids;
}

QModelIndex cStagedListModel::index(int row, int column, const QModelIndex& parent) const
{
    if (row < 0 || column < 0 || row >= rowCount(parent) || column >= ColumnCount) {
        return {};
    }
    const quintptr id = parent.isValid() ? (static_cast<quintptr>(GroupOf(parent).First) + 1) * idStep : 0;
    return createIndex(row, column, id);
}

QModelIndex cStagedListModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || child.internalId() == 0) {
        return {};
    }
    const int first = static_cast<int>(child.internalId() / idStep) - 1;
    return createIndex(m_order.GroupAt(first), 0, quintptr(0));
}

int cStagedListModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid()) {
        return m_order.Groups().empty() ? m_order.Count() : static_cast<int>(m_order.Groups().size());
    }
    return IsHead(parent) && parent.column() == 0 ? GroupOf(parent).Count : 0;
}

int cStagedListModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

const cStagedInfo& cStagedListModel::InfoOf(const cImportEntry& row) const
{
    auto found = m_info.find(row.ID);
    if (found == m_info.end()) {
        found = m_info.insert(row.ID, m_source.Info(row));
    }
    return *found;
}

QString cStagedListModel::AccountText(const cImportEntry& row) const
{
    const QString account = InfoOf(row).Account;
    if (!account.isEmpty()) {
        return account;
    }
    return row.ImportAccount.isEmpty() ? cText::Tr("kein Konto") : cText::Tr("{0} (kein Konto)", {row.ImportAccount});
}

QString cStagedListModel::Text(const cImportEntry& row, int column) const
{
    switch (column) {
    case State:
        return row.ImportAssigned    ? cText::Tr("gebucht")
            : InfoOf(row).IsDoubtful ? cText::Tr("doppelt?")
                                     : cText::Tr("offen");
    case Date: return modDate::ToText(row.ImportDate);
    case Counterparty: return modCutText::Name(row.ImportBeneficiary);
    case Purpose: return row.ImportPurpose.isEmpty() ? row.ImportType : modCutText::Purpose(row.ImportPurpose);
    case Amount: return m_format.Cents(row.ImportValue);
    case Account: return AccountText(row);
    case Category: return InfoOf(row).Category;
    case Interval: return modWord::Intervals().ToShown(InfoOf(row).Interval);
    case Reason: return InfoOf(row).Reason;
    default: return {};
    }
}

QString cStagedListModel::Tip(const cImportEntry& row, int column) const
{
    if ((column == State || column == Reason) && InfoOf(row).IsDoubtful) {
        return InfoOf(row).Hint;
    }
    if (column != Counterparty && column != Purpose) {
        return Text(row, column);
    }
    return modImportText::Details(row);
}

QVariant cStagedListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return index.column() == Amount ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    }
    if (IsHead(index)) {
        return GroupData(GroupOf(index), index.column(), role);
    }
    const int position = PositionOf(index);
    return position < 0 ? QVariant() : RowData(m_order.At(position), index.column(), role);
}

QVariant cStagedListModel::RowData(const cImportEntry& row, int column, int role) const
{
    switch (role) {
    case Qt::DisplayRole: return Text(row, column);
    case Qt::EditRole: return column == Interval ? InfoOf(row).Interval : Text(row, column);
    case Qt::ToolTipRole: return Tip(row, column);
    case ToneRole: return QVariant::fromValue(modMoneyTone::Of(row.ImportValue));
    case RowIdRole: return row.ID;
    case BookedRole: return row.ImportAssigned;
    case GroupRole: return false;
    case DoubtRole: return InfoOf(row).IsDoubtful;
    case cCategoryLooks::Role: return column == Category ? m_looks.Shown(InfoOf(row).Category) : QVariant();
    default: return {};
    }
}

QVariant cStagedListModel::GroupData(const cStagedOrder::cGroup& group, int column, int role) const
{
    if (role == GroupRole) {
        return true;
    }
    if (role == NameRole) {
        return group.Name;
    }
    if (role == RowIdRole) {
        return 0;
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (column == Amount) {
        return m_format.Cents(group.Sum);
    }
    if (column != 0) {
        return {};
    }
    const QStringList values{group.Name, QString::number(group.Count), QString::number(group.Open)};
    if (Grouping() == modStagedGroup::eGrouping::Plan) {
        return cText::Tr("{0}  ({1})", values); // the name says what is open
    }
    return group.Open == group.Count ? cText::Tr("{0}  ({1} offen)", values)
        : group.Open == 0            ? cText::Tr("{0}  ({1} gebucht)", values)
                                     : cText::Tr("{0}  ({1}, davon {2} offen)", values);
}

Qt::ItemFlags cStagedListModel::flags(const QModelIndex& index) const
{
    // Onto another category; elsewhere there is nothing to drag them to.
    const bool isDragged = index.isValid() && Grouping() == modStagedGroup::eGrouping::Category;
    const Qt::ItemFlags flags =
        QAbstractItemModel::flags(index) | (isDragged ? Qt::ItemIsDragEnabled : Qt::NoItemFlags);
    const int position = PositionOf(index);
    if (position < 0) {
        return flags;
    }
    const bool isOpen = !m_order.At(position).ImportAssigned;
    const bool isChoice = index.column() == Category || (index.column() == Interval && isOpen);
    return isChoice ? flags | Qt::ItemIsEditable : flags;
}

QVariant cStagedListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(section == Amount ? Qt::AlignRight : Qt::AlignLeft)
                                   | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant(cText::Tr(titles[At(section)])) : QVariant();
}
