#include "views/main/modSavedView.h"

#include "base/modDate.h"
#include "views/list/modViewRecord.h"

#include <QStringList>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array switches{&cViewState::ShowsSingle, &cViewState::ShowsFix, &cViewState::ShowsFuture,
                              &cViewState::ShowsStart, &cViewState::BalancesToToday};

// In the order of modViewRecord::eField.
QStringList ToFields(const cSavedView& saved)
{
    const cViewState& view = saved.View;
    QString digits;
    for (const auto& state : switches) {
        digits += view.*state ? u'1' : u'0';
    }
    return {saved.Name,
            view.Period,
            modDate::ToIso(view.Free.Start),
            modDate::ToIso(view.Free.End),
            view.Account,
            view.Type,
            view.Grouping,
            view.Filter,
            digits,
            saved.Columns,
            view.Payer};
}

cSavedView FromFields(const QStringList& fields)
{
    cSavedView saved;
    saved.Name = fields.at(modViewRecord::Name);
    saved.View.Period = fields.at(modViewRecord::Period);
    saved.View.Free = {modDate::FromIso(fields.at(modViewRecord::FirstDay)),
                       modDate::FromIso(fields.at(modViewRecord::LastDay))};
    saved.View.Account = fields.at(modViewRecord::Account);
    saved.View.Type = fields.at(modViewRecord::Type);
    saved.View.Grouping = fields.at(modViewRecord::Grouping);
    saved.View.Filter = fields.at(modViewRecord::Filter);
    for (qsizetype i = 0; i < static_cast<qsizetype>(switches.size()); ++i) {
        saved.View.*switches.at(static_cast<std::size_t>(i)) = fields.at(modViewRecord::Switches).mid(i, 1) != u"0"_s;
    }
    saved.Columns = fields.at(modViewRecord::Columns);
    saved.View.Payer = fields.value(modViewRecord::Payer); // which older programs did not write
    return saved;
}

} // namespace

QString modSavedView::ToText(const QList<cSavedView>& views)
{
    QList<QStringList> records;
    for (const cSavedView& view : views) {
        records.append(ToFields(view));
    }
    return modViewRecord::ToText(records);
}

QList<cSavedView> modSavedView::FromText(const QString& text)
{
    QList<cSavedView> views;
    const QList<QStringList> records = modViewRecord::FromText(text);
    for (const QStringList& fields : records) {
        views.append(FromFields(fields));
    }
    return views;
}
