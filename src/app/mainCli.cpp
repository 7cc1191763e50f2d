#include "app/machine/modCliProgram.h"
#include "app/machine/modLocale.h"

#include <QCoreApplication>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

namespace {

// A reader that goes away ends no command in the middle of its work. And where an output was closed beforehand, no file
// gets its number and the messages with it: it is opened for reading, so that what is written there is noticed as lost.
void PrepareOutputs()
{
    std::signal(SIGPIPE, SIG_IGN);
    for (const int output : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(output, F_GETFD) < 0) {
            (void)open("/dev/null", O_RDONLY); // takes the lowest free number
        }
    }
}

} // namespace

int main(int argc, char* argv[])
{
    PrepareOutputs();
    modLocale::UseUtf8();
    const QCoreApplication application(argc, argv);
    return modCliProgram::Run(argv, nullptr, nullptr);
}
