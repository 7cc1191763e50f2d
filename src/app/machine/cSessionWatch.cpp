#include "app/machine/cSessionWatch.h"

#include <QEvent>
#include <QGuiApplication>
#include <QSessionManager>

#ifdef Q_OS_UNIX
#include <QSocketNotifier>

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#endif

cSessionWatch::cSessionWatch(QObject* parent) : QObject(parent)
{
    WatchSignals();
    qApp->installEventFilter(this);
    connect(qApp, &QGuiApplication::commitDataRequest, this, [this](QSessionManager& manager) {
        manager.setRestartHint(QSessionManager::RestartNever); // the desktop would start it without its book
        m_isSessionEnding = true;
        Q_EMIT SaveRequested();
    });
}

bool cSessionWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (m_isSessionEnding && watched == qApp && event->type() == QEvent::Quit) {
        Q_EMIT EndRequested();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

#ifdef Q_OS_UNIX

namespace {

std::array<int, 2> wakePipe{-1, -1}; // a handler may do hardly more than write a byte

void Wake(int /*signal*/)
{
    const int error = errno;
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = ::write(wakePipe[1], &byte, 1); // a full pipe wakes as well
    errno = error;
}

} // namespace

void cSessionWatch::WatchSignals()
{
    if (wakePipe[0] < 0 && ::pipe2(wakePipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return; // then they end the program at once, as ever
    }
    auto* notifier = new QSocketNotifier(wakePipe[0], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::array<char, 16> bytes{};
        while (::read(wakePipe[0], bytes.data(), bytes.size()) > 0) {}
        Q_EMIT EndRequested();
    });
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction before
        {
        };
        struct sigaction action
        {
        };
        action.sa_handler = Wake;
        action.sa_flags = SA_RESTART;
        if (::sigaction(number, nullptr, &before) == 0 && before.sa_handler != SIG_IGN) {
            ::sigaction(number, &action, nullptr);
        }
    }
}

#else

void cSessionWatch::WatchSignals()
{
}

#endif
