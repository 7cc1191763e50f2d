#include "cli/help/modRoff.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Line(const QString& text)
{
    QString line = QString(text).replace(u'\\', u"\\e"_s).replace(u'-', u"\\-"_s).trimmed();
    return line.startsWith(u'.') || line.startsWith(u'\'') ? u"\\&"_s + line : line;
}

} // namespace

QString modRoff::Text(const QString& text)
{
    QStringList lines;
    const QStringList paragraphs = text.split(u'\n', Qt::SkipEmptyParts);
    for (const QString& paragraph : paragraphs) {
        lines.append(Line(paragraph));
    }
    return lines.join(u"\n.br\n"_s) + u'\n';
}

QString modRoff::Section(const QString& title)
{
    return u".SH "_s + Line(title) + u'\n';
}

QString modRoff::Subsection(const QString& title)
{
    return u".SS "_s + Line(title) + u'\n';
}

QString modRoff::Item(const QString& label, const QString& text)
{
    return u".TP\n.B "_s + Line(label) + u'\n' + Text(text);
}

QString modRoff::Title(const QString& program, const QString& version)
{
    return u".TH "_s + program.toUpper().replace(u'-', u"\\-"_s) + u" 1 \"\" \"Kontorelle "_s + version + u"\"\n"_s;
}
