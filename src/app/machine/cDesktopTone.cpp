#include "app/machine/cDesktopTone.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString settings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString scheme = QStringLiteral("color-scheme");

} // namespace

cDesktopTone::cDesktopTone(const QDBusConnection& bus, QObject* parent) : QObject(parent), m_bus(bus)
{
    qRegisterMetaType<QDBusVariant>(); // the bus finds a slot by the names of its types, and knows no others
    m_bus.connect(service, path, settings, u"SettingChanged"_s, this, SLOT(TakeChange(QString, QString, QDBusVariant)));
    Ask();
}

// Not waited for: a portal that has to be started first may take its time, and the window shall not.
void cDesktopTone::Ask()
{
    QDBusMessage question = QDBusMessage::createMethodCall(service, path, settings, u"Read"_s);
    question << appearance << scheme;
    auto* answer = new QDBusPendingCallWatcher(m_bus.asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *answer;
        if (reply.isValid()) {
            Take(reply.value().variant());
        }
    });
}

void cDesktopTone::TakeChange(const QString& space, const QString& key, const QDBusVariant& value)
{
    if (space == appearance && key == scheme) {
        Take(value.variant());
    }
}

void cDesktopTone::Take(const QVariant& value)
{
    QVariant number = value;
    while (number.canConvert<QDBusVariant>()) { // this question is answered in a wrapping more than the other ones
        number = number.value<QDBusVariant>().variant();
    }
    const eTone tone = number.toUInt() == 1 ? eTone::Dark : number.toUInt() == 2 ? eTone::Light : eTone::Unknown;
    if (tone != m_tone) {
        m_tone = tone;
        Q_EMIT ToneChanged();
    }
}
