#pragma once

#include <QDateTime>
#include <QString>

// One line of the error log.
struct cLogEntry
{
    QDateTime Time;
    QString Program;   // "kontorelle" or "kontorelle-cli"
    QString Version;   // of the program, with the state of the source
    QString Operation; // what was being done; may be empty
    QString Text;

    friend bool operator==(const cLogEntry&, const cLogEntry&) = default;
};
