#pragma once

#include "base/cNotifier.h"

#include <QDBusConnection>

// Notes of the desktop, over the session bus.
class cDesktopNotifier final : public cNotifier
{
public:
    explicit cDesktopNotifier(const QDBusConnection& bus) : m_bus(bus) {}

    bool Notify(const QString& title, const QString& text) override;

private:
    [[nodiscard]] bool HasService() const; // running, or started by the bus when it is called

    QDBusConnection m_bus;
};
