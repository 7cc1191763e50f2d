#include "cli/console/modSecretLine.h"

#include "cli/console/cConsoleUser.h"

#include <QByteArray>

#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <span>

namespace {

constexpr std::array endings{SIGINT, SIGTERM, SIGHUP, SIGQUIT};
constexpr std::array signals{SIGINT, SIGTERM, SIGHUP, SIGQUIT, SIGTSTP};
volatile std::sig_atomic_t caught = 0;

void Catch(int signal)
{
    caught = signal;
}

// Signals are caught, and get through only while something is waited for.
class cCaughtSignals
{
public:
    explicit cCaughtSignals(std::span<const int> which) : m_which(which)
    {
        sigset_t held;
        sigemptyset(&held);
        struct sigaction action = {};
        action.sa_handler = Catch;
        caught = 0;
        for (std::size_t i = 0; i < m_which.size(); ++i) {
            sigaddset(&held, m_which[i]);
            sigaction(m_which[i], &action, &m_actions.at(i));
        }
        sigprocmask(SIG_BLOCK, &held, &m_mask);
    }
    cCaughtSignals(const cCaughtSignals&) = delete;
    cCaughtSignals& operator=(const cCaughtSignals&) = delete;
    ~cCaughtSignals()
    {
        for (std::size_t i = 0; i < m_which.size(); ++i) {
            sigaction(m_which[i], &m_actions.at(i), nullptr);
        }
        sigprocmask(SIG_SETMASK, &m_mask, nullptr);
    }

    // As ppoll: negative with EINTR when a signal came.
    [[nodiscard]] int Poll(pollfd* file, const timespec* time) const
    {
        return ppoll(file, file == nullptr ? 0 : 1, time, &m_mask);
    }

private:
    std::span<const int> m_which;
    sigset_t m_mask{};
    std::array<struct sigaction, signals.size()> m_actions{};
};

// A terminal that does not show what is typed. No signal finds it still silent.
class cSilentTerminal
{
public:
    explicit cSilentTerminal(int file) : m_file(file)
    {
        m_isSilent = isatty(file) != 0 && tcgetattr(file, &m_before) == 0;
        if (m_isSilent) {
            termios silent = m_before;
            silent.c_lflag &= ~static_cast<tcflag_t>(ECHO);
            silent.c_lflag |= ECHONL; // else the next message begins behind the prompt
            tcsetattr(file, TCSAFLUSH, &silent);
        }
    }
    cSilentTerminal(const cSilentTerminal&) = delete;
    cSilentTerminal& operator=(const cSilentTerminal&) = delete;
    ~cSilentTerminal()
    {
        if (m_isSilent) {
            tcsetattr(m_file, TCSAFLUSH, &m_before);
        }
    }

    [[nodiscard]] bool IsSilent() const { return m_isSilent; }

    // False when a signal came instead.
    [[nodiscard]] bool WaitForInput() const
    {
        pollfd poll{m_file, POLLIN, 0};
        while (caught == 0 && m_signals.Poll(&poll, nullptr) < 0 && errno == EINTR) {}
        return caught == 0;
    }

private:
    cCaughtSignals m_signals{signals};
    int m_file;
    bool m_isSilent = false;
    termios m_before{};
};

enum class eLine { Read, None, Signal };

eLine ReadLine(int file, const QString& prompt, QByteArray& line)
{
    const cSilentTerminal terminal(file);
    if (terminal.IsSilent()) {
        modConsole::Error(prompt);
    }
    char byte = 0;
    while (terminal.WaitForInput()) {
        const ssize_t count = ::read(file, &byte, 1);
        if (count <= 0) {
            return line.isEmpty() ? eLine::None : eLine::Read;
        }
        if (byte == '\n') {
            return eLine::Read;
        }
        if (line.size() < line.capacity()) { // a growing copy would leave parts behind; no PIN is that long
            line.append(byte);
        }
    }
    return eLine::Signal;
}

enum class eEnding { OfProgram, OfQuestion };

// False at the end of the input. A signal ends the program, or the question only, or stops the program; a stopped one
// asks again when it goes on.
bool ReadWhole(int file, const QString& prompt, QByteArray& line, eEnding ending)
{
    constexpr qsizetype longest = 400;
    line.reserve(longest);
    eLine outcome = ReadLine(file, prompt, line);
    while (outcome == eLine::Signal && (ending == eEnding::OfProgram || caught == SIGTSTP)) {
        cSecret::Wipe(line);
        line.reserve(longest);
        std::raise(caught);
        outcome = ReadLine(file, prompt, line);
    }
    return outcome == eLine::Read;
}

} // namespace

std::optional<cSecret> modSecretLine::Read(int file, const QString& prompt)
{
    QByteArray line;
    const bool isRead = ReadWhole(file, prompt, line, eEnding::OfProgram);
    if (line.endsWith('\r')) {
        line.chop(1);
    }
    QString text = QString::fromUtf8(line);
    std::optional<cSecret> secret;
    if (isRead && !text.isEmpty()) {
        secret = cSecret(text);
    }
    cSecret::Wipe(text);
    cSecret::Wipe(line);
    return secret;
}

bool modSecretLine::Press(const QString& prompt)
{
    QByteArray line;
    const bool isRead = ReadWhole(STDIN_FILENO, prompt, line, eEnding::OfQuestion);
    cSecret::Wipe(line); // what is typed in the wrong place may be one
    return isRead;
}

bool modSecretLine::Wait(const QString& text, int seconds)
{
    const cCaughtSignals held(endings);
    modConsole::Error(text);
    const timespec time{seconds, 0};
    (void)held.Poll(nullptr, &time); // only a signal cuts it short
    return caught == 0;
}

bool modSecretLine::HasTerminal()
{
    return isatty(STDIN_FILENO) != 0;
}
