#include "app/machine/cQtFileDesk.h"

#include "core/modTrash.h"

#include <QDesktopServices>
#include <QUrl>

bool cQtFileDesk::OpenFile(const QString& path)
{
    return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

bool cQtFileDesk::MoveToTrash(const QString& path)
{
    return modTrash::Move(path);
}
