#include "views/people/modSettlementText.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "views/chart/modChart.h"
#include "views/common/modUnread.h"
#include "views/list/cEntryFilter.h"
#include "views/people/cPeople.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class eCell { Text, Money };

QString Cell(const QString& text, eCell cell, const QString& tag)
{
    const QString align = cell == eCell::Money ? u"right"_s : u"left"_s;
    const QString wrap = cell == eCell::Money ? u" white-space: nowrap;"_s : QString();
    return u"<%1 style=\"text-align: %2; vertical-align: top; padding: 3px 16px 3px 0px;%3\">%4</%1>"_s.arg(
        tag, align, wrap, text.toHtmlEscaped());
}

// Rows of texts below their titles; `money` says which columns are amounts.
class cHtmlTable
{
public:
    cHtmlTable(const QStringList& titles, const QList<eCell>& cells) : m_cells(cells) { Add(titles, u"th"_s); }

    void Add(const QStringList& texts, const QString& tag = u"td"_s)
    {
        m_html += u"<tr>"_s;
        for (qsizetype i = 0; i < texts.size(); ++i) {
            m_html += Cell(texts.at(i), m_cells.at(i), tag);
        }
        m_html += u"</tr>"_s;
    }

    [[nodiscard]] QString Take() const
    {
        return u"<table style=\"border-collapse: collapse;\">"_s + m_html + u"</table>"_s;
    }

private:
    QList<eCell> m_cells;
    QString m_html;
};

QString Title(const QString& text)
{
    return u"<h2 style=\"font-size: 14px;\">"_s + text.toHtmlEscaped() + u"</h2>"_s;
}

QString Payments(const cSettlement& settlement, const cAmountFormat& format)
{
    if (settlement.Payments.isEmpty()) {
        return u"<p>"_s + modSettlementText::NothingToPay(settlement).toHtmlEscaped() + u"</p>"_s;
    }
    cHtmlTable table(modSettlementText::PaymentTitles(), {eCell::Text, eCell::Text, eCell::Money});
    for (const cPayment& payment : settlement.Payments) {
        table.Add({payment.From, payment.To, format.Cents(payment.Cents)});
    }
    return table.Take();
}

QString People(const cSettlement& settlement, const cAmountFormat& format)
{
    cHtmlTable table(modSettlementText::PersonTitles(),
                     {eCell::Text, eCell::Money, eCell::Money, eCell::Money, eCell::Money});
    for (const cPersonSum& person : settlement.People) {
        QStringList texts{person.Name};
        for (const qint64 cents : modSettlementText::PersonCents(person)) {
            texts.append(format.Cents(cents));
        }
        table.Add(texts);
    }
    return table.Take();
}

QString Counted(const cSettlement& settlement, const cAmountFormat& format)
{
    cHtmlTable table(modSettlementText::EntryTitles(),
                     {eCell::Text, eCell::Text, eCell::Text, eCell::Text, eCell::Text, eCell::Money});
    for (const cCountedEntry& counted : settlement.Counted) {
        QStringList texts = modSettlementText::EntryTexts(counted);
        // A share stays with its name, which a page may break anywhere.
        static const QRegularExpression share(u" (\\d[\\d,.]*) %"_s);
        texts.last().replace(share, u"\u00a0\\1\u00a0%"_s);
        table.Add(texts << format.Cents(counted.Cents));
    }
    return table.Take();
}

} // namespace

QStringList modSettlementText::PaymentTitles()
{
    return {cText::Tr("Wer"), cText::Tr("An wen"), cText::Tr("Betrag")};
}

QStringList modSettlementText::PersonTitles()
{
    return {cText::Tr("Person"), cText::Tr("Bezahlt"), cText::Tr("Zu tragen"), cText::Tr("Schon ausgeglichen"),
            cText::Tr("Bleibt")};
}

std::array<qint64, 4> modSettlementText::PersonCents(const cPersonSum& person)
{
    return {person.Paid, person.Borne, person.Settled, person.Balance()};
}

QStringList modSettlementText::EntryTitles()
{
    return {cText::Tr("Datum"),       cText::Tr("Beschreibung"), cText::Tr("Konto"),
            cText::Tr("Bezahlt von"), cText::Tr("Getragen von"), cText::Tr("Betrag")};
}

QStringList modSettlementText::EntryTexts(const cCountedEntry& counted)
{
    const cEntryItem& entry = counted.Entry;
    return {modDate::ToText(entry.EntryDate), entry.Name(), entry.Accounts(), counted.Payer,
            cPeople::SharesText(counted.Shares)};
}

QString modSettlementText::NothingToPay(const cSettlement& settlement)
{
    return settlement.Counted.isEmpty()
        ? cText::Tr("In diesem Zeitraum ist bei keinem Eintrag vermerkt, wer bezahlt hat.")
        : cText::Tr("Es ist alles ausgeglichen.");
}

QString modSettlementText::Heading(const cSettlement& settlement)
{
    return cText::Tr("Ausgleich {0}", {modChart::RangeText(settlement.Range)});
}

QString modSettlementText::Html(const cSettlement& settlement, const cAmountFormat& format, QDate today)
{
    const QString head = u"<div style=\"margin: 20px; margin-left: 21px;\"><h1 style=\"font-size: 16px;\">"_s
        + Heading(settlement).toHtmlEscaped() + u"</h1>"_s;
    if (settlement.IsUnread) {
        return head + modUnread::Title().toHtmlEscaped() + u".<br>"_s + modUnread::Hint().toHtmlEscaped() + u"</div>"_s;
    }
    QString html = head + Title(cText::Tr("Wer zahlt wem")) + Payments(settlement, format);
    if (!settlement.Counted.isEmpty()) {
        html += Title(cText::Tr("Wer hat was bezahlt und zu tragen")) + People(settlement, format)
            + Title(cText::Tr("Was gezählt wurde")) + Counted(settlement, format);
    }
    return html + u"<br><p>"_s + cText::Tr("Dieser Bericht wurde am {0} erstellt.", {modDate::ToText(today)})
        + u"</p></div>"_s;
}

QString modSettlementText::Page(const cSettlement& settlement, const cAmountFormat& format, QDate today)
{
    return u"<!DOCTYPE html>\n<html lang=\"de\"><head><meta charset=\"utf-8\"><title>"_s
        + Heading(settlement).toHtmlEscaped()
        + u"</title><style>body{font-family:sans-serif;font-size:13px}</style></head><body>\n"_s
        + Html(settlement, format, today) + u"\n</body></html>\n"_s;
}
