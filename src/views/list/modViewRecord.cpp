#include "views/list/modViewRecord.h"

#include "core/cSettings.h"
#include "model/modSettingKey.h"

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

bool modViewRecord::Follow(cSettings& settings, eField field, const QString& oldName, const QString& newName)
{
    QList<QStringList> views = FromText(settings.Get(modSettingKey::SavedViews));
    bool isTouched = false;
    for (QStringList& fields : views) {
        if (fields.value(field) == oldName) {
            fields[field] = newName;
            isTouched = true;
        }
    }
    return !isTouched || settings.Set(modSettingKey::SavedViews, ToText(views));
}
