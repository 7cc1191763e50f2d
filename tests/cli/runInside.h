#pragma once

#include "app/machine/cFileLock.h"
#include "app/machine/cQtRegistry.h"
#include "app/machine/cQtShell.h"
#include "base/cClock.h"
#include "base/cHttps.h"
#include "cli/call/cCliPaint.h"
#include "cli/call/modCliCommands.h"
#include "cli/modCliMain.h"

#include <unistd.h>

#include <array>

class cNoPaint final : public cCliPaint
{
public:
    QByteArray PaintReport(const QString& /*html*/, QDate /*today*/) override { return {}; }
    QByteArray PaintChart(const cChartData& /*chart*/, ePicture /*picture*/) override { return {}; }
};

// A machine on which the program runs in this process, with a bank in place of the network.
struct cCliMachine
{
    QString Folder;
    const cClock& Clock;
    cHttps& Https;
    QByteArray Pin; // comes through a pipe, as from a script
};

// The exit code; "PIN" among the arguments is where the PIN can be read.
inline int RunInside(const cCliMachine& machine, QStringList arguments)
{
    std::array<int, 2> ends{};
    const auto size = static_cast<size_t>(machine.Pin.size());
    if (pipe(ends.data()) != 0 || write(ends[1], machine.Pin.constData(), size) != machine.Pin.size()) {
        qFatal("no pipe");
    }
    close(ends[1]);
    cQtShell shell(machine.Folder);
    cQtRegistry registry(machine.Folder);
    cFileLock lock;
    cNoPaint paint;
    const QString version = QStringLiteral("1.0.0");
    const int code = modCliMain::Run(arguments.replaceInStrings(QStringLiteral("PIN"), QString::number(ends[0])),
                                     {shell, registry, machine.Clock, lock, &paint, &machine.Https, version, version});
    close(ends[0]);
    return code;
}
