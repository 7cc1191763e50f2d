#include "app/cBookWindows.h"

#include "base/cClock.h"
#include "core/cBookTools.h"
#include "views/book/cBackupSettings.h"
#include "views/book/cBookCheck.h"
#include "views/book/cPasswordFlow.h"
#include "views/main/cMainModel.h"
#include "views/main/cNavigator.h"
#include "windows/book/frmPasswort.h"
#include "windows/book/frmPruefung.h"
#include "windows/book/frmSicherungen.h"

cBookWindows::cBookWindows(const cParts& parts)
    : m_parts(parts),
      m_flow(
          {parts.Book, parts.Configuration, parts.Tools.User, parts.Rescue, parts.Shell, parts.Tools.Clock, parts.Host})
{
}

cBookWindows::~cBookWindows() = default;

void cBookWindows::Carry(modCommand::eId command, QWidget* parent)
{
    switch (command) {
    case modCommand::Password: OpenPassword(parent); break;
    case modCommand::MakeBackup: MakeBackup(); break;
    case modCommand::RestoreBackup: m_flow.LoadBackup(); break;
    case modCommand::SwitchDatabase: m_flow.SwitchBook(); break;
    case modCommand::NewDatabase: m_flow.NewBook(); break;
    case modCommand::CheckBook: OpenCheck(parent); break;
    case modCommand::BackupSettings: OpenBackupSettings(parent); break;
    default: break;
    }
}

void cBookWindows::LeaveBook()
{
    m_password.reset();
}

void cBookWindows::OpenCheck(QWidget* parent)
{
    cBookCheck check(m_parts.Tools.Data, m_parts.Format, m_parts.Tools.Clock.Today());
    frmPruefung form(check, parent);
    QObject::connect(&form, &frmPruefung::EntryRequested, &m_parts.Model, [&](int entryId) {
        m_parts.Navigator.OpenEntry(entryId, {});
        check.Reload();
    });
    QObject::connect(&form, &frmPruefung::DeleteRequested, &m_parts.Model, [&](int entryId) {
        m_parts.Model.Delete({{entryId, QDate()}});
        check.Reload();
    });
    form.exec();
}

void cBookWindows::OpenPassword(QWidget* parent)
{
    if (!m_password) {
        m_password = std::make_unique<cPasswordFlow>(m_parts.Tools.Data, m_parts.Configuration, m_parts.Tools.User);
    }
    frmPasswort form(*m_password, parent);
    form.exec();
}

void cBookWindows::OpenBackupSettings(QWidget* parent)
{
    cBackupSettings settings(
        {m_parts.Book, m_parts.Configuration, m_parts.Tools.User, m_parts.Shell, m_parts.Tools.Clock});
    frmSicherungen form(settings, parent);
    form.exec();
    m_backupsChanged();
}

void cBookWindows::MakeBackup()
{
    m_flow.MakeBackup();
    m_backupsChanged();
}
