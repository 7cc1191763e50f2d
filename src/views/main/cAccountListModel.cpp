#include "views/main/cAccountListModel.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "views/chart/cForecast.h"
#include "views/common/modUnread.h"
#include "views/main/modAccountLines.h"

#include <utility>

cAccountListModel::cAccountListModel(const cAmountFormat& format, QObject* parent)
    : QAbstractTableModel(parent),
      m_format(format)
{
}

cAccountListModel::~cAccountListModel() = default;

void cAccountListModel::SetAccounts(const cTemplateItemList& accounts,
                                    const std::optional<QHash<QString, qint64>>& balances,
                                    const QHash<QString, int>& open)
{
    beginResetModel();
    m_rows.clear();
    const modAccountLines::cLines lines =
        modAccountLines::Of(accounts, balances.value_or(QHash<QString, qint64>()), open);
    m_hasBalances = balances.has_value();
    std::optional<QString> group;
    for (const cAccountLine& line : lines.Accounts) {
        const bool isShown = line.Item.ID != 0 && modTemplate::IsVisible(line.Item);
        if (!isShown && line.Cents == 0 && line.Open == 0) {
            continue; // closed and empty
        }
        const QString& name = line.Item.TemplateCategory;
        if (group != name) {
            m_rows.push_back({Group, name.isEmpty() ? cText::Tr("Konten") : name, 0, 0});
            group = name;
        }
        m_rows.push_back({Account, line.Item.TemplateName, line.Cents, line.Open});
    }
    m_rows.push_back({Total, cText::Tr("Gesamt"), lines.Cents, lines.Open});
    endResetModel();
}

void cAccountListModel::SetChosen(const QString& account)
{
    // Only the two lines concerned: a view looks at each of the lines that it is told of.
    const QString former = std::exchange(m_chosen, account);
    for (std::size_t i = 0; i < m_rows.size() && former != account; ++i) {
        if (m_rows[i].Kind == Account && (m_rows[i].Name == former || m_rows[i].Name == account)) {
            const int row = static_cast<int>(i);
            Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
        }
    }
}

void cAccountListModel::SetWarnings(const QList<cLimitWarning>& warnings)
{
    QHash<QString, QString> texts;
    for (const cLimitWarning& warning : warnings) {
        texts.insert(warning.Account, cForecast::Text(warning, m_format));
    }
    if (texts != m_warnings) {
        m_warnings = texts;
        if (rowCount() > 0) { // at a start they are known before the balances are
            Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, ColumnCount - 1));
        }
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
    case Name: return Reconciled(row).isEmpty() ? modAccountLines::ShownName(row.Name) : row.Name + u" \u2713";
    case Balance: return row.Kind == Group ? QString() : m_hasBalances ? m_format.Cents(row.Cents) : modUnread::Sum();
    case Open: return row.Open == 0 ? QString() : QString::number(row.Open);
    default: return {};
    }
}

QString cAccountListModel::Warning(const cRow& row) const
{
    return row.Kind == Account ? m_warnings.value(row.Name) : QString();
}

QString cAccountListModel::Reconciled(const cRow& row) const
{
    const QDate day = row.Kind == Account ? m_reconciled.value(row.Name) : QDate();
    return day.isValid() ? cText::Tr("Stimmt mit der Bank überein bis {0}.", {modDate::ToText(day)}) : QString();
}

QString cAccountListModel::Hint(const cRow& row, int column) const
{
    if (column == Open && row.Open > 0) {
        return row.Open == 1 ? cText::Tr("1 Umsatz wartet auf die Buchung")
                             : cText::Tr("{0} Umsätze warten auf die Buchung", {QString::number(row.Open)});
    }
    QStringList lines{Warning(row), Reconciled(row)};
    lines.removeAll(QString());
    return lines.isEmpty() ? modAccountLines::ShownName(row.Name) : lines.join(u'\n');
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
    case Balance: return m_showsChange ? cText::Tr("Veränderung") : cText::Tr("Kontostand");
    case Open: return cText::Tr("Offen");
    default: return {};
    }
}

Qt::ItemFlags cAccountListModel::flags(const QModelIndex& index) const
{
    return ChoiceAt(index) ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::ItemFlags(Qt::ItemIsEnabled);
}
