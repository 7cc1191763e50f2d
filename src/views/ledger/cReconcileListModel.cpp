#include "views/ledger/cReconcileListModel.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "views/entry/cReconciledDays.h"
#include "views/look/modMoneyTone.h"

#include <array>

namespace {

constexpr std::array<const char*, cReconcileListModel::ColumnCount> titles{
    QT_TRANSLATE_NOOP("cText", "Unterschied"), QT_TRANSLATE_NOOP("cText", "Bezeichnung"),
    QT_TRANSLATE_NOOP("cText", "Tag (Bank)"),  QT_TRANSLATE_NOOP("cText", "Betrag (Bank)"),
    QT_TRANSLATE_NOOP("cText", "Tag (Buch)"),  QT_TRANSLATE_NOOP("cText", "Betrag (Buch)")};

bool IsMoney(int column)
{
    return column == cReconcileListModel::BankAmount || column == cReconcileListModel::BookAmount;
}

} // namespace

cReconcileListModel::cReconcileListModel(const cBookTools& tools, QObject* parent)
    : QAbstractTableModel(parent),
      m_tools(tools),
      m_reconciliation(tools)
{
}

cReconcileListModel::~cReconcileListModel() = default;

void cReconcileListModel::Show(const QString& number, QDate until)
{
    m_wanted = until;
    beginResetModel();
    m_reconciliation.Load(number, until);
    m_isConfirmed = cReconciledDays(m_tools).ByAccount().value(m_reconciliation.Account()) >= m_reconciliation.Until();
    endResetModel();
    Q_EMIT Changed();
}

void cReconcileListModel::Reload()
{
    Show(QString(m_reconciliation.Number()), m_wanted);
}

std::optional<cReconcileItem> cReconcileListModel::ItemAt(int row) const
{
    return row >= 0 && row < rowCount() ? std::optional(m_reconciliation.Items().at(row)) : std::nullopt;
}

QString cReconcileListModel::CureText(int row) const
{
    const std::optional<cReconcileItem> item = ItemAt(row);
    return cReconciliation::CureText(item.value_or(cReconcileItem{}));
}

QString cReconcileListModel::ConfirmText() const
{
    return cText::Tr("Sti&mmt bis {0}", {modDate::ToText(m_reconciliation.Until())});
}

bool cReconcileListModel::TakeBank(int row)
{
    const std::optional<cReconcileItem> item = ItemAt(row);
    const bool isDone = item && m_reconciliation.TakeBank(*item);
    if (isDone) {
        Reload();
    }
    return isDone;
}

void cReconcileListModel::Confirm()
{
    (void)m_reconciliation.Confirm(); // of a refusal the user has been told
    Reload();
}

int cReconcileListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_reconciliation.Items().size());
}

int cReconcileListModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QString cReconcileListModel::Text(const cReconcileItem& item, int column) const
{
    const bool hasBank = item.BankDay.isValid();
    const bool hasBook = item.BookDay.isValid();
    switch (column) {
    case Kind: return cReconciliation::KindText(item);
    case Name: return item.Text;
    case BankDay: return hasBank ? modDate::ToText(item.BankDay) : QString();
    case BankAmount: return hasBank ? m_tools.Format.Cents(item.BankCents) : QString();
    case BookDay: return hasBook ? modDate::ToText(item.BookDay) : QString();
    case BookAmount: return hasBook ? m_tools.Format.Cents(item.BookCents) : QString();
    default: return {};
    }
}

QVariant cReconcileListModel::data(const QModelIndex& index, int role) const
{
    const std::optional<cReconcileItem> item = ItemAt(index.row());
    if (!index.isValid() || !item) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: return Text(*item, index.column());
    case Qt::TextAlignmentRole:
        return IsMoney(index.column()) ? QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    case ToneRole: {
        const qint64 cents = index.column() == BookAmount ? item->BookCents : item->BankCents;
        return QVariant::fromValue(IsMoney(index.column()) ? modMoneyTone::Of(cents) : eMoneyTone::Neutral);
    }
    default: return {};
    }
}

QVariant cReconcileListModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= ColumnCount) {
        return {};
    }
    if (role == Qt::TextAlignmentRole) {
        return QVariant::fromValue(Qt::Alignment(IsMoney(section) ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }
    return role == Qt::DisplayRole ? QVariant(cText::Tr(titles.at(static_cast<std::size_t>(section)))) : QVariant();
}
