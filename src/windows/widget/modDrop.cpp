#include "windows/widget/modDrop.h"

#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

QStringList modDrop::Files(const QMimeData& data)
{
    QStringList paths;
    const QList<QUrl> urls = data.urls();
    for (const QUrl& url : urls) {
        if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile()) {
            paths.append(url.toLocalFile());
        }
    }
    return paths;
}
