#include "views/list/cTreeLayout.h"

#include <QUrl>

QString cTreeLayout::ToText() const
{
    QStringList names;
    for (const QString& name : Open) {
        names.append(QString::fromLatin1(QUrl::toPercentEncoding(name)));
    }
    return Columns + u'!' + names.join(u',');
}

cTreeLayout cTreeLayout::FromText(const QString& text)
{
    cTreeLayout layout;
    layout.Columns = text.section(u'!', 0, 0);
    const QStringList names = text.section(u'!', 1).split(u',', Qt::SkipEmptyParts);
    for (const QString& name : names) {
        layout.Open.append(QUrl::fromPercentEncoding(name.toLatin1()));
    }
    return layout;
}
