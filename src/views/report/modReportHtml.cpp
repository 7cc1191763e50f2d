#include "views/report/modReportHtml.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "views/common/modUnread.h"
#include "views/report/modReport.h"
#include "views/report/modReportLink.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class eWeight { Bold, Plain };

const QString opening = u"<div style=\"margin: 20px; margin-left: 21px;\">"_s;

// Colours of a line.
struct cTone
{
    QString Text;
    QString Background;
    QString Border;
};

cTone ToneOf(eReportKind kind, eWeight weight)
{
    if (kind == eReportKind::Income) {
        return weight == eWeight::Bold ? cTone{u"#006400"_s, u"#F0FFF0"_s, u"#A2B8A2"_s}
                                       : cTone{u"#007400"_s, u"#F8FAF8"_s, u"#A6B4A6"_s};
    }
    return weight == eWeight::Bold ? cTone{u"#880000"_s, u"#FFF0F0"_s, u"#B8A2A2"_s}
                                   : cTone{u"#770000"_s, u"#FFF6F6"_s, u"#BBA5A5"_s};
}

cTone LimitTone()
{
    return {u"#444444"_s, u"#F8F8F8"_s, u"#888888"_s};
}

QString Strong(const QString& html, eWeight weight)
{
    return weight == eWeight::Bold ? u"<strong>"_s + html + u"</strong>"_s : html;
}

QString ListStyle(eWeight weight)
{
    return weight == eWeight::Bold ? u"list-style-type: disc"_s : u"list-style-type: square"_s;
}

// The box around a line.
QString Framed(const QString& content, const cTone& tone, const QString& width)
{
    return u"<div style=\"margin: 0px; padding: 4px; height: 23px; color: "_s + tone.Text + u"; background: "_s
        + tone.Background + u"; width: "_s + width + u"; border-bottom: 1px solid "_s + tone.Border + u";\">"_s
        + content + u"</div>"_s;
}

QString Px(int pixels)
{
    return QString::number(pixels) + u"px"_s;
}

// To the nearest whole number, halves to the even one.
int Rounded(double value)
{
    return static_cast<int>(std::nearbyint(value));
}

// The first part of the bar, with the percentage in it.
QString FirstSegment(int width, qint64 percent, bool isOver)
{
    const QString colours = isOver ? u"border: 1px solid #450F10; padding: 1px; color: #450F10; border-right: 0px;"_s
                                   : u"border: 1px solid #2E4513; padding: 1px; color: #2E4513; "
                                     "border-right: 1px solid #637D45;"_s;
    const QString background = isOver ? u"#DBA1A3"_s : u"#C2D4AE"_s;
    return u"<div style=\""_s + colours + u" width:"_s + Px(width) + u"; background: "_s + background
        + u"; float: left; text-align: left; height:19px; overflow:hidden;clear:none;display:table;\" >"_s
        + QString::number(percent) + u"%</div>"_s;
}

// How much of the limit was spent. The track is 150 px for 100 %, and as much again behind the mark.
QString LimitBar(const cReportAmount& amount)
{
    constexpr double pixels = 1.5; // for one per cent
    constexpr int track = 150;
    const std::optional<qint64> shown = modReport::LimitPercent(amount);
    if (!shown || amount.Cents <= 0) {
        return {}; // more came back than was spent: there is nothing to draw
    }
    const double percent = static_cast<double>(amount.Cents) * 100.0 / static_cast<double>(amount.Limit);
    const int first = percent <= 100.0 ? Rounded(percent) : 100;
    const int excess = percent <= 100.0 ? 0 : Rounded(std::fmin(percent - 100.0, 100.0));
    const int firstWidth = Rounded(pixels * first);
    const int excessWidth = Rounded(pixels * excess);
    QString bar = FirstSegment(firstWidth, *shown, excessWidth >= 1);
    if (excessWidth == 0) {
        bar += u"<div style=\"border: 1px solid #000000; padding: 1px; border-left: 0px; border-right: 0px; width:"_s
            + Px(track - firstWidth) + u"; background:#E2E2E2; float: left;\" /></div>"_s;
    }
    bar += u"<div style=\"background: #444444; height: 19px; width: 2px; float: left;\" /></div>"_s;
    if (excessWidth > 0) {
        bar += u"<div style=\"border: 1px solid #450F10; padding: 1px; color: #450F10; border-left: 0px; "
               "border-right: 1px solid #873E40; width:"_s
            + Px(excessWidth) + u"; background:#DBA1A3; float: left;\" /></div>"_s;
    }
    // Compared with 100 and not with the 150 of the track, on purpose: what is left behind a large overrun would only
    // be a stump.
    if (excessWidth < 100) {
        bar += u"<div style=\"border: 1px solid #000000; padding: 1px; border-left: 0px; width:"_s
            + Px(track - excessWidth) + u"; background:#E2E2E2; float: left;\" /></div>"_s;
    }
    return bar;
}

class cWriter
{
public:
    cWriter(const cReportFigures& figures, const cReportWish& wish, const cAmountFormat& format)
        : m_figures(figures),
          m_wish(wish),
          m_format(format)
    {
    }

    [[nodiscard]] QString Write()
    {
        m_html = opening + u"<h1 style=\"color: #000000; font-size: 16px;\">"_s
            + modReportHtml::Heading(m_figures).toHtmlEscaped() + u"</h1>"_s;
        if (m_figures.IsUnread) {
            m_html += modUnread::Title().toHtmlEscaped() + u".<br>"_s + modUnread::Hint().toHtmlEscaped() + u"</div>"_s;
        } else if (m_figures.Type == eReport::Limit) {
            WriteLimits();
        } else if (m_figures.Type == eReport::Budget) {
            WriteBudget();
        } else {
            WriteResult();
            WriteSection(m_figures.Income, u"#006400"_s);
            WriteSection(m_figures.Expense, u"#880000"_s);
            const QString note = modReport::Note(m_figures.Type);
            m_html += note.isEmpty() ? QString() : QString(note.toHtmlEscaped() + u"<br><br>"_s);
            m_html += cText::Tr("Dieser Bericht wurde am {0} erstellt.", {modDate::ToText(m_wish.Today)})
                + u"</div><br><br>"_s;
        }
        return m_html;
    }

private:
    void WriteResult();
    void WriteSection(const cReportSection& section, const QString& colour);
    void WriteLimits();
    void WriteBudget();
    [[nodiscard]] QString Explanation() const;
    [[nodiscard]] QString Line(eReportKind kind, const cReportGroup& group, const cReportCategory* category) const;
    [[nodiscard]] QString LimitLine(const QString& label, const cReportAmount& amount, eWeight weight) const;
    [[nodiscard]] QString BudgetLine(const QString& label, const cReportAmount& amount, eWeight weight) const;
    [[nodiscard]] static QString BudgetFrame(const QString& name, const QStringList& cells, eWeight weight,
                                             const QString& tag = u"td"_s);
    [[nodiscard]] QString Money(qint64 cents) const { return m_format.Cents(cents).toHtmlEscaped(); }

    const cReportFigures& m_figures;
    const cReportWish& m_wish;
    const cAmountFormat& m_format;
    QString m_html;
};

// The year 9999 marks a period without end, for which days and year say nothing: the line is left out.
QString cWriter::Explanation() const
{
    if (m_figures.Type == eReport::Tag) {
        return cText::Tr("Einnahmen und Ausgaben nach den Wörtern mit # in den Beschreibungen.") + u"<br>"_s;
    }
    if (m_figures.Type != eReport::Average) {
        return cText::Tr("Summe der Einnahmen und Ausgaben für den gewählten Zeitraum.") + u"<br>"_s;
    }
    const int year = m_figures.Basis.End.year();
    if (year == 9999) {
        return {};
    }
    return cText::Tr("Durchschnittswerte pro Monat (Jahresmittelwert {0} bei {1} Tagen) der Einnahmen und Ausgaben.",
                     {QString::number(year), QString::number(m_figures.Basis.YearBasis)})
        + u"<br>"_s;
}

void cWriter::WriteResult()
{
    m_html += Explanation() + modReportHtml::Result(m_figures, m_format).toHtmlEscaped();
}

void cWriter::WriteSection(const cReportSection& section, const QString& colour)
{
    m_html += u"<h2 style=\"color: "_s + colour + u"; font-size: 14px;\">"_s + modReport::ShownKind(section.Kind)
        + u": "_s + Money(section.Amount.Cents) + u"</h2><dir><ul>"_s;
    for (const cReportGroup& group : section.Groups) {
        m_html += Line(section.Kind, group, nullptr) + u"<dir><ul>"_s;
        for (const cReportCategory& category : group.Categories) {
            m_html += Line(section.Kind, group, &category);
        }
        m_html += u"</ul></dir>"_s;
    }
    m_html += u"</ul></dir>"_s;
}

// The line of a category, or of the whole group.
QString cWriter::Line(eReportKind kind, const cReportGroup& group, const cReportCategory* category) const
{
    const eWeight weight = category == nullptr ? eWeight::Bold : eWeight::Plain;
    const cTone tone = ToneOf(kind, weight);
    const QString label = category == nullptr ? group.Label : category->Label;
    const qint64 cents = category == nullptr ? group.Amount.Cents : category->Amount.Cents;
    const QString link = modReportLink::ShowEntries({m_wish.Links,
                                                     kind,
                                                     {m_figures.Basis.Start, m_figures.Basis.End},
                                                     m_figures.Account,
                                                     group.Name,
                                                     category == nullptr ? QString() : category->Name});
    const QString name = u"<a style=\"color: "_s + tone.Text + u"; text-decoration: none;\" href=\""_s
        + link.toHtmlEscaped() + u"\">"_s + Strong(label.toHtmlEscaped(), weight) + u"</a>"_s;
    const QString nameWidth = weight == eWeight::Bold ? u"400px"_s : u"320px"_s;
    // The amount cell of a bold line is 100 without a unit, on purpose: that leaves its width to the amount.
    const QString amountWidth = weight == eWeight::Bold ? u"100"_s : u"100px"_s;
    // The last cell is the place for a link to tips on saving. It is kept empty on purpose: a report about a
    // household's money leads nowhere else.
    const QString content = u"<table style=\"margin: 0px; border-collapse: collapse; width: 100%; color: "_s + tone.Text
        + u";\"><tr><td style=\"text-align: left; width: "_s + nameWidth + u"\"><li style=\""_s + ListStyle(weight)
        + u"\">"_s + name + u": </li></td><td style=\"text-align: right; width: "_s + amountWidth + u"\">"_s
        + Strong(Money(cents), weight) + u"</td><td style=\"text-align: right;\">&nbsp;</td></tr></table>"_s;
    return Framed(content, tone, weight == eWeight::Bold ? u"640px"_s : u"560px"_s);
}

void cWriter::WriteLimits()
{
    m_html += u"<dir style=\"margin-left: 0px;\">"_s;
    for (const cReportGroup& group : m_figures.Expense.Groups) {
        m_html += LimitLine(group.Label, group.Amount, eWeight::Bold) + u"<dir style=\"margin-left: 20px;\"><ul>"_s;
        for (const cReportCategory& category : group.Categories) {
            m_html += LimitLine(category.Label, category.Amount, eWeight::Plain);
        }
        m_html += u"</ul></dir>"_s;
    }
    m_html += u"</dir></div>"_s;
}

QString cWriter::LimitLine(const QString& label, const cReportAmount& amount, eWeight weight) const
{
    const cTone tone = LimitTone();
    const QString width = weight == eWeight::Bold ? u"960px"_s : u"900px"_s;
    const QString nameWidth = weight == eWeight::Bold ? u"355px"_s : u"300px"_s;
    const QString content = u"<table style=\"margin: 0px; border-collapse: collapse; width: "_s + width + u"; color: "_s
        + tone.Text + u";\"><tr><td style=\"text-align: left; width: "_s + nameWidth + u"\"><li style=\""_s
        + ListStyle(weight) + u"\">"_s + Strong(label.toHtmlEscaped(), weight)
        + u": </li></td><td style=\"text-align: left; width: 320px\">"_s + LimitBar(amount)
        + u"</td><td style=\"text-align: right; width: 80px;\">"_s + Strong(Money(amount.Cents), weight)
        + u"</td><td style=\"width: 20px; text-align: right;\">"_s + cText::Tr("von")
        + u"</td><td style=\"width: 80px; text-align: right;\">"_s + Money(amount.Limit) + u"</td></tr></table>"_s;
    return Framed(content, tone, width);
}

// Plan against actual: what the months allow, what they took over, what was spent and what is left.
void cWriter::WriteBudget()
{
    m_html += u"<dir style=\"margin-left: 0px;\">"_s
        + BudgetFrame(cText::Tr("Kategorie"),
                      {cText::Tr("Budget"), cText::Tr("Übertrag"), cText::Tr("Ausgegeben"), cText::Tr("Übrig")},
                      eWeight::Bold, u"th"_s)
        + BudgetLine(cText::Tr("Summe"), m_figures.Expense.Amount, eWeight::Bold);
    for (const cReportGroup& group : m_figures.Expense.Groups) {
        m_html += BudgetLine(group.Label, group.Amount, eWeight::Bold) + u"<dir style=\"margin-left: 20px;\"><ul>"_s;
        for (const cReportCategory& category : group.Categories) {
            m_html += BudgetLine(category.Label, category.Amount, eWeight::Plain);
        }
        m_html += u"</ul></dir>"_s;
    }
    m_html += u"</dir>"_s + modReport::Note(m_figures.Type).toHtmlEscaped() + u"</div>"_s;
}

QString cWriter::BudgetLine(const QString& label, const cReportAmount& amount, eWeight weight) const
{
    return BudgetFrame(label,
                       {Money(amount.Limit - amount.Carried), Money(amount.Carried), Money(amount.Cents),
                        Money(modReport::Left(amount))},
                       weight);
}

// The lists stand 60 pixels further in, so that the cells of all lines stand below each other.
QString cWriter::BudgetFrame(const QString& name, const QStringList& cells, eWeight weight, const QString& tag)
{
    const bool isBold = weight == eWeight::Bold;
    const QString width = isBold ? u"860px"_s : u"800px"_s;
    QString content = u"<table style=\"margin: 0px; border-collapse: collapse; width: "_s + width + u"; color: "_s
        + LimitTone().Text + u";\"><tr><"_s + tag + u" style=\"text-align: left; width: "_s
        + (isBold ? u"400px"_s : u"340px"_s) + u"\">"_s + Strong(name.toHtmlEscaped(), weight) + u"</"_s + tag + u'>';
    for (const QString& cell : cells) {
        content += u"<%1 style=\"text-align: right; width: 115px;\">%2</%1>"_s.arg(tag, Strong(cell, weight));
    }
    return Framed(content + u"</tr></table>"_s, LimitTone(), width);
}

// What every browser needs to draw the lines as the program does: lists end at the same place, long names wrap, and
// the parts of a bar keep their height and small percentages their text. Links lead to lists of the program and nowhere
// in a file.
QString PageStyle()
{
    return u"body{font-family:sans-serif;font-size:13px}dir,ul{margin:0 0 0 40px;padding-left:0}"
           "dir div,ul div{height:auto !important;min-height:23px}"
           "td div{display:block !important;height:17px !important;min-height:0;padding:2px 0 !important;"
           "overflow:visible !important}td div[style*=\"display:table\"]{position:relative;z-index:1}"
           "a{pointer-events:none}"_s;
}

} // namespace

QString modReportHtml::Html(const cReportFigures& figures, const cReportWish& wish, const cAmountFormat& format)
{
    return cWriter(figures, wish, format).Write();
}

QString modReportHtml::Page(const cReportFigures& figures, const cReportWish& wish, const cAmountFormat& format)
{
    return u"<!DOCTYPE html>\n<html lang=\"de\"><head><meta charset=\"utf-8\"><title>"_s
        + Heading(figures).toHtmlEscaped() + u"</title><style>"_s + PageStyle() + u"</style></head><body>\n"_s
        + Html(figures, wish, format) + u"\n</body></html>\n"_s;
}

QString modReportHtml::Result(const cReportFigures& figures, const cAmountFormat& format)
{
    const qint64 difference = figures.Difference();
    const QString label = difference > 0 ? cText::Tr("Überschuss")
        : difference < 0                 ? cText::Tr("Verlust")
                                         : cText::Tr("Überschuss/Verlust");
    return label + u": "_s + format.Cents(std::abs(difference));
}

QString modReportHtml::Heading(const cReportFigures& figures)
{
    const QString name =
        figures.Type == eReport::Limit ? cText::Tr("Limit-Bericht") : modReport::ShownName(figures.Type);
    const QString account =
        figures.Account.isEmpty() ? cText::Tr("alle Konten") : cText::Tr("Konto '{0}'", {figures.Account});
    return cText::Tr("{0} für {1} vom {2} bis {3}",
                     {name, account, modDate::ToText(figures.Basis.Start), modDate::ToText(figures.Basis.End)});
}
