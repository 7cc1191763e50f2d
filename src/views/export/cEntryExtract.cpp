#include "views/export/cEntryExtract.h"

#include "model/modBalance.h"
#include "model/modPeople.h"
#include "model/modReceiptName.h"
#include "views/list/cEntryListModel.h"

#include <algorithm>

namespace {

cEntryExtract::cRow RowAt(const cEntryListModel& model, const QModelIndex& index)
{
    const cEntryItem& entry = *model.EntryAt(index);
    const auto cents = [&](int column) { return index.siblingAtColumn(column).data(cEntryListModel::CentsRole); };
    const QVariant balance = cents(cEntryListModel::Balance);
    return {entry, cents(cEntryListModel::Amount).toLongLong(), modBalance::Effect(entry, model.ShownAccount()),
            balance.isValid() ? std::optional(balance.toLongLong()) : std::nullopt};
}

} // namespace

bool cEntryExtract::HasBalances() const
{
    return std::any_of(Rows.begin(), Rows.end(), [](const cRow& row) { return row.Balance.has_value(); });
}

bool cEntryExtract::HasTransfers() const
{
    return std::any_of(Rows.begin(), Rows.end(), [](const cRow& row) { return row.Entry.IsTransfer(); });
}

bool cEntryExtract::HasPayers() const
{
    return std::any_of(Rows.begin(), Rows.end(),
                       [](const cRow& row) { return !modPeople::Payer(row.Entry).isEmpty(); });
}

QStringList cEntryExtract::Receipts() const
{
    QStringList names;
    for (const cRow& row : Rows) {
        if (modReceiptName::Count(row.Entry) > 0) {
            names += modReceiptName::Of(row.Entry);
        }
    }
    names.removeDuplicates();
    return names;
}

cEntryExtract cEntryExtract::From(const cEntryListModel& model)
{
    cEntryExtract extract;
    extract.Account = model.ShownAccount();
    extract.Income = model.Sums().Income;
    extract.Expense = model.Sums().Expense;
    extract.Start = model.Sums().Start;
    extract.Rows.reserve(static_cast<std::size_t>(model.Sums().Count));
    for (int top = 0; top < model.rowCount(); ++top) {
        const QModelIndex index = model.index(top, 0);
        if (model.EntryAt(index) != nullptr) {
            extract.Rows.push_back(RowAt(model, index));
            continue;
        }
        const int count = model.rowCount(index);
        const QModelIndex sum = index.siblingAtColumn(cEntryListModel::Amount);
        extract.Groups.push_back({index.data(cEntryListModel::NameRole).toString(),
                                  static_cast<qsizetype>(extract.Rows.size()), count,
                                  sum.data(cEntryListModel::CentsRole).toLongLong()});
        for (int row = 0; row < count; ++row) {
            extract.Rows.push_back(RowAt(model, model.index(row, 0, index)));
        }
    }
    return extract;
}
