#include "store/cDataAccess.h"

#include "store/cDatabase.h"
#include "store/modFailure.h"

cDataAccess::cDataAccess(cDatabase& database, cUser& user)
    : m_database(database),
      m_user(user),
      m_journal(database, user)
{
    m_journal.OnEnd([this](bool isWritten) { TellCleaned(isWritten); });
}

bool cDataAccess::IsReadOnly() const
{
    return m_database.IsReadOnly();
}

bool cDataAccess::Try(const char* name, const std::function<void()>& operation)
{
    try {
        operation();
        return true;
    } catch (const std::exception& error) {
        modFailure::Show(m_user, QString::fromLatin1(name), error);
        return false;
    }
}

QList<std::pair<QString, QString>> cDataAccess::GetSettings()
{
    QList<std::pair<QString, QString>> settings;
    Try("GetSettings", [&] {
        cRows rows(m_database, "SELECT SettingName, SettingValue FROM setting");
        while (rows.Next()) {
            settings.emplace_back(rows.Text(0), rows.Text(1));
        }
    });
    return settings;
}

bool cDataAccess::ChangeSettingItem(const QString& name, const QString& value)
{
    return Try("ChangeSettingItem", [&] {
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
    return Try("DeleteSetting", [&] { m_database.Execute("DELETE FROM setting WHERE SettingName = ?", {name}); });
}
