#include "views/export/modCsv.h"

#include "base/modAmount.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QChar separator = u';';

// Table programs calculate what begins like a formula, even inside quotes. An apostrophe in front makes it plain text
// for them and leaves it readable for everybody else. Amounts are not touched: their sign is meant.
QString WithoutFormula(const QString& text)
{
    const bool isFormula = !text.isEmpty() && u"=+-@\t\r"_s.contains(text.front());
    return isFormula ? u'\'' + text : text;
}

QString Quoted(QString text)
{
    const bool needsQuotes = text.contains(separator) || text.contains(u'"') || text.contains(u'\n')
        || text.contains(u'\r') || text.startsWith(u' ') || text.endsWith(u' ');
    return needsQuotes ? u'"' + text.replace(u'"', u"\"\""_s) + u'"' : text;
}

} // namespace

QString modCsv::Text(const QString& text)
{
    return Quoted(WithoutFormula(text));
}

QString modCsv::Money(qint64 cents)
{
    return modAmount::CentsToText(cents).replace(u'.', u',');
}

QByteArray modCsv::Line(const QStringList& fields)
{
    return fields.join(separator).toUtf8() + "\r\n";
}
