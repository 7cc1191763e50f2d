#include "app/machine/modQtFilter.h"

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

QString modQtFilter::FirstEnding(const QString& filter)
{
    const QString mask = filter.section(u'|', 1, 1).section(u';', 0, 0);
    return mask.startsWith("*."_L1) && mask != "*.*"_L1 ? mask.mid(2) : QString();
}

QString modQtFilter::ChosenEnding(const QString& filter, const QString& chosen)
{
    const QStringList parts = filter.split(u'|');
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString pair = parts.at(i) % u'|' % parts.at(i + 1);
        if (FromPairs(pair) == chosen && !FirstEnding(pair).isEmpty()) {
            return FirstEnding(pair);
        }
    }
    return FirstEnding(filter);
}
