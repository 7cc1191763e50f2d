#include "app/cUpdateWindows.h"

#include "base/cUser.h"
#include "core/cBookTools.h"
#include "core/modMaker.h"
#include "net/cQtHttps.h"
#include "views/help/cUpdateCheck.h"
#include "windows/help/frmUpdate.h"

#include <QApplication>
#include <QScopedValueRollback>

using namespace std::chrono_literals;

namespace {

cQtHttps::cLimits Limits()
{
    cQtHttps::cLimits limits;
    limits.Silence = 20s; // who waits here can go on without an answer
    return limits;
}

cUpdateCheck::cEdition Edition()
{
    return {modMaker::UpdateAddress(), QCoreApplication::applicationVersion()};
}

QString Obstacle()
{
    return cUpdateCheck::Obstacle(modMaker::HasUpdateCheck(), modMaker::UpdateAddress());
}

} // namespace

void cUpdateWindows::Open(QWidget* parent)
{
    if (const QString obstacle = Obstacle(); !obstacle.isEmpty()) {
        m_tools.User.Show(eTone::Information, obstacle);
        return;
    }
    cQtHttps https(Limits());
    cUpdateCheck check(m_tools, m_configuration, https, Edition());
    frmUpdate(check, parent).exec();
}

void cUpdateWindows::AfterStart()
{
    if (!Obstacle().isEmpty()) {
        return;
    }
    cUpdateSchedule schedule(m_tools, m_configuration);
    schedule.AskOnce();
    if (!schedule.IsDue()) {
        return;
    }
    cQtHttps https(Limits());
    cUpdateCheck check(m_tools, m_configuration, https, Edition());
    {
        const QScopedValueRollback looking(m_looking, &check);
        check.Look();
    }
    if (check.HasNews()) {
        frmUpdate(check, QApplication::activeWindow()).exec();
    }
}

void cUpdateWindows::Cancel()
{
    if (m_looking != nullptr) {
        m_looking->Cancel();
    }
}
