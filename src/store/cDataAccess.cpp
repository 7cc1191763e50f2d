#include "store/cDataAccess.h"

#include "store/cDatabase.h"
#include "store/cWindowAhead.h"
#include "store/modFailure.h"

#include <utility>

cDataAccess::cDataAccess(cDatabase& database, cUser& user)
    : m_database(database),
      m_user(user),
      m_journal(database, user)
{
    m_journal.OnEnd([this](bool isWritten) { TellCleaned(isWritten); });
}

cDataAccess::~cDataAccess() = default;

void cDataAccess::ForgetFile()
{
    m_ahead.reset();
    m_journal.Forget();
    m_unread.clear();
}

bool cDataAccess::IsReadOnly() const
{
    return m_database.IsReadOnly() || m_database.IsDamaged();
}

QString cDataAccess::BookPath() const
{
    return m_database.Path();
}

eDatabaseFault cDataAccess::Try(const char* name, const std::function<void()>& operation, bool isTold)
{
    try {
        operation();
        ++m_timesDone;
        return eDatabaseFault::None;
    } catch (const std::exception& error) {
        if (!isTold) {
            modFailure::Show(m_user, QString::fromLatin1(name), error);
        }
        const auto* fault = dynamic_cast<const cDatabaseError*>(&error);
        return fault != nullptr ? fault->Fault() : eDatabaseFault::Other;
    }
}

bool cDataAccess::Write(const char* name, const std::function<void()>& operation)
{
    m_ahead.reset();
    return Try(name,
               [&] {
                   if (!m_unread.isEmpty()) {
                       throw cDatabaseError(eDatabaseFault::Unread, m_unread.begin()->toStdString());
                   }
                   operation();
               })
        == eDatabaseFault::None;
}

bool cDataAccess::Read(const char* name, const std::function<void()>& operation, bool isTold)
{
    const eDatabaseFault fault = Try(name, operation, isTold);
    // A table that the book has never had is missed by nobody.
    if (fault == eDatabaseFault::None || fault == eDatabaseFault::Other) {
        m_unread.remove(QString::fromLatin1(name));
    } else {
        m_unread.insert(QString::fromLatin1(name));
    }
    return fault == eDatabaseFault::None;
}

bool cDataAccess::Look(const char* name, const std::function<void()>& operation)
{
    return Try(name, operation) == eDatabaseFault::None;
}

bool cDataAccess::Store(const char* name, const std::function<void()>& operation)
{
    m_ahead.reset();
    return Look(name, operation);
}

bool cDataAccess::IsWhole() const
{
    return m_unread.isEmpty() && !m_database.IsDamaged();
}

std::optional<cDataAccess::cSettingRows> cDataAccess::ReadSettings()
{
    cSettingRows settings;
    const bool wasTold = std::exchange(m_isSettingFailureTold, true); // while it is told as well
    const bool isRead = Read(
        "GetSettings",
        [&] {
            cRows rows(m_database, "SELECT SettingName, SettingValue FROM setting");
            while (rows.Next()) {
                settings.emplace_back(rows.Text(0), rows.Text(1));
            }
        },
        wasTold);
    m_isSettingFailureTold = !isRead;
    return isRead ? std::optional(settings) : std::nullopt;
}

bool cDataAccess::ChangeSettingItem(const QString& name, const QString& value)
{
    // A choice of the view depends on nothing that was read, and closing the window stores many of them.
    return Store("ChangeSettingItem", [&] {
        bool isKnown = false;
        {
            cRows rows(m_database, "SELECT COUNT(*) FROM setting WHERE SettingName=?", {name});
            isKnown = rows.Next() && rows.Integer(0) > 0;
        }
        if (isKnown) {
            m_database.Execute("UPDATE setting SET SettingValue=?, SettingDefault=? WHERE SettingName = ?",
                               {value, value, name});
        } else {
            m_database.Execute("INSERT INTO setting (SettingName, SettingValue, SettingDefault) VALUES (?, ?, ?)",
                               {name, value, value});
        }
    });
}

bool cDataAccess::DeleteSetting(const QString& name)
{
    return Store("DeleteSetting", [&] { m_database.Execute("DELETE FROM setting WHERE SettingName = ?", {name}); });
}
