#include "views/main/modSavedView.h"

#include "base/modDate.h"

#include <QStringList>
#include <QUrl>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype fieldCount = 10;
constexpr std::array switches{&cViewState::ShowsSingle, &cViewState::ShowsFix, &cViewState::ShowsFuture,
                              &cViewState::ShowsStart, &cViewState::BalancesToToday};

QString Encoded(const QString& text)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(text));
}

QString ToText(const cSavedView& saved)
{
    const cViewState& view = saved.View;
    QString digits;
    for (const auto& state : switches) {
        digits += view.*state ? u'1' : u'0';
    }
    QStringList fields{saved.Name,
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
    for (QString& field : fields) {
        field = Encoded(field);
    }
    return fields.join(u'|');
}

cSavedView FromFields(const QStringList& fields)
{
    cSavedView saved;
    saved.Name = fields.at(0);
    saved.View.Period = fields.at(1);
    saved.View.Free = {modDate::FromIso(fields.at(2)), modDate::FromIso(fields.at(3))};
    saved.View.Account = fields.at(4);
    saved.View.Type = fields.at(5);
    saved.View.Grouping = fields.at(6);
    saved.View.Filter = fields.at(7);
    for (qsizetype i = 0; i < static_cast<qsizetype>(switches.size()); ++i) {
        saved.View.*switches.at(static_cast<std::size_t>(i)) = fields.at(8).mid(i, 1) != u"0"_s;
    }
    saved.Columns = fields.at(9);
    saved.View.Payer = fields.value(10); // which older programs did not write
    return saved;
}

} // namespace

QString modSavedView::ToText(const QList<cSavedView>& views)
{
    QStringList texts;
    for (const cSavedView& view : views) {
        texts.append(::ToText(view));
    }
    return texts.join(u';');
}

QList<cSavedView> modSavedView::FromText(const QString& text)
{
    QList<cSavedView> views;
    const QStringList texts = text.split(u';', Qt::SkipEmptyParts);
    for (const QString& each : texts) {
        QStringList fields = each.split(u'|');
        for (QString& field : fields) {
            field = QUrl::fromPercentEncoding(field.toLatin1());
        }
        if (fields.size() >= fieldCount && !fields.first().isEmpty()) {
            views.append(FromFields(fields));
        }
    }
    return views;
}
