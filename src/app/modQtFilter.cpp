#include "app/modQtFilter.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

QString modQtFilter::FromPairs(const QString& filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList result;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString masks = QString(parts.at(i + 1)).replace(u';', u' ').replace("*.*"_L1, "*"_L1);
        result.append(parts.at(i) % u" ("_s % masks % u')');
    }
    return result.join(u";;"_s);
}
