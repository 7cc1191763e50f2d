#include "import/xml/modOfxText.h"

#include "import/xml/modBytes.h"

#include <QByteArrayView>

#include <algorithm>

namespace {

// The name of the end tag that the line's value lacks; empty when it lacks none.
QByteArrayView MissingEnd(QByteArrayView line)
{
    const qsizetype tagEnd = line.indexOf('>');
    if (!line.startsWith('<') || line.startsWith("</") || tagEnd < 0 || tagEnd + 1 == line.size()) {
        return {};
    }
    const QByteArrayView name = line.sliced(1, tagEnd - 1);
    const bool isClosed =
        line.endsWith('>') && line.chopped(1).endsWith(name) && line.chopped(1 + name.size()).endsWith("</");
    return isClosed ? QByteArrayView() : name;
}

void AppendLine(QByteArray& out, QByteArrayView line)
{
    constexpr QByteArrayView feed = "\n";
    const QByteArrayView name = MissingEnd(line);
    if (name.isEmpty()) {
        modBytes::Put(out, {line, feed});
    } else {
        modBytes::Put(out, {line, "</", name, ">", feed});
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
