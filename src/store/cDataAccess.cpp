#include "store/cDataAccess.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "store/cDatabase.h"

cDataAccess::cDataAccess(cDatabase& database, cUser& user) : m_database(database), m_user(user), m_journal(database)
{
}

bool cDataAccess::IsReadOnly() const
{
    return m_database.IsReadOnly();
}

bool cDataAccess::Try(const char* message, const std::function<void()>& operation)
{
    try {
        operation();
        return true;
    } catch (const cDatabaseError& error) {
        m_user.Show(eTone::Critical, cText::Tr(message, {error.Text()}));
    } catch (const std::exception& error) {
        m_user.Show(eTone::Critical, cText::Tr(message, {QString::fromUtf8(error.what())}));
    }
    return false;
}

QList<std::pair<QString, QString>> cDataAccess::GetSettings()
{
    QList<std::pair<QString, QString>> settings;
    Try(QT_TRANSLATE_NOOP("cText", "ERROR: GetSettings\n{0}"), [&] {
        cRows rows(m_database, "SELECT SettingName, SettingValue FROM setting");
        while (rows.Next()) {
            settings.emplace_back(rows.Text(0), rows.Text(1));
        }
    });
    return settings;
}

bool cDataAccess::ChangeSettingItem(const QString& name, const QString& value)
{
    return Try(QT_TRANSLATE_NOOP("cText", "ERROR: ChangeSettingItem\n{0}"), [&] {
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
    return Try(QT_TRANSLATE_NOOP("cText", "ERROR: DeleteSetting\n{0}"),
               [&] { m_database.Execute("DELETE FROM setting WHERE SettingName = ?", {name}); });
}

void cDataAccess::BeginStep(const QString& name)
{
    m_journal.Begin(name);
}

void cDataAccess::EndStep()
{
    m_journal.End();
    if (!m_journal.IsOpen()) {
        TellCleaned();
    }
}

void cDataAccess::RevertStep()
{
    m_cleaned.clear();
    Try(QT_TRANSLATE_NOOP("cText", "ERROR: RevertStep\n{0}"), [&] { m_journal.Revert(); });
}

void cDataAccess::BeginPart()
{
    m_journal.BeginPart();
}

void cDataAccess::EndPart()
{
    m_journal.EndPart();
}

void cDataAccess::RevertPart()
{
    Try(QT_TRANSLATE_NOOP("cText", "ERROR: RevertStep\n{0}"), [&] { m_journal.RevertPart(); });
}

QString cDataAccess::UndoName() const
{
    return m_journal.UndoName();
}

QString cDataAccess::RedoName() const
{
    return m_journal.RedoName();
}

bool cDataAccess::Undo()
{
    return Try(QT_TRANSLATE_NOOP("cText", "ERROR: Undo\n{0}"), [&] { m_journal.Undo(); });
}

bool cDataAccess::Redo()
{
    return Try(QT_TRANSLATE_NOOP("cText", "ERROR: Redo\n{0}"), [&] { m_journal.Redo(); });
}

void cDataAccess::ForgetSteps()
{
    m_journal.Forget();
}
