#include "core/modTrash.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

// Where the folder for a user's data is not there yet, the toolkit cannot make the trash in it, calls that a success
// all the same, and leaves the file in the working folder.
bool modTrash::Move(const QString& path)
{
    const QString data = qEnvironmentVariable("XDG_DATA_HOME", QDir::homePath() + u"/.local/share"_s);
    QDir().mkpath(data);
    QString place;
    if (!QFile::moveToTrash(path, &place)) {
        return false;
    }
    if (QFileInfo(place).isAbsolute() && QFileInfo(place).absolutePath() != u"/files") {
        return true;
    }
    return !QFile::rename(place, path);
}
