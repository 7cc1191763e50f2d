#include "views/book/cBackupSettings.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBackupPlan.h"
#include "core/cBook.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "views/common/modFileSize.h"
#include "views/common/modUnsaved.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

cBackupPlan PlanOf(const cBackupSettings::cParts& parts)
{
    return {{parts.Shell, parts.User, parts.Clock}, parts.Book, parts.Configuration};
}

// With the time, where the file is of that day still: a day may have several copies.
QString When(const cBackupPlan::cCopy& copy, const QFileInfo& file)
{
    const QDateTime time = file.lastModified();
    const QString day = modDate::ToText(copy.Day);
    return time.date() == copy.Day ? day + time.toString(u" HH:mm"_s) : day;
}

// Makes the folder when it is missing, so that a wrong one shows now and not when the first backup is due.
bool IsUsable(const QString& folder)
{
    return QDir().mkpath(folder) && QFileInfo(folder).isWritable();
}

} // namespace

cBackupSettings::cFields cBackupSettings::Current() const
{
    const cBackupPlan plan = PlanOf(m_parts);
    return {plan.Count(), QDir::toNativeSeparators(plan.Folder()),
            cSettings::ToBool(m_parts.Configuration.GetSetting(modSettingKey::ReceiptsInBackup))};
}

QStringList cBackupSettings::Copies() const
{
    QStringList lines;
    const cAmountFormat format(m_parts.Configuration);
    const QList<cBackupPlan::cCopy> copies = PlanOf(m_parts).Copies();
    for (const cBackupPlan::cCopy& copy : copies) {
        const QFileInfo file(copy.Path);
        lines.append(cText::Tr("{0}, {1}", {When(copy, file), modFileSize::Text(file.size(), format)}));
    }
    return lines;
}

QString cBackupSettings::ChooseFolder(const QString& current) const
{
    const QString chosen = m_parts.User.ChooseFolder(cText::Tr("Ordner für automatische Datensicherungen"), current);
    return chosen.isEmpty() ? current : QDir::toNativeSeparators(chosen);
}

bool cBackupSettings::Save(const cFields& fields) const
{
    const QString folder = QDir::fromNativeSeparators(fields.Folder.trimmed());
    if (fields.Count > 0 && !folder.isEmpty() && (QDir::isRelativePath(folder) || !IsUsable(folder))) {
        m_parts.User.Show(eTone::Exclamation,
                          cText::Tr("In den Ordner '{0}' kann nicht geschrieben werden.", {fields.Folder}));
        return false;
    }
    if (!PlanOf(m_parts).Save(fields.Count, folder)
        || !m_parts.Configuration.SaveSetting(modSettingKey::ReceiptsInBackup,
                                              fields.HasReceipts ? modSettingKey::On : modSettingKey::Off,
                                              eSettingPlace::Database)) {
        m_parts.User.Show(eTone::Critical, cText::Tr("Die Einstellungen konnten nicht gespeichert werden."));
        return false;
    }
    return true;
}

eAnswer cBackupSettings::AskToSave() const
{
    return modUnsaved::Ask(m_parts.User);
}
