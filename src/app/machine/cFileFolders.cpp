#include "app/machine/cFileFolders.h"

#include "model/modSettingKey.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace {

QString NameOf(ePurpose purpose)
{
    switch (purpose) {
    case ePurpose::Statement: return u"Kontoauszug"_s;
    case ePurpose::Layout: return u"Aufbau"_s;
    case ePurpose::Protocol: return u"Protokoll"_s;
    case ePurpose::Receipt: return u"Beleg"_s;
    case ePurpose::Export: break;
    }
    return u"Export"_s;
}

} // namespace

QString cFileFolders::For(ePurpose purpose) const
{
    const QString last = m_configuration.GetSetting(modSettingKey::DialogFolder.Of(NameOf(purpose)));
    if (!last.isEmpty() && QFileInfo(last).isDir()) {
        return last;
    }
    const QString usual = QStandardPaths::writableLocation(
        purpose == ePurpose::Statement ? QStandardPaths::DownloadLocation : QStandardPaths::DocumentsLocation);
    return QFileInfo(usual).isDir() ? usual : QDir::homePath(); // a new desktop may name a folder that nobody made
}

void cFileFolders::Keep(ePurpose purpose, const QString& path)
{
    m_configuration.SaveSetting(modSettingKey::DialogFolder.Of(NameOf(purpose)), QFileInfo(path).absolutePath(),
                                eSettingPlace::Registry);
}
