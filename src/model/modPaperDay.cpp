#include "model/modPaperDay.h"

#include <QRegularExpression>
#include <QStringList>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString form = u"yyyy-MM"_s;

// Numbers of other lengths are those of accounts and of statements.
struct cForm
{
    QRegularExpression Pattern;
    bool IsDay;
};

QRegularExpression Pattern(const QString& inner)
{
    return QRegularExpression(u"(?<!\\d)"_s + inner + u"(?!\\d)"_s);
}

const std::array<cForm, 6>& Forms()
{
    static const QString year = u"(?<year>20\\d\\d)"_s;
    static const QString month = u"(?<month>0[1-9]|1[0-2])"_s;
    static const QString day = u"(?<day>0[1-9]|[12]\\d|3[01])"_s;
    static const QString sign = u"[-_. ]"_s;
    static const QString ofStatement = u"(?<!(?i:nr)[_. ])(?<!(?i:nr)\\. )"_s; // "Nr. 11_2026" is the eleventh
    static const std::array<cForm, 6> forms{{{Pattern(year + sign + month + sign + day), true},
                                             {Pattern(day + sign + month + sign + year), true},
                                             {Pattern(year + month + day), true},
                                             {Pattern(day + month + year), true},
                                             {Pattern(year + sign + u'?' + month), false},
                                             {Pattern(ofStatement + month + sign + u'?' + year), false}}};
    return forms;
}

// "März 2026", "2026_Maerz"
QDate MonthInWords(const QString& text)
{
    static const QStringList names{u"januar"_s,    u"februar"_s, u"märz"_s,     u"april"_s,
                                   u"mai"_s,       u"juni"_s,    u"juli"_s,     u"august"_s,
                                   u"september"_s, u"oktober"_s, u"november"_s, u"dezember"_s};
    static const QRegularExpression year(u"(?<!\\d)20\\d\\d(?!\\d)"_s);
    static const QRegularExpression month(u"(?<!\\p{L})(%1)(?!\\p{L})"_s.arg(names.join(u'|'))); // not that of "Mainz"
    const QString words = text.toLower().replace(u"maerz"_s, u"märz"_s);
    const qsizetype index = names.indexOf(month.match(words).captured());
    return index < 0 ? QDate() : QDate(year.match(words).captured().toInt(), static_cast<int>(index) + 1, 1);
}

} // namespace

QString modPaperDay::Find(const QString& text)
{
    for (const cForm& each : Forms()) {
        const QRegularExpressionMatch match = each.Pattern.match(text);
        const QDate day(match.captured(u"year"_s).toInt(), match.captured(u"month"_s).toInt(),
                        each.IsDay ? match.captured(u"day"_s).toInt() : 1);
        if (match.hasMatch() && day.isValid()) {
            return each.IsDay ? day.toString(Qt::ISODate) : OfMonth(day);
        }
    }
    const QDate month = MonthInWords(text);
    return month.isValid() ? OfMonth(month) : QString();
}

bool modPaperDay::IsMonthOnly(const QString& text)
{
    constexpr qsizetype dayLength = 10;
    return !QDate::fromString(text.left(dayLength), Qt::ISODate).isValid() && Read(text).isValid();
}

QDate modPaperDay::Read(const QString& text)
{
    constexpr qsizetype dayLength = 10;
    const QDate day = QDate::fromString(text.left(dayLength), Qt::ISODate);
    return day.isValid() ? day : QDate::fromString(text.left(form.size()), form);
}

QString modPaperDay::OfMonth(QDate day)
{
    return day.toString(form);
}
