#include "app/cQtFileDesk.h"

#include <QDesktopServices>
#include <QFile>
#include <QUrl>

bool cQtFileDesk::OpenFile(const QString& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

bool cQtFileDesk::MoveToTrash(const QString& path)
{
    return QFile::moveToTrash(path);
}
