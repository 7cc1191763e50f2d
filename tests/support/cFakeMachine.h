#pragma once

#include "support/cTestFile.h"
#include "support/fakes.h"

// A machine with a folder of files and nothing of the user's yet.
struct cFakeMachine
{
    [[nodiscard]] QString Path(const QString& name) const { return File.Path(name); }

    cTestFile File;
    cFakeShell Shell;
    cFakeUser User;
    cFakeRescue Rescue;
    cFakeClock Clock;
    cFakeRegistry Registry;
};
