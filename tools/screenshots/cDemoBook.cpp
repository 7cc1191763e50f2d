#include "tools/screenshots/cDemoBook.h"

#include "core/cSettings.h"
#include "core/modDemo.h"
#include "store/cDataAccess.h"
#include "tools/screenshots/cCamera.h"

#include <QFile>

using namespace Qt::Literals::StringLiterals;

QDate cFixedClock::Today() const
{
    return sceneDay;
}

QDateTime cFixedClock::Now() const
{
    return {sceneDay, QTime(12, 0)};
}

cDemoBook::cDemoBook(eContent content)
{
    const QString path = Folder.filePath(u"Haushalt.db"_s);
    m_isReady = QFile::copy(Shell.InstalledFile(u"template.dat"_s), path) && Book.Open(path);
    if (m_isReady && content == eContent::Household) {
        m_isReady = modDemo::Write(Book.Data(), {.Today = sceneDay});
        Book.Settings().Reload(); // the household was written past them
    }
    if (m_isReady) {
        Configuration.SetDatabase(&Book.Settings());
        m_tools.emplace(cBookTools{Book.Data(), Book.Settings(), Format, User, Clock});
    }
}
