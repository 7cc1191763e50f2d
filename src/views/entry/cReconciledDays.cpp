#include "views/entry/cReconciledDays.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "import/stage/cAccountMap.h"
#include "model/modBalance.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

QHash<QString, QDate> cReconciledDays::ByAccount() const
{
    QHash<QString, QDate> days;
    const auto mapping = cAccountMap(m_tools.Data, m_tools.Settings).Mapping();
    for (const auto& [number, account] : mapping) {
        const QDate day = modDate::FromIso(m_tools.Settings.Get(modSettingKey::Reconciled.Of(number)));
        if (day.isValid()) {
            days.insert(account, day);
        }
    }
    return days;
}

bool cReconciledDays::Set(const QString& number, QDate day)
{
    const cSettingKey key = modSettingKey::Reconciled.Of(number);
    return day.isValid() ? m_tools.Settings.Set(key, modDate::ToIso(day)) : m_tools.Settings.Delete(key);
}

cReconciledGuard::cReconciledGuard(const cBookTools& tools)
    : m_tools(tools),
      m_until(cReconciledDays(tools).ByAccount())
{
    for (auto account = m_until.constBegin(); account != m_until.constEnd(); ++account) {
        m_before.insert(account.key(), Read(account.key(), *account));
    }
}

cReconciledGuard::cDays cReconciledGuard::Read(const QString& account, QDate until) const
{
    cDays days;
    const cEntryItemList entries = m_tools.Data.GetEntries({{}, until, {}, account, {}, eBookingKind::All});
    for (const cEntryItem& entry : entries) {
        days[entry.EntryDate] += modBalance::Effect(entry, account);
    }
    days.removeIf([](auto day) { return day.value() == 0; });
    return days;
}

bool cReconciledGuard::Allows()
{
    for (auto account = m_until.constBegin(); account != m_until.constEnd(); ++account) {
        const cDays& before = m_before[account.key()];
        const cDays now = Read(account.key(), *account);
        if (now == before) {
            continue;
        }
        auto a = before.constBegin();
        auto b = now.constBegin();
        while (a != before.constEnd() && b != now.constEnd() && a.key() == b.key() && *a == *b) {
            ++a;
            ++b;
        }
        const QDate first = a == before.constEnd() ? b.key() : b == now.constEnd() ? a.key() : qMin(a.key(), b.key());
        const bool isWanted =
            m_tools.User.Ask(
                {.Text = cText::Tr("Das Konto '{0}' stimmt bis {1} mit der Bank überein. Mit dieser Änderung wäre "
                                   "es ab dem {2} nicht mehr so.\n\nTrotzdem ändern?",
                                   {account.key(), modDate::ToText(*account), modDate::ToText(first)}),
                 .Title = cText::Tr("Mit der Bank abgeglichen"),
                 .Default = eAnswer::No})
            == eAnswer::Yes;
        if (!isWanted) {
            return false;
        }
        const auto mapping = cAccountMap(m_tools.Data, m_tools.Settings).Mapping();
        for (const auto& [number, owner] : mapping) {
            if (owner == account.key()) {
                cReconciledDays(m_tools).Set(number, first.addDays(-1));
            }
        }
    }
    return true;
}
