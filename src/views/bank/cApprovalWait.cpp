#include "views/bank/cApprovalWait.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "views/bank/modBankQuestion.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Minutes(qint64 seconds)
{
    constexpr int minute = 60;
    return u"%1:%2"_s.arg(seconds / minute).arg(seconds % minute, 2, 10, QLatin1Char('0'));
}

} // namespace

void cApprovalWait::Start(const cApproval& approval)
{
    m_approval = approval;
    m_start = m_clock.Now();
    m_isWished = false;
}

QString cApprovalWait::Way() const
{
    return modBankQuestion::WayAndPurpose(modBankQuestion::Way(m_approval.Procedure, m_approval.Medium),
                                          m_approval.Purpose);
}

QString cApprovalWait::Words() const
{
    return modBankQuestion::Words(m_approval);
}

QString cApprovalWait::TimeLeft() const
{
    if (!m_approval.ValidUntil.isValid()) {
        return {};
    }
    const qint64 seconds = m_clock.Now().secsTo(m_approval.ValidUntil);
    return seconds > 0 ? cText::Tr("Noch {0} Minuten Zeit", {Minutes(seconds)})
                       : cText::Tr("Die Zeit für die Freigabe ist abgelaufen.");
}

QString cApprovalWait::Step() const
{
    const qint64 left = SecondsLeft();
    if (IsDue()) {
        return cText::Tr("Die Bank wird gefragt…");
    }
    if (m_approval.IsAutomatic || m_isWished) {
        return cText::Tr("Die Bank wird in {0} s gefragt, ob Ihre Freigabe da ist.", {QString::number(left)});
    }
    return cText::Tr("Klicken Sie auf „Jetzt prüfen“, sobald Sie freigegeben haben.");
}

// Somebody has to be able to ask.
bool cApprovalWait::HasButton() const
{
    return m_approval.HasButton || !m_approval.IsAutomatic;
}

bool cApprovalWait::IsDue() const
{
    return SecondsLeft() == 0 && (m_approval.IsAutomatic || m_isWished);
}

// Also right while the clock was set back in between.
qint64 cApprovalWait::SecondsLeft() const
{
    const qint64 wait = std::max(m_approval.WaitSeconds, 0);
    return std::clamp<qint64>(wait - m_start.secsTo(m_clock.Now()), 0, wait);
}
