#include "views/cStagedListModel.h"

#include "base/cText.h"
#include "base/modAmount.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modWord.h"

#include <QSet>

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// Places of texts in alphabetical order, so that sorting compares numbers; equal texts share a place.
std::vector<qint64> RanksOf(const QStringList& texts)
{
    std::map<std::pair<QString, QString>, qint64> places; // folded, then as it is
    QHash<QString, QString> folded;
    for (const QString& text : texts) {
        if (!folded.contains(text)) {
            folded.insert(text, modFold::Fold(text).Plain);
            places.emplace(std::pair(folded.value(text), text), 0);
        }
    }
    qint64 next = 0;
    for (auto& place : places) {
        place.second = next++;
    }
    std::vector<qint64> ranks;
    ranks.reserve(static_cast<std::size_t>(texts.size()));
    for (const QString& text : texts) {
        ranks.push_back(places.at(std::pair(folded.value(text), text)));
    }
    return ranks;
}

} // namespace

cStagedListModel::cStagedListModel(cStagedSource& source, const cAmountFormat& format, QObject* parent)
    : QAbstractTableModel(parent),
      m_source(source),
      m_format(format)
{
}

void cStagedListModel::SetRows(cImportEntryList rows)
{
    beginResetModel();
    m_rows = std::move(rows);
    m_openCount = std::count_if(m_rows.begin(), m_rows.end(), [](const auto& row) { return !row.ImportAssigned; });
    m_info.clear();
    Rebuild();
    endResetModel();
}

void cStagedListModel::SetShow(eShow show)
{
    beginResetModel();
    m_show = show;
    Rebuild();
    endResetModel();
}

void cStagedListModel::SetFilter(const QString& text)
{
    beginResetModel();
    m_words = modFold::Words(text);
    Rebuild();
    endResetModel();
}

void cStagedListModel::ForgetInfo()
{
    m_info.clear();
    if (!m_order.empty()) {
        Q_EMIT dataChanged(index(0, Account), index(rowCount() - 1, Reason));
    }
}

bool cStagedListModel::IsShown(const cImportEntry& row) const
{
    if (m_show == eShow::OpenOnly && row.ImportAssigned) {
        return false;
    }
    if (m_words.isEmpty()) {
        return true;
    }
    const QStringList texts{row.ImportBeneficiary,
                            row.ImportPurpose,
                            row.ImportType,
                            row.ImportBeneficiaryAccount,
                            row.ImportAccount,
                            Text(row, Amount),
                            modDate::ToGerman(row.ImportDate)};
    return modFold::HoldsAll(modFold::Fold(texts.join(u' ')), m_words);
}

void cStagedListModel::Rebuild()
{
    m_order.clear();
    for (qsizetype i = 0; i < m_rows.size(); ++i) {
        if (IsShown(m_rows.at(i))) {
            m_order.push_back(i);
        }
    }
    Order();
}

void cStagedListModel::Order()
{
    std::vector<qint64> keys(static_cast<std::size_t>(m_rows.size()));
    if (m_sortColumn == Date || m_sortColumn == Amount || m_sortColumn == State) {
        std::transform(m_rows.begin(), m_rows.end(), keys.begin(), [this](const cImportEntry& row) {
            if (m_sortColumn == State) {
                return qint64{row.ImportAssigned ? 1 : 0};
            }
            return m_sortColumn == Date ? row.ImportDate.toJulianDay() : modAmount::ToCents(row.ImportValue);
        });
    } else {
        QStringList texts(m_rows.size());
        for (const qsizetype i : m_order) {
            texts[i] = Text(m_rows.at(i), m_sortColumn);
        }
        keys = RanksOf(texts);
    }
    const auto key = [&](qsizetype i) { return keys[static_cast<std::size_t>(i)]; };
    std::stable_sort(m_order.begin(), m_order.end(), [&](qsizetype left, qsizetype right) {
        return m_sortOrder == Qt::AscendingOrder ? key(left) < key(right) : key(right) < key(left);
    });
}

void cStagedListModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= ColumnCount) {
        return;
    }
    Q_EMIT layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    QList<int> ids;
    std::transform(before.begin(), before.end(), std::back_inserter(ids),
                   [this](const QModelIndex& old) { return IdAt(old); });
    m_sortColumn = column;
    m_sortOrder = order;
    Rebuild();
    QHash<int, int> places;
    for (int row = 0; row < rowCount(); ++row) {
        places.insert(RowAt(row).ID, row);
    }
    for (qsizetype i = 0; i < before.size(); ++i) {
        const auto place = places.constFind(ids.at(i));
        changePersistentIndex(before.at(i),
                              place == places.constEnd() ? QModelIndex() : index(*place, before.at(i).column()));
    }
    Q_EMIT layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

const cImportEntry& cStagedListModel::RowAt(int row) const
{
    return m_rows.at(m_order.at(static_cast<std::size_t>(row)));
}

int cStagedListModel::IdAt(const QModelIndex& index) const
{
    return index.isValid() && index.row() < rowCount() ? RowAt(index.row()).ID : 0;
}

QModelIndexList cStagedListModel::IndexesOf(const QList<int>& ids) const
{
    const QSet<int> wanted(ids.begin(), ids.end());
    QModelIndexList indexes;
    for (int row = 0; row < rowCount() && indexes.size() < wanted.size(); ++row) {
        if (wanted.contains(RowAt(row).ID)) {
            indexes.append(index(row, 0));
        }
    }
    return indexes;
}

QList<int> cStagedListModel::OpenIds() const
{
    QList<int> ids;
    for (const qsizetype i : m_order) {
        if (!m_rows.at(i).ImportAssigned) {
            ids.append(m_rows.at(i).ID);
        }
    }
    return ids;
}

const cStagedInfo& cStagedListModel::InfoOf(const cImportEntry& row) const
{
    auto found = m_info.find(row.ID);
    if (found == m_info.end()) {
        found = m_info.insert(row.ID, m_source.Info(row));
    }
    return *found;
}

int cStagedListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_order.size());
}

int cStagedListModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
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
    case State: return row.ImportAssigned ? cText::Tr("gebucht") : cText::Tr("offen");
    case Date: return modDate::ToGerman(row.ImportDate);
    case Counterparty: return row.ImportBeneficiary;
    case Purpose: return row.ImportPurpose.isEmpty() ? row.ImportType : row.ImportPurpose;
    case Amount: return m_format.Cents(modAmount::ToCents(row.ImportValue));
    case Account: return AccountText(row);
    case Category: return InfoOf(row).Category;
    case Interval: return modWord::Intervals().ToShown(InfoOf(row).Interval);
    case Reason: return InfoOf(row).Reason;
    default: return {};
    }
}

QString cStagedListModel::Tip(const cImportEntry& row, int column) const
{
    if (column != Counterparty && column != Purpose) {
        return Text(row, column);
    }
    QStringList lines{row.ImportBeneficiary, row.ImportPurpose, row.ImportType,
                      QString(row.ImportBeneficiaryAccount + u' ' + row.ImportBeneficiaryBLZ).trimmed()};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QVariant cStagedListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const cImportEntry& row = RowAt(index.row());
    switch (role) {
    case Qt::DisplayRole: return Text(row, index.column());
    case Qt::EditRole: return index.column() == Interval ? InfoOf(row).Interval : Text(row, index.column());
    case Qt::ToolTipRole: return Tip(row, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == Amount ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case ToneRole: return row.ImportValue > 0.0 ? 1 : (row.ImportValue < 0.0 ? 2 : 0);
    case RowIdRole: return row.ID;
    case BookedRole: return row.ImportAssigned;
    default: return {};
    }
}

bool cStagedListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) {
        return false;
    }
    const cImportEntry& row = RowAt(index.row());
    const bool isTaken = index.column() == Category ? m_source.SetCategory(row, value.toString())
                                                    : m_source.SetInterval(row, value.toString());
    if (isTaken) {
        m_info.remove(row.ID);
        Q_EMIT dataChanged(this->index(index.row(), 0), this->index(index.row(), ColumnCount - 1));
    }
    return isTaken;
}

Qt::ItemFlags cStagedListModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    const bool isChoice = index.isValid() && (index.column() == Category || index.column() == Interval);
    return isChoice && !RowAt(index.row()).ImportAssigned ? flags | Qt::ItemIsEditable : flags;
}

QVariant cStagedListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(section == Amount ? Qt::AlignRight : Qt::AlignLeft)
                                   | Qt::AlignVCenter);
    }
    if (role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case State: return cText::Tr("Status");
    case Date: return cText::Tr("Datum");
    case Counterparty: return cText::Tr("Empfänger / Auftraggeber");
    case Purpose: return cText::Tr("Verwendungszweck");
    case Amount: return cText::Tr("Betrag");
    case Account: return cText::Tr("Konto");
    case Category: return cText::Tr("Kategorie");
    case Interval: return cText::Tr("Intervall");
    case Reason: return cText::Tr("Grund des Vorschlags");
    default: return {};
    }
}
