#include "views/main/modSavedView.h"

#include "base/modDate.h"
#include "views/list/modViewRecord.h"

#include <QStringList>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array switches{&cViewState::ShowsSingle, &cViewState::ShowsFix, &cViewState::ShowsFuture,
                              &cViewState::ShowsStart, &cViewState::BalancesToToday};

constexpr std::array reviewSwitches{&cSavedReview::OpenOnly, &cSavedReview::UncategorisedOnly, &cSavedReview::HidesOld};
constexpr QStringView reviewPage = u"Kontoauszüge";

template <typename tState, typename tSwitches>
QString Digits(const tState& state, const tSwitches& among)
{
    QString digits;
    for (const auto& each : among) {
        digits += state.*each ? u'1' : u'0';
    }
    return digits;
}

template <typename tState, typename tSwitches>
void TakeDigits(const QString& digits, tState& state, const tSwitches& among)
{
    qsizetype place = 0;
    for (const auto& each : among) {
        state.*each = digits.mid(place++, 1) != u"0"_s;
    }
}

QStringList ReviewFields(const cSavedView& saved)
{
    QStringList fields(modViewRecord::Page + 1);
    fields[modViewRecord::Name] = saved.Name;
    fields[modViewRecord::Grouping] = saved.Review->Grouping;
    fields[modViewRecord::Filter] = saved.Review->Filter;
    fields[modViewRecord::Switches] = Digits(*saved.Review, reviewSwitches);
    fields[modViewRecord::Columns] = saved.Columns;
    fields[modViewRecord::Page] = reviewPage.toString();
    return fields;
}

// In the order of modViewRecord::eField.
QStringList ToFields(const cSavedView& saved)
{
    if (saved.Review) {
        return ReviewFields(saved);
    }
    const cViewState& view = saved.View;
    return {saved.Name,
            view.Period,
            modDate::ToIso(view.Free.Start),
            modDate::ToIso(view.Free.End),
            view.Account,
            view.Type,
            view.Grouping,
            view.Filter,
            Digits(view, switches),
            saved.Columns,
            view.Payer,
            {}};
}

cSavedView FromFields(const QStringList& fields)
{
    cSavedView saved;
    saved.Name = fields.at(modViewRecord::Name);
    saved.Columns = fields.at(modViewRecord::Columns);
    if (fields.value(modViewRecord::Page) == reviewPage) {
        saved.Review =
            cSavedReview{.Grouping = fields.at(modViewRecord::Grouping), .Filter = fields.at(modViewRecord::Filter)};
        TakeDigits(fields.at(modViewRecord::Switches), *saved.Review, reviewSwitches);
        return saved;
    }
    saved.View.Period = fields.at(modViewRecord::Period);
    saved.View.Free = {modDate::FromIso(fields.at(modViewRecord::FirstDay)),
                       modDate::FromIso(fields.at(modViewRecord::LastDay))};
    saved.View.Account = fields.at(modViewRecord::Account);
    saved.View.Type = fields.at(modViewRecord::Type);
    saved.View.Grouping = fields.at(modViewRecord::Grouping);
    saved.View.Filter = fields.at(modViewRecord::Filter);
    TakeDigits(fields.at(modViewRecord::Switches), saved.View, switches);
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
