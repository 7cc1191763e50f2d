#include "app/machine/cDesktopNotifier.h"
#include "cTestBus.h"
#include "support/cTestClass.h"

#include <QCoreApplication>
#include <QStringList>
#include <QVariantMap>

using namespace Qt::Literals::StringLiterals;

namespace {

// What stands for the notes of the desktop on the bus.
class cFakeDesktop final : public QObject
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

// What arrives at the desktop, and that nothing happens where nobody would show it.
class testDesktopNotifier final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void HandsNotesOver()
    {
        const cTestBus bus;
        QVERIFY(!bus.Address.isEmpty());
        QDBusConnection desktop = QDBusConnection::connectToBus(bus.Address, u"desktop"_s);
        const QDBusConnection client = QDBusConnection::connectToBus(bus.Address, u"notifier"_s);
        cDesktopNotifier notifier(client);
        QVERIFY(!notifier.Notify(u"Kontorelle"_s, u"niemand da"_s));
        QVERIFY(!cDesktopNotifier(QDBusConnection(u"kein Bus"_s)).Notify(u"Kontorelle"_s, u"kein Bus"_s));
        cFakeDesktop notes;
        QVERIFY(desktop.registerObject(u"/org/freedesktop/Notifications"_s, &notes, QDBusConnection::ExportAllSlots));
        QVERIFY(desktop.registerService(u"org.freedesktop.Notifications"_s));
        QVERIFY(notifier.Notify(u"Das steht an"_s, u"Miete & Strom <heute>"_s));
        const QStringList expected{u"Kontorelle"_s, u"Das steht an"_s, u"Miete &amp; Strom &lt;heute&gt;"_s};
        QTRY_COMPARE(notes.Texts, expected);
        QDBusConnection::disconnectFromBus(u"desktop"_s);
        QDBusConnection::disconnectFromBus(u"notifier"_s);
    }
};

TEST_CLASS(testDesktopNotifier, QCoreApplication)
#include "testDesktopNotifier.moc"
