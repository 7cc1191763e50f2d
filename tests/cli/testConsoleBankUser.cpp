#include "cli/console/cConsoleBankUser.h"
#include "support/cTestClass.h"

#include <QFile>
#include <QTemporaryDir>

#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <functional>

using namespace Qt::Literals::StringLiterals;

namespace {

// A person at a terminal, in front of a process that does `work`: waits for a text on the screen, then types.
class cTerminal
{
public:
    explicit cTerminal(const std::function<int()>& work)
    {
        m_child = forkpty(&m_screen, nullptr, nullptr, nullptr);
        if (m_child == 0) {
            _exit(work());
        }
    }
    cTerminal(const cTerminal&) = delete;
    cTerminal& operator=(const cTerminal&) = delete;
    ~cTerminal()
    {
        ::kill(m_child, SIGKILL);
        ::waitpid(m_child, nullptr, 0);
        ::close(m_screen);
    }

    // False when the text does not come so many times.
    [[nodiscard]] bool WaitFor(const QByteArray& text, qsizetype times = 1)
    {
        while (m_seen.count(text) < times && ReadMore()) {}
        return m_seen.count(text) >= times;
    }

    void Type(const QByteArray& keys) const { QVERIFY(::write(m_screen, keys.constData(), size_t(keys.size())) > 0); }

    [[nodiscard]] bool IsSilent() const
    {
        termios now{};
        return tcgetattr(m_screen, &now) == 0 && (now.c_lflag & ECHO) == 0;
    }

    // How the process ended, as waitpid says it.
    [[nodiscard]] int End()
    {
        while (ReadMore()) {}
        int status = -1;
        ::waitpid(m_child, &status, 0);
        return status;
    }

    [[nodiscard]] const QByteArray& Seen() const { return m_seen; }

private:
    bool ReadMore()
    {
        constexpr int longest = 20000; // milliseconds; only a fault takes that long
        pollfd poll{m_screen, POLLIN, 0};
        char bytes[1024];
        const ssize_t count = ::poll(&poll, 1, longest) > 0 ? ::read(m_screen, bytes, sizeof bytes) : 0;
        m_seen.append(bytes, count > 0 ? count : 0);
        return count > 0;
    }

    int m_screen = -1;
    pid_t m_child = -1;
    QByteArray m_seen;
};

cPinQuestion Pin()
{
    return {.Bank = u"Sparkasse Ahornstadt"_s, .BankCode = u"12345678"_s, .UserId = u"kunde1"_s, .UserIdLabel = {}};
}

cTanQuestion Tan(eTanDisplay display)
{
    cTanQuestion question;
    question.Bank = u"Sparkasse Ahornstadt"_s;
    question.Label = u"TAN-Eingabe:"_s;
    question.Challenge = u"Umsatzabfrage\x1b[2J\r\nKonto 4711"_s;
    question.Display = display;
    question.ByHand = QStringList{u"87151313"_s, u"1,00"_s};
    question.Picture = "bild";
    question.PictureType = u"image/png"_s;
    question.MostCharacters = 6;
    question.IsNumber = true;
    return question;
}

// An open file with these lines, from its beginning.
int FileWith(const QByteArray& lines)
{
    int ends[2];
    if (::pipe(ends) != 0 || ::write(ends[1], lines.constData(), size_t(lines.size())) != lines.size()) {
        qFatal("no pipe");
    }
    ::close(ends[1]);
    return ends[0];
}

QString Text(const std::optional<cSecret>& secret)
{
    return secret ? secret->Characters().toString() : u"(none)"_s;
}

constexpr int good = 7;

int AskPin(const QString& expected)
{
    cConsoleBankUser user({});
    return Text(user.AskPin(Pin())) == expected ? good : 1;
}

} // namespace

class testConsoleBankUser final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PinIsTypedWithoutBeingShown()
    {
        cTerminal terminal([] { return AskPin(u"geheim ä"_s); });
        QVERIFY(terminal.WaitFor("PIN (wird nicht angezeigt):"));
        QVERIFY(terminal.IsSilent());
        terminal.Type("geheim ä\n");
        QCOMPARE(WEXITSTATUS(terminal.End()), good);
        QVERIFY(!terminal.Seen().contains("geheim"));
        QVERIFY(terminal.Seen().contains("Anmeldename: kunde1"));
    }

    void TerminalIsSetBackBeforeASignalEndsTheProgram()
    {
        cTerminal terminal([] { return AskPin({}); });
        QVERIFY(terminal.WaitFor("PIN (wird nicht angezeigt):"));
        terminal.Type("geh\x03");
        const int status = terminal.End();
        QVERIFY(WIFSIGNALED(status));
        QCOMPARE(WTERMSIG(status), SIGINT);
        QVERIFY(!terminal.IsSilent());
    }

    void StoppedProgramAsksAgain()
    {
        cTerminal terminal([] { return AskPin(u"4711"_s); });
        QVERIFY(terminal.WaitFor("PIN (wird nicht angezeigt):"));
        terminal.Type("geh\x1a");
        // Without a shell that could let it go on the system does not really stop it.
        QVERIFY(terminal.WaitFor("PIN (wird", 2));
        terminal.Type("4711\n");
        QCOMPARE(WEXITSTATUS(terminal.End()), good);
    }

    void LinesComeFromOpenFiles()
    {
        const int file = FileWith("eins\r\nzwei\n12 34 56\n\n1234567\n");
        cConsoleBankUser user({.PinFd = file, .TanFd = file});
        QCOMPARE(Text(user.AskPin(Pin())), u"eins"_s);
        QCOMPARE(Text(user.AskPin(Pin())), u"zwei"_s);
        QCOMPARE(Text(user.AskTan(Tan(eTanDisplay::Text))), u"123456"_s);
        QCOMPARE(Text(user.AskTan(Tan(eTanDisplay::Text))), u"(none)"_s);
        QCOMPARE(Text(user.AskTan(Tan(eTanDisplay::Text))), u"(none)"_s); // too long, and no line after it
        QCOMPARE(Text(user.AskPin(Pin())), u"(none)"_s);
        cConsoleBankUser closed({.PinFd = 4711});
        QCOMPARE(Text(closed.AskPin(Pin())), u"(none)"_s);
    }

    void TanIsAskedForWithItsChallenge()
    {
        cTerminal terminal([] {
            cConsoleBankUser user({});
            return Text(user.AskTan(Tan(eTanDisplay::Flicker))) == u"123456"_s ? good : 1;
        });
        QVERIFY(terminal.WaitFor("TAN-Eingabe:"));
        QVERIFY(terminal.IsSilent());
        QVERIFY(terminal.Seen().contains("Umsatzabfrage[2J\r\nKonto 4711"));
        QVERIFY(terminal.Seen().contains("von Hand ein, eins nach dem anderen:\r\n  87151313\r\n  1,00\r\n"));
        terminal.Type("1234567\n");
        QVERIFY(terminal.WaitFor("Das kann keine TAN sein. Höchstens 6 Ziffern"));
        QVERIFY(terminal.WaitFor("TAN-Eingabe:", 2)); // what is typed before is not read
        terminal.Type("123 456\n");
        QCOMPARE(WEXITSTATUS(terminal.End()), good);
        QVERIFY(!terminal.Seen().contains("123"));
    }

    void PictureIsWritten()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"tan.png"_s);
        const int file = FileWith("123456\n654321\n");
        cConsoleBankUser user({.TanFd = file, .TanImage = path});
        QCOMPARE(Text(user.AskTan(Tan(eTanDisplay::Picture))), u"123456"_s);
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.readAll(), QByteArray("bild"));
        // Without a place for the picture there is no TAN to be typed.
        cConsoleBankUser blind({.TanFd = file});
        QCOMPARE(Text(blind.AskTan(Tan(eTanDisplay::Picture))), u"(none)"_s);
    }

    void ApprovalIsWaitedFor()
    {
        cTerminal terminal([] {
            int slept = 0;
            cConsoleBankUser user({.Wait = [&](const QString&, int seconds) {
                slept += seconds;
                return true;
            }});
            cApproval approval;
            approval.Challenge = u"Umsatzabfrage"_s;
            approval.WaitSeconds = 5;
            const bool isFirst = user.WaitForApproval(approval) == eApproval::AskBank;
            approval.Asked = 1;
            approval.IsAutomatic = false; // only when the user says so
            const bool isSecond = user.WaitForApproval(approval) == eApproval::AskBank;
            return isFirst && isSecond && slept == 10 ? good : 1;
        });
        QVERIFY(terminal.WaitFor("sobald Sie freigegeben haben."));
        QCOMPARE(terminal.Seen().count("Umsatzabfrage"), 1);
        terminal.Type("\n");
        QCOMPARE(WEXITSTATUS(terminal.End()), good);
    }

    // The program goes on, so that it can take leave of the bank.
    void SignalEndsTheWaitOnly()
    {
        for (const bool isAutomatic : {true, false}) {
            cTerminal terminal([=] {
                cConsoleBankUser user({});
                cApproval approval;
                approval.WaitSeconds = 10000;
                approval.IsAutomatic = isAutomatic;
                return user.WaitForApproval(approval) == eApproval::Cancel && user.IsCancelled() ? good : 1;
            });
            QVERIFY(terminal.WaitFor(isAutomatic ? "Warten auf die Freigabe" : "Eingabetaste"));
            terminal.Type("\x03");
            QCOMPARE(WEXITSTATUS(terminal.End()), good);
        }
    }
};

TEST_CLASS(testConsoleBankUser, QCoreApplication)
#include "testConsoleBankUser.moc"
