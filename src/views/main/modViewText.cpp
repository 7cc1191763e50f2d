#include "views/main/modViewText.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "model/modPeople.h"
#include "model/modWord.h"
#include "views/main/cViewState.h"
#include "views/report/modPeriodText.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList Hidden(const cViewState& view)
{
    QStringList hidden;
    if (!view.ShowsSingle) {
        hidden.append(cText::Tr("einmalige"));
    }
    if (!view.ShowsFix) {
        hidden.append(cText::Tr("wiederkehrende"));
    }
    if (!view.ShowsFuture) {
        hidden.append(cText::Tr("zukünftige"));
    }
    if (!view.ShowsStart) {
        hidden.append(cText::Tr("Startguthaben"));
    }
    return hidden;
}

} // namespace

QString modViewText::PayerText(const QString& choice)
{
    return choice.isEmpty()           ? cText::Tr("Beliebig")
        : choice == modPeople::Nobody ? cText::Tr("niemand Bestimmtem")
                                      : choice;
}

QString modViewText::Title(const cViewState& view)
{
    const QString account = view.FilterAccount();
    return account.isEmpty() ? cText::Tr("Einträge") : cText::Tr("Einträge: {0}", {account});
}

QString modViewText::Balances(const cViewState& view, QDate today)
{
    const QDate end = view.BalanceQuery(today).End;
    return view.BalancesToToday          ? cText::Tr("Kontostände heute")
        : view.ShowsChange(today)        ? cText::Tr("Veränderung im Zeitraum")
        : !end.isValid() || end == today ? cText::Tr("Kontostände bis heute")
                                         : cText::Tr("Kontostände bis {0}", {modDate::ToText(end)});
}

QStringList modViewText::Lines(const cViewState& view, const modPeriod::cRange& range)
{
    const QString account = view.FilterAccount();
    QStringList lines{modPeriodText::Named(view.Period, range),
                      cText::Tr("Konto: {0}", {account.isEmpty() ? cText::Tr("Alle Konten") : account})};
    if (view.Type != modWord::AlleBuchungsarten) {
        lines.append(cText::Tr("Buchungsart: {0}", {modWord::ViewTypes().ToShown(view.Type)}));
    }
    if (const QString filter = view.Filter.trimmed(); !filter.isEmpty()) {
        lines.append(cText::Tr("Filter: {0}", {filter}));
    }
    if (!view.Payer.isEmpty()) {
        lines.append(cText::Tr("Bezahlt von: {0}", {PayerText(view.Payer)}));
    }
    if (view.Grouping != modWord::KeineGruppierung) {
        lines.append(cText::Tr("Gruppierung: {0}", {modWord::Groupings().ToShown(view.Grouping)}));
    }
    if (const QStringList hidden = Hidden(view); !hidden.isEmpty()) {
        lines.append(cText::Tr("Ausgeblendet: {0}", {hidden.join(u", "_s)}));
    }
    return lines;
}
