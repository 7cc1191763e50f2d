#pragma once

#include "faults/cFaultScene.h"

#include <QList>
#include <QString>
#include <QStringList>

// Plays faults against a program: at each of its calls that change files a kill before the call, a kill in the middle
// of a write, a full disk, or a broken one. Afterwards the book must be whole and hold all of the action or nothing of
// it.
namespace modFaultRuns {

struct cAction
{
    QString Name;
    QStringList Arguments;
    QStringList Before;      // arguments that leave the book as it is when the action begins
    bool IsInParts = false;  // each row that it writes counts by itself
    bool HasSettings = true; // false: settings are stored on the way, which are nobody's step, and not compared
};

// Plays all actions as the arguments say, "[kill|torn|full|broken|all] [EVERY] [BOOKS]": every n-th call only, on so
// many different books. Prints the numbers. The exit status of the program: 1 when something was lost, doubled or half.
[[nodiscard]] int Play(const cFaultPrograms& programs, const QList<cAction>& actions, const QStringList& arrival,
                       const QStringList& arguments);

} // namespace modFaultRuns
