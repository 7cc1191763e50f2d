#include "app/machine/modCrash.h"

#include <signal.h> // NOLINT(modernize-deprecated-headers): sigaction is no part of the C++ header
#include <unistd.h>

#include <array>
#include <cstddef>
#include <cstring>

namespace {

volatile int noteFile = -1;
const char* noteText = nullptr;
std::size_t noteSize = 0;

// Only what is safe whatever state the program is in. The action is set back before the call, so raising the signal
// again ends the program in the usual way.
void NoteAndEnd(int number)
{
    if (noteFile >= 0) {
        [[maybe_unused]] const ssize_t written = write(noteFile, noteText, noteSize);
    }
    (void)raise(number);
}

} // namespace

void modCrash::Watch(int descriptor, const char* text)
{
    noteText = text;
    noteSize = std::strlen(text);
    noteFile = descriptor;
    // A stack of its own, for the case that the usual one has run over.
    static std::array<std::byte, std::size_t{64} * 1024> room;
    stack_t stack = {};
    stack.ss_sp = room.data();
    stack.ss_size = room.size();
    (void)sigaltstack(&stack, nullptr);
    struct sigaction action = {};
    action.sa_handler = NoteAndEnd;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_ONSTACK);
    for (const int number : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL}) {
        (void)sigaction(number, &action, nullptr);
    }
}
