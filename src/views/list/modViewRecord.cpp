#include "views/list/modViewRecord.h"

#include <QUrl>

QList<QStringList> modViewRecord::FromText(const QString& text)
{
    QList<QStringList> views;
    const QStringList texts = text.split(u';', Qt::SkipEmptyParts);
    for (const QString& each : texts) {
        QStringList fields = each.split(u'|');
        for (QString& field : fields) {
            field = QUrl::fromPercentEncoding(field.toLatin1());
        }
        if (fields.size() >= FieldCount && !fields.at(Name).isEmpty()) {
            views.append(fields);
        }
    }
    return views;
}

QString modViewRecord::ToText(const QList<QStringList>& views)
{
    QStringList texts;
    for (QStringList fields : views) {
        for (QString& field : fields) {
            field = QString::fromLatin1(QUrl::toPercentEncoding(field));
        }
        texts.append(fields.join(u'|'));
    }
    return texts.join(u';');
}

QString modViewRecord::WithAccount(const QString& text, const QString& oldName, const QString& newName)
{
    QList<QStringList> views = FromText(text);
    bool isTouched = false;
    for (QStringList& fields : views) {
        isTouched = isTouched || fields.at(Account) == oldName;
        fields[Account] = fields.at(Account) == oldName ? newName : fields.at(Account);
    }
    return isTouched ? ToText(views) : text;
}
