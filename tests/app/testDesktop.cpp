#include "app/cAppearance.h"
#include "app/machine/cDesktopNotifier.h"
#include "cTestBus.h"
#include "model/modSettingKey.h"
#include "support/cTestClass.h"
#include "support/fakes.h"
#include "windows/look/modPalette.h"
#include "windows/look/modTone.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusVariant>
#include <QLabel>
#include <QStringList>
#include <QVariantMap>

using namespace Qt::Literals::StringLiterals;

namespace {

class cFakePortal final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    uint Scheme = 1;

public Q_SLOTS:
    [[nodiscard]] QDBusVariant Read(const QString& space, const QString& key) const
    {
        const bool isKnown = space == u"org.freedesktop.appearance"_s && key == u"color-scheme"_s;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(isKnown ? Scheme : 0U)));
    }

Q_SIGNALS:
    // The generated definition has names of its own.
    // NOLINTNEXTLINE(readability-inconsistent-declaration-parameter-name)
    void SettingChanged(const QString& space, const QString& key, const QDBusVariant& value);
};

bool IsDark()
{
    return modTone::IsDark(QApplication::palette());
}

void Choose(cFakeRegistry& registry, const QString& word)
{
    cConfiguration(registry).SaveSetting(modSettingKey::Appearance, word, eSettingPlace::Registry);
}

// What stands for the notes of the desktop on the bus.
class cFakeNotes final : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    QStringList Texts;

public Q_SLOTS:
    // The signature is the interface's.
    // NOLINTNEXTLINE(readability-function-size)
    uint Notify(const QString& program, uint /*replaces*/, const QString& /*icon*/, const QString& title,
                const QString& text, const QStringList& /*actions*/, const QVariantMap& /*hints*/, int /*timeout*/)
    {
        Texts += {program, title, text};
        return 1;
    }
};

} // namespace

// The colours of the desktop are followed, and notes arrive there.
class testDesktop final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() const { QApplication::setPalette(QPalette()); }

    void OpenWindowsFollow() const
    {
        QVERIFY(!IsDark());
        QWidget window;
        QLabel plain(&window);
        QLabel toned(&window);
        modTone::Use(toned, modTone::Expense);
        window.show();
        const QColor light = toned.palette().color(QPalette::WindowText);

        cFakeRegistry registry;
        Choose(registry, u"Dunkel"_s);
        cAppearance appearance(registry);
        QVERIFY(IsDark());
        QTRY_VERIFY(modTone::IsDark(plain.palette()));
        QCOMPARE(plain.palette().color(QPalette::WindowText), modPalette::Dark().color(QPalette::WindowText));
        QCOMPARE(toned.palette().color(QPalette::WindowText), modTone::Expense(modPalette::Dark()));

        Choose(registry, u"Hell"_s);
        appearance.Apply();
        QVERIFY(QApplication::palette() == modPalette::Light()); // no desktop names colours here
        QTRY_COMPARE(toned.palette().color(QPalette::WindowText), light);
        modTone::Use(toned, nullptr);
        QCOMPARE(toned.palette().color(QPalette::WindowText), plain.palette().color(QPalette::WindowText));
    }

    void DesktopIsFollowed() const
    {
        const cTestBus bus;
        QVERIFY(!bus.Address.isEmpty());
        QDBusConnection server = QDBusConnection::connectToBus(bus.Address, u"portal"_s);
        QDBusConnection client = QDBusConnection::connectToBus(bus.Address, u"program"_s);
        QVERIFY(server.isConnected() && client.isConnected());
        cFakePortal portal;
        QVERIFY(server.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
                                      QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
        QVERIFY(server.registerService(u"org.freedesktop.portal.Desktop"_s));
        const auto say = [&](const QString& key, uint value) {
            Q_EMIT portal.SettingChanged(u"org.freedesktop.appearance"_s, key, QDBusVariant(value));
        };

        cFakeRegistry registry;
        cAppearance appearance(registry);
        QVERIFY(!IsDark());
        appearance.FollowDesktop(client);
        QTRY_VERIFY(IsDark());
        say(u"contrast"_s, 2); // is about something else
        say(u"color-scheme"_s, 2);
        QTRY_VERIFY(!IsDark());
        say(u"color-scheme"_s, 1);
        QTRY_VERIFY(IsDark());

        Choose(registry, u"Hell"_s); // the user goes before the desktop
        appearance.Apply();
        QVERIFY(!IsDark());
        Choose(registry, u"System"_s);
        appearance.Apply();
        QVERIFY(IsDark());
        QDBusConnection::disconnectFromBus(u"portal"_s);
        QDBusConnection::disconnectFromBus(u"program"_s);
    }

    void HandsNotesOver()
    {
        const cTestBus bus;
        QVERIFY(!bus.Address.isEmpty());
        QDBusConnection desktop = QDBusConnection::connectToBus(bus.Address, u"desktop"_s);
        const QDBusConnection client = QDBusConnection::connectToBus(bus.Address, u"notifier"_s);
        cDesktopNotifier notifier(client);
        QVERIFY(!notifier.Notify(u"Kontorelle"_s, u"niemand da"_s));
        QVERIFY(!cDesktopNotifier(QDBusConnection(u"kein Bus"_s)).Notify(u"Kontorelle"_s, u"kein Bus"_s));
        cFakeNotes notes;
        QVERIFY(desktop.registerObject(u"/org/freedesktop/Notifications"_s, &notes, QDBusConnection::ExportAllSlots));
        QVERIFY(desktop.registerService(u"org.freedesktop.Notifications"_s));
        QVERIFY(notifier.Notify(u"Das steht an"_s, u"Miete & Strom <heute>"_s));
        const QStringList expected{u"Kontorelle"_s, u"Das steht an"_s, u"Miete &amp; Strom &lt;heute&gt;"_s};
        QTRY_COMPARE(notes.Texts, expected);
        QDBusConnection::disconnectFromBus(u"desktop"_s);
        QDBusConnection::disconnectFromBus(u"notifier"_s);
    }
};

TEST_CLASS(testDesktop, QApplication)
#include "testDesktop.moc"
