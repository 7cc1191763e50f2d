#include "app/cHelpWindows.h"

#include "core/modMaker.h"
#include "views/help/cManualBrowser.h"
#include "views/help/modManual.h"
#include "windows/help/frmHandbuch.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

namespace {

// Classes from the field with the focus outwards. What a window shows on its page comes before the window itself, also
// when the focus is elsewhere.
QStringList WindowsAround(const QWidget* focus)
{
    const QWidget* window = focus != nullptr ? focus->window() : nullptr;
    QStringList names;
    for (const QWidget* each = focus; each != window; each = each->parentWidget()) {
        names.append(QString::fromLatin1(each->metaObject()->className()));
    }
    const QList<QWidget*> parts = window != nullptr ? window->findChildren<QWidget*>() : QList<QWidget*>();
    for (const QWidget* part : parts) {
        if (part->isVisible() && part->window() == window) {
            names.append(QString::fromLatin1(part->metaObject()->className()));
        }
    }
    for (const QWidget* each = window; each != nullptr; each = each->parentWidget()) {
        names.append(QString::fromLatin1(each->metaObject()->className()));
    }
    return names;
}

} // namespace

cHelpWindows::cHelpWindows(cShell& shell, cUser& user) : m_shell(shell), m_user(user)
{
    QCoreApplication::instance()->installEventFilter(this);
}

cHelpWindows::~cHelpWindows() = default;

void cHelpWindows::Open(modCommand::eId command)
{
    const QWidget* focus = QApplication::focusWidget();
    const QStringList windows = WindowsAround(focus != nullptr ? focus : QApplication::activeWindow());
    Follow(modManual::AddressOf(command, modMaker::Homepage(), windows));
}

bool cHelpWindows::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) {
        return false;
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool isHelp = key->key() == Qt::Key_F1 && key->modifiers() == Qt::NoModifier;
    if (isHelp) {
        Follow(modManual::PlaceOf(WindowsAround(static_cast<QWidget*>(watched))));
    }
    return isHelp;
}

void cHelpWindows::Follow(const QString& address)
{
    Browser().Open(address);
    if (modManual::IsOutside(address)) {
        return;
    }
    if (!m_window) {
        m_window = std::make_unique<frmHandbuch>(Browser());
    }
    m_window->Present();
}

cManualBrowser& cHelpWindows::Browser()
{
    if (!m_browser) {
        m_browser = std::make_unique<cManualBrowser>(m_shell, m_user);
    }
    return *m_browser;
}
