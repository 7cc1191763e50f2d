#include "base/modModule.h"

#include "base/cText.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibrary>

using namespace Qt::Literals::StringLiterals;

QString modModule::Path(const QString& file)
{
    const QDir program(QCoreApplication::applicationDirPath());
    const QString beside = program.filePath(file);
    return QFileInfo::exists(beside) ? beside : program.filePath(u"" APP_MODULES "/"_s + file);
}

QFunctionPointer modModule::Resolve(const QString& file, const char* function)
{
    return QLibrary(Path(file)).resolve(function);
}

QString modModule::Missing(const QString& file)
{
    return cText::Tr("Die Datei '{0}' des Programms fehlt oder ist beschädigt. Eine Neuinstallation könnte das Problem "
                     "beheben.",
                     {file});
}
