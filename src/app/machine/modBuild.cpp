#include "app/machine/modBuild.h"

using namespace Qt::Literals::StringLiterals;

QString modBuild::Commit()
{
    return QStringLiteral(APP_COMMIT);
}

QString modBuild::Version()
{
    const QString version = QStringLiteral(APP_VERSION);
    return Commit().isEmpty() ? version : QString(version + u" ("_s + Commit() + u')');
}
