#include "views/help/cUpdateSchedule.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "core/cConfiguration.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

namespace {

constexpr int daysOfWeek = 7;

} // namespace

bool cUpdateSchedule::IsWeekly() const
{
    return cSettings::ToBool(m_configuration.GetSetting(modSettingKey::UpdateWeekly));
}

void cUpdateSchedule::SetWeekly(bool isWeekly)
{
    m_configuration.SaveSetting(modSettingKey::UpdateWeekly, cSettings::FromBool(isWeekly), eSettingPlace::Registry);
}

void cUpdateSchedule::AskOnce()
{
    const bool isAnswered = !m_configuration.GetSetting(modSettingKey::UpdateWeekly).isEmpty();
    const QDate first = modDate::FromIso(m_tools.Settings.Get(modSettingKey::FirstInstall));
    const bool isInUse = first.isValid() && first.daysTo(m_tools.Clock.Today()) >= daysOfWeek;
    if (isAnswered || !isInUse || m_tools.Data.IsReadOnly() || m_tools.Data.CountEntries() == 0) {
        return;
    }
    const eAnswer answer = m_tools.User.Ask(
        {.Text =
             cText::Tr("Soll Kontorelle einmal in der Woche nachsehen, ob es eine neue Version gibt?\nGesendet wird "
                       "dabei nur die Nummer Ihrer Version, und geladen wird nichts ohne Sie. Ändern können Sie "
                       "das jederzeit mit „Hilfe“, „Nach Updates suchen“."),
         .Title = cText::Tr("Neue Versionen"),
         .Buttons = eButtons::YesNoCancel,
         .Default = eAnswer::No});
    if (answer != eAnswer::Cancel) { // else it is asked again
        SetWeekly(answer == eAnswer::Yes);
    }
}

// A day in the future comes from a clock that was wrong.
bool cUpdateSchedule::IsDue() const
{
    if (!IsWeekly() || m_tools.Data.IsReadOnly()) {
        return false;
    }
    const QDate today = m_tools.Clock.Today();
    const QDate last = m_tools.Settings.GetUpdateDate(today);
    return !last.isValid() || last > today || last.daysTo(today) >= daysOfWeek;
}

void cUpdateSchedule::Looked()
{
    m_tools.Settings.Set(modSettingKey::Update, modDate::ToIso(m_tools.Clock.Today()));
}
