#pragma once

#include <QDate>
#include <QDateTime>

class cUser;

// What is said at the start after a run that was not ended properly.
namespace modBroken {

struct cRun
{
    QDateTime Last;       // its last sign of life
    bool IsCrash = false; // else nobody knows whether it crashed, was killed, or the machine went off
    QDate Copy{};         // day of the newest copy of the book; invalid: there is none
};

enum class eWish { Nothing, Log, Backup };

[[nodiscard]] eWish Ask(cUser& user, const cRun& run);

} // namespace modBroken
