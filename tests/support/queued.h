#pragma once

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

// Lets run what is queued, the timers without delay, and what these queue in turn. Rounds are counted, no milliseconds,
// so a busy machine changes nothing.
inline void RunQueued()
{
    for (int round = 0; round < 3; ++round) {
        QEventLoop loop;
        QTimer last; // timers that are due at once come in the order of their start
        QObject::connect(&last, &QTimer::timeout, &loop, &QEventLoop::quit);
        last.start(0);
        loop.exec();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); // which a loop leaves to the one around it
    }
}
