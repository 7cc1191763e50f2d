#include "views/book/cPasswordFlow.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cConfiguration.h"
#include "core/modPassword.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

using namespace Qt::Literals::StringLiterals;

cPasswordFlow::cPasswordFlow(cDataAccess& data, cConfiguration& configuration, cUser& user)
    : m_data(data),
      m_configuration(configuration),
      m_user(user)
{
}

bool cPasswordFlow::HasPassword() const
{
    return modPassword::IsActive(m_configuration);
}

cPasswordFlow::eResult cPasswordFlow::Set(const QString& old, const QString& password, const QString& repeated)
{
    const bool isChange = HasPassword();
    if (isChange && !Matches(old)) {
        return eResult::WrongPassword;
    }
    if (const QString objection = Objection(password, repeated); !objection.isEmpty()) {
        m_user.Show(eTone::Objection, objection);
        return eResult::Refused;
    }
    return Stored(!m_data.IsReadOnly() && modPassword::Set(m_configuration, password),
                  isChange ? cText::Tr("Das Passwort wurde geändert.")
                           : cText::Tr("Das Passwort wurde gesetzt. Es wird beim nächsten Öffnen der Datenbank "
                                       "abgefragt."));
}

cPasswordFlow::eResult cPasswordFlow::Remove(const QString& old)
{
    if (!Matches(old)) {
        return eResult::WrongPassword;
    }
    return Stored(!m_data.IsReadOnly() && modPassword::Remove(m_configuration),
                  cText::Tr("Das Passwort wurde entfernt. Frühere Datensicherungen behalten ihr Passwort."));
}

bool cPasswordFlow::Matches(const QString& old)
{
    const bool isRight = modPassword::Matches(old, m_configuration.GetSetting(modSettingKey::Password));
    if (isRight) {
        m_tries.NoteRight();
    } else {
        m_tries.NoteWrong();
    }
    return isRight;
}

QString cPasswordFlow::Objection(const QString& password, const QString& repeated) const
{
    if (password.isEmpty()) {
        return cText::Tr("Bitte geben Sie ein neues Passwort ein.");
    }
    return password == repeated ? QString() : cText::Tr("Die beiden neuen Passwörter stimmen nicht überein.");
}

cPasswordFlow::eResult cPasswordFlow::Stored(bool isStored, const QString& message)
{
    if (isStored) {
        m_user.Show(eTone::Information, message);
        return eResult::Done;
    }
    m_user.Show(eTone::Critical, cText::Tr("Das Passwort konnte nicht gespeichert werden."));
    return eResult::Refused;
}
