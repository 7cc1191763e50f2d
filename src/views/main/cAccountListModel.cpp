#include "views/main/cAccountListModel.h"

#include "base/cText.h"
#include "core/cAmountFormat.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace {

const cTemplateItem* FindName(const cTemplateItemList& accounts, const QString& name)
{
    const auto found = std::find_if(accounts.begin(), accounts.end(),
                                    [&](const cTemplateItem& account) { return account.TemplateName == name; });
    return found == accounts.end() ? nullptr : &*found;
}

} // namespace

cAccountListModel::cAccountListModel(const cAmountFormat& format, QObject* parent)
    : QAbstractTableModel(parent),
      m_format(format)
{
}

cAccountListModel::~cAccountListModel() = default;

void cAccountListModel::SetAccounts(const cTemplateItemList& accounts, const QHash<QString, qint64>& balances,
                                    const QHash<QString, int>& open)
{
    beginResetModel();
    m_rows.clear();
    std::vector<std::pair<QString, std::vector<cRow>>> groups;
    for (const cTemplateItem& account : accounts) {
        const cRow row{Account, account.TemplateName, balances.value(account.TemplateName),
                       open.value(account.TemplateName)};
        if (!modTemplate::IsVisible(account) && row.Cents == 0 && row.Open == 0) {
            continue; // closed and empty
        }
        auto group = std::find_if(groups.begin(), groups.end(),
                                  [&](const auto& each) { return each.first == account.TemplateCategory; });
        if (group == groups.end()) {
            group = groups.insert(groups.end(), {account.TemplateCategory, {}});
        }
        group->second.push_back(row);
    }
    for (const auto& [name, rows] : groups) {
        AddGroup(name.isEmpty() ? cText::Tr("Konten") : name, rows);
    }
    std::map<QString, cRow> others;
    for (auto balance = balances.begin(); balance != balances.end(); ++balance) {
        if (FindName(accounts, balance.key()) == nullptr && *balance != 0) {
            others.emplace(balance.key(), cRow{Account, balance.key(), *balance, open.value(balance.key())});
        }
    }
    std::vector<cRow> otherRows;
    otherRows.reserve(others.size());
    for (const auto& [name, row] : others) {
        otherRows.push_back(row);
    }
    AddGroup(cText::Tr("Ohne Kontoeintrag"), otherRows);
    const int openRows = std::accumulate(open.begin(), open.end(), 0);
    m_rows.push_back(
        {Total, cText::Tr("Gesamt"), std::accumulate(balances.begin(), balances.end(), qint64(0)), openRows});
    endResetModel();
}

void cAccountListModel::AddGroup(const QString& name, const std::vector<cRow>& rows)
{
    if (!rows.empty()) {
        m_rows.push_back({Group, name, 0, 0});
        m_rows.insert(m_rows.end(), rows.begin(), rows.end());
    }
}

void cAccountListModel::SetChosen(const QString& account)
{
    m_chosen = account;
    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
}

void cAccountListModel::SetWarnings(const QHash<QString, QString>& texts)
{
    if (texts != m_warnings) {
        m_warnings = texts;
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
    }
}

QString cAccountListModel::AccountAt(const QModelIndex& index) const
{
    if (!index.isValid() || m_rows[static_cast<std::size_t>(index.row())].Kind != Account) {
        return {};
    }
    return m_rows[static_cast<std::size_t>(index.row())].Name;
}

std::optional<QString> cAccountListModel::ChoiceAt(const QModelIndex& index) const
{
    const bool isChoice = index.isValid() && m_rows[static_cast<std::size_t>(index.row())].Kind != Group;
    return isChoice ? std::optional(AccountAt(index)) : std::nullopt;
}

int cAccountListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int cAccountListModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QString cAccountListModel::Text(const cRow& row, int column) const
{
    switch (column) {
    case Name: return row.Name;
    case Balance: return row.Kind == Group ? QString() : m_format.Cents(row.Cents);
    case Open: return row.Open == 0 ? QString() : QString::number(row.Open);
    default: return {};
    }
}

QString cAccountListModel::Warning(const cRow& row) const
{
    return row.Kind == Account ? m_warnings.value(row.Name) : QString();
}

QString cAccountListModel::Hint(const cRow& row, int column) const
{
    if (column == Open && row.Open > 0) {
        return row.Open == 1 ? cText::Tr("1 Umsatz wartet auf die Buchung")
                             : cText::Tr("{0} Umsätze warten auf die Buchung", {QString::number(row.Open)});
    }
    return Warning(row).isEmpty() ? Text(row, Name) : Warning(row);
}

QVariant cAccountListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const cRow& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole: return Text(row, index.column());
    case Qt::TextAlignmentRole:
        return index.column() == Name ? QVariant() : QVariant(Qt::AlignRight | Qt::AlignVCenter);
    case Qt::ToolTipRole: return Hint(row, index.column());
    case Qt::AccessibleTextRole:
        return Warning(row).isEmpty() || index.column() == Open
            ? Text(row, index.column())
            : cText::Tr("{0}. Warnung: {1}", {Text(row, index.column()), Warning(row)});
    case KindRole: return row.Kind;
    case ToneRole: return row.Kind != Group && index.column() == Balance && row.Cents < 0;
    case WarningRole: return !Warning(row).isEmpty() && index.column() != Open;
    case ChosenRole: return row.Kind == Account && row.Name == m_chosen;
    default: return {};
    }
}

QVariant cAccountListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case Name: return cText::Tr("Konto");
    case Balance: return cText::Tr("Kontostand");
    case Open: return cText::Tr("Offen");
    default: return {};
    }
}

Qt::ItemFlags cAccountListModel::flags(const QModelIndex& index) const
{
    return ChoiceAt(index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemFlags(Qt::ItemIsEnabled);
}
