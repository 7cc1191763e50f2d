#include "cli/console/cJsonObject.h"

#include "base/modAmount.h"
#include "base/modDate.h"

using namespace Qt::Literals::StringLiterals;

cJsonObject& cJsonObject::Raw(const QString& name, const QString& json)
{
    m_members.append(modJson::Quoted(name) % u": "_s % json);
    return *this;
}

cJsonObject& cJsonObject::Text(const QString& name, const QString& value)
{
    return Raw(name, modJson::Quoted(value));
}

cJsonObject& cJsonObject::Number(const QString& name, qint64 value)
{
    return Raw(name, QString::number(value));
}

cJsonObject& cJsonObject::Amount(const QString& name, qint64 cents)
{
    return Raw(name, modAmount::CentsToText(cents));
}

cJsonObject& cJsonObject::Date(const QString& name, QDate date)
{
    return Text(name, modDate::ToIso(date));
}

cJsonObject& cJsonObject::Truth(const QString& name, bool value)
{
    return Raw(name, value ? u"true"_s : u"false"_s);
}

QString modJson::Quoted(const QString& text)
{
    QString result = u"\""_s;
    for (const QChar c : text) {
        if (c == u'"' || c == u'\\') {
            result += u'\\';
            result += c;
        } else if (c == u'\n') {
            result += u"\\n"_s;
        } else if (c.unicode() < 0x20 || c.unicode() == 0x7f) {
            result += u"\\u%1"_s.arg(uint{c.unicode()}, 4, 16, QChar(u'0'));
        } else {
            result += c;
        }
    }
    return result + u'"';
}

QString modJson::Array(const QStringList& elements)
{
    return elements.isEmpty() ? u"[]"_s : u"[\n  "_s + elements.join(u",\n  "_s) + u"\n]"_s;
}
