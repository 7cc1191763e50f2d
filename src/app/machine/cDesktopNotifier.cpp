#include "app/machine/cDesktopNotifier.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QVariantMap>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString service = QStringLiteral("org.freedesktop.Notifications");
const QString path = QStringLiteral("/org/freedesktop/Notifications");

} // namespace

bool cDesktopNotifier::HasService() const
{
    const QDBusConnectionInterface* names = m_bus.isConnected() ? m_bus.interface() : nullptr;
    return names != nullptr
        && (names->isServiceRegistered(service).value() || names->activatableServiceNames().value().contains(service));
}

// Sent without waiting for the answer: a service that has to be started first may take its time.
bool cDesktopNotifier::Notify(const QString& title, const QString& text)
{
    if (!HasService()) {
        return false;
    }
    constexpr uint replacesNone = 0;
    constexpr int desktopDecides = -1; // how long it is shown
    QDBusMessage note = QDBusMessage::createMethodCall(service, path, service, u"Notify"_s);
    // Services may take the text for markup; the title is always plain.
    note << u"Kontorelle"_s << replacesNone << u"de.veltrino.Kontorelle"_s << title << text.toHtmlEscaped()
         << QStringList() << QVariantMap{{u"desktop-entry"_s, u"de.veltrino.Kontorelle"_s}} << desktopDecides;
    return m_bus.send(note);
}
