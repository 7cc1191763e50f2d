#include "views/sheet/modRowDrag.h"

#include "base/modDate.h"

namespace {

const QByteArray accountWord = "konto ";

} // namespace

QByteArray modRowDrag::ToBytes(const QList<cEntryListModel::cKey>& rows, const QString& shown)
{
    QByteArray bytes = accountWord + shown.toUtf8().toPercentEncoding() + '\n';
    for (const cEntryListModel::cKey& row : rows) {
        bytes += QByteArray::number(row.ID) + ' ' + modDate::ToIso(row.Day).toLatin1() + '\n';
    }
    return bytes;
}

QList<cEntryListModel::cKey> modRowDrag::FromBytes(const QByteArray& bytes)
{
    QList<cEntryListModel::cKey> rows;
    const QList<QByteArray> lines = bytes.split('\n');
    for (const QByteArray& line : lines) {
        const QList<QByteArray> words = line.split(' ');
        if (words.size() == 2 && words.first().toInt() > 0) {
            rows.append({words.first().toInt(), modDate::FromIso(QString::fromLatin1(words.last()))});
        }
    }
    return rows;
}

QString modRowDrag::ShownFromBytes(const QByteArray& bytes)
{
    const QByteArray first = bytes.left(bytes.indexOf('\n'));
    return first.startsWith(accountWord)
        ? QString::fromUtf8(QByteArray::fromPercentEncoding(first.mid(accountWord.size())))
        : QString();
}
