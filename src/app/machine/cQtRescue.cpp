#include "app/machine/cQtRescue.h"

#include "app/machine/modQtFilter.h"
#include "base/cText.h"
#include "windows/book/frmPasswort.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<QString> ChooseFile(const QString& title, const QString& folder, const QString& filter)
{
    const QString begin = QFileInfo::exists(folder) ? folder : QDir::homePath(); // else its name would be the file's
    const QString path =
        QFileDialog::getOpenFileName(QApplication::activeWindow(), title, begin, modQtFilter::FromPairs(filter));
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

} // namespace

std::optional<QString> cQtRescue::ChooseDatabase(const QString& current)
{
    return ChooseFile(cText::Tr("Datenbank wählen"), QFileInfo(current).absolutePath(),
                      cText::Tr("Datenbanken|*.db|Alle Dateien|*.*"));
}

std::optional<QString> cQtRescue::ChooseBackup(const QString& folder)
{
    return ChooseFile(cText::Tr("Datensicherung laden"), folder, cText::Tr("Backup-Datei|*.backup|Alle Dateien|*.*"));
}

bool cQtRescue::AskPassword(const std::function<bool(const QString&)>& isRight)
{
    frmPasswort prompt(m_tries, isRight, QApplication::activeWindow());
    return prompt.exec() == QDialog::Accepted;
}
