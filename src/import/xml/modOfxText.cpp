#include "import/xml/modOfxText.h"

#include <QByteArrayView>

#include <algorithm>

namespace {

// A line with the end tag that its value lacks.
void AppendLine(QByteArray& out, QByteArrayView line)
{
    out.append(line);
    const qsizetype tagEnd = line.indexOf('>');
    if (!line.startsWith('<') || line.startsWith("</") || tagEnd < 0 || tagEnd + 1 == line.size()) {
        return;
    }
    const QByteArrayView name = line.sliced(1, tagEnd - 1);
    const bool isClosed =
        line.endsWith('>') && line.chopped(1).endsWith(name) && line.chopped(1 + name.size()).endsWith("</");
    if (!isClosed) {
        out += "</";
        out.append(name);
        out += '>';
    }
}

} // namespace

QByteArray modOfxText::ToXml(const QByteArray& text)
{
    QByteArray xml;
    xml.reserve(text.size() + text.size() / 4);
    const QByteArrayView view = text;
    for (qsizetype from = 0; from <= view.size();) {
        const qsizetype feed = view.indexOf('\n', from);
        const qsizetype end = feed < 0 ? view.size() : feed;
        AppendLine(xml, view.sliced(from, end - from).trimmed());
        xml += '\n';
        from = end + 1;
    }
    const qsizetype start = xml.indexOf("<OFX>");
    return start < 0 ? QByteArray() : xml.remove(0, start);
}

QString modOfxText::ToGermanAmount(const QString& amount)
{
    const qsizetype point = amount.lastIndexOf(u'.');
    const qsizetype comma = amount.lastIndexOf(u',');
    const qsizetype last = std::max(point, comma);
    const bool isAlone = point < 0 || comma < 0;
    const bool isGrouping = last >= 0 && isAlone && amount.count(amount[last]) > 1;
    QString german;
    for (qsizetype i = 0; i < amount.size(); ++i) {
        const bool isSeparator = amount[i] == u'.' || amount[i] == u',';
        if (!isSeparator) {
            german += amount[i];
        } else if (i == last && !isGrouping) {
            german += u',';
        }
    }
    return german;
}
