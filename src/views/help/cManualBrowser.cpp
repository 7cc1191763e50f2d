#include "views/help/cManualBrowser.h"

#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "views/help/modManual.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

cManualBrowser::cManualBrowser(cShell& shell, cUser& user)
    : m_shell(shell),
      m_user(user),
      m_manual(shell.InstalledFile(modManual::Folder)),
      m_places{{modManual::First, {}, 0}}
{
}

void cManualBrowser::Open(const QString& address)
{
    if (modManual::IsOutside(address)) {
        OpenOutside(address);
        return;
    }
    const QString page = address.section(u'#', 0, 0);
    const QString anchor = address.section(u'#', 1);
    const cPlace wanted{page.isEmpty() ? Place().Page : page, anchor, -1};
    if (wanted.Page != Place().Page || wanted.Anchor != Place().Anchor) {
        m_places.resize(m_now + 1);
        m_places.append(wanted);
        ++m_now;
    } else {
        m_places[m_now].Position = -1;
    }
    Q_EMIT Opened();
}

void cManualBrowser::OpenOutside(const QString& address)
{
    if (!m_shell.OpenPage(address)) {
        m_user.Show(eTone::Exclamation,
                    cText::Tr("Es wurde kein Programm gefunden, das die Seite öffnet:\n{0}", {address}));
    }
}

QString cManualBrowser::Html() const
{
    const QString html = m_manual.Html(Place().Page);
    return !html.isEmpty() ? html
                           : u"<p>"_s
            + cText::Tr("Diese Seite des Handbuchs fehlt: {0}",
                        {QDir::toNativeSeparators(QDir(m_manual.Folder()).filePath(Place().Page)).toHtmlEscaped()})
            + u"</p>"_s;
}

int cManualBrowser::SectionNow() const
{
    const QList<cManual::cSection>& sections = m_manual.Sections();
    for (qsizetype i = 0; i < sections.size(); ++i) {
        const bool isThere = Place().Anchor.isEmpty() || sections.at(i).Anchor == Place().Anchor;
        if (sections.at(i).Page == Place().Page && isThere) {
            return static_cast<int>(i);
        }
    }
    return -1;
}

void cManualBrowser::GoBack()
{
    if (CanGoBack()) {
        --m_now;
        Q_EMIT Opened();
    }
}

void cManualBrowser::GoForward()
{
    if (CanGoForward()) {
        ++m_now;
        Q_EMIT Opened();
    }
}

void cManualBrowser::Leave(int position)
{
    m_places[m_now].Position = position;
}
