#include "app/cLogWindows.h"

#include "app/machine/modBuild.h"
#include "core/cBook.h"
#include "core/cBookTools.h"
#include "views/book/cBookFlow.h"
#include "views/help/cErrorLogView.h"
#include "views/help/modBroken.h"
#include "views/help/modDiagnosis.h"
#include "windows/help/frmFehlerprotokoll.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

using namespace Qt::Literals::StringLiterals;

QString cLogWindows::Diagnosis() const
{
    const QScreen& screen = *QGuiApplication::primaryScreen();
    const QString surface =
        u"%1, %2, %3 x %4, %5 %, %6 pt"_s.arg(QGuiApplication::platformName(), QApplication::style()->name())
            .arg(screen.size().width())
            .arg(screen.size().height())
            .arg(qRound(screen.devicePixelRatio() * 100))
            .arg(QApplication::font().pointSize());
    return modDiagnosis::Text(
        {m_parts.Shell, m_parts.Configuration, u"Kontorelle "_s + modBuild::Version(), m_parts.Book.Path(), {surface}});
}

void cLogWindows::OpenLog(QWidget* parent) const
{
    cErrorLogView log({m_parts.Log, m_parts.Tools.User, m_parts.Shell, m_parts.Tools.Clock, Diagnosis()});
    frmFehlerprotokoll form(log, parent);
    form.exec();
}

void cLogWindows::SendFeedback() const
{
    cErrorLogView({m_parts.Log, m_parts.Tools.User, m_parts.Shell, m_parts.Tools.Clock, Diagnosis()}).Send();
}

void cLogWindows::TellBroken(cBookFlow& books, QWidget* parent) const
{
    const std::optional<cErrorLog::cBroken> broken = m_parts.Log.TakeBroken();
    if (!broken) {
        return;
    }
    switch (modBroken::Ask(m_parts.Tools.User, {broken->Last, broken->IsCrash, books.NewestCopyDay()})) {
    case modBroken::eWish::Log: OpenLog(parent); break;
    case modBroken::eWish::Backup: books.LoadNewestCopy(); break;
    case modBroken::eWish::Nothing: break;
    }
}
