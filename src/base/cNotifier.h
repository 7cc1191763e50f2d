#pragma once

#include <QString>

// Short notes that the desktop shows beside whatever is being done.
class cNotifier
{
public:
    cNotifier() = default;
    cNotifier(const cNotifier&) = delete;
    cNotifier& operator=(const cNotifier&) = delete;
    virtual ~cNotifier() = default;

    // Hands a note over and does not wait for it to be seen. False when the desktop shows none.
    virtual bool Notify(const QString& title, const QString& text) = 0;
};
