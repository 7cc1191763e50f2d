#include "model/modFlags.h"

#include <QStringList>

QString modFlags::Get(const QString& flags, const QString& key)
{
    const QString start = key + u'=';
    const QStringList parts = flags.split(u';', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (part.startsWith(start)) {
            return part.mid(start.size());
        }
    }
    return {};
}

QString modFlags::Set(const QString& flags, const QString& key, const QString& value)
{
    const QString start = key + u'=';
    QStringList kept;
    const QStringList parts = flags.split(u';', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (!part.startsWith(start)) {
            kept.append(part);
        }
    }
    if (!value.isEmpty()) {
        kept.append(start + value);
    }
    return kept.join(u';');
}
