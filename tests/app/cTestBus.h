#pragma once

#include <QProcess>
#include <QString>

class cTestBus
{
public:
    cTestBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (m_daemon.waitForReadyRead()) {
            Address = QString::fromUtf8(m_daemon.readLine()).trimmed();
        }
    }
    cTestBus(const cTestBus&) = delete;
    cTestBus& operator=(const cTestBus&) = delete;
    ~cTestBus()
    {
        m_daemon.terminate();
        m_daemon.waitForFinished();
    }

    QString Address;

private:
    QProcess m_daemon;
};
