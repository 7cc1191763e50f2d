#include "views/list/modFileWrite.h"

#include <QSaveFile>

QString modFileWrite::Replace(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isWritten ? QString() : file.errorString();
}
