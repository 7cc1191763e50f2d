#include "cli/console/cConsoleBankUser.h"

#include "base/cText.h"
#include "cli/console/cConsoleUser.h"
#include "cli/console/modSecretLine.h"
#include "views/bank/modBankQuestion.h"
#include "views/common/modFileWrite.h"

#include <unistd.h>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// The line of the option's file, else the one that is typed. Says so when neither can be had.
std::optional<cSecret> Line(int file, const QString& prompt, const QString& missing)
{
    if (file >= 0 || modSecretLine::HasTerminal()) {
        std::optional<cSecret> line = modSecretLine::Read(file >= 0 ? file : STDIN_FILENO, prompt);
        if (line || file < 0) {
            return line; // an empty line at the terminal gives up
        }
    }
    modConsole::Error(missing);
    return std::nullopt;
}

QString Head(const QString& bank, const QString& way)
{
    return way.isEmpty() ? bank : bank + u" ("_s + way + u')';
}

} // namespace

cConsoleBankUser::cConsoleBankUser(cOptions options) : m_options(std::move(options))
{
    if (!m_options.Wait) {
        m_options.Wait = modSecretLine::Wait;
    }
}

std::optional<cSecret> cConsoleBankUser::AskPin(const cPinQuestion& question)
{
    if (m_options.PinFd < 0) {
        modConsole::Error(Head(question.Bank, modBankQuestion::Login(question)));
    }
    return Line(m_options.PinFd, cText::Tr("PIN (wird nicht angezeigt):"),
                m_options.PinFd < 0
                    ? cText::Tr("Die PIN lässt sich nur an einem Terminal eingeben. Sonst nennen Sie mit --pin-fd die "
                                "Nummer einer geöffneten Datei, in der sie als Zeile steht.")
                    : cText::Tr("In der Datei von --pin-fd steht keine weitere PIN."));
}

std::optional<cSecret> cConsoleBankUser::AskTan(const cTanQuestion& question)
{
    modConsole::Error(Head(question.Bank, modBankQuestion::Way(question.Procedure, question.Medium)));
    modConsole::Error(modBankQuestion::WayAndPurpose({}, question.Purpose));
    modConsole::Error(modBankQuestion::Words(question));
    if (question.IsUnreadable) {
        modConsole::Error(modBankQuestion::Unreadable());
    }
    if (question.Display == eTanDisplay::Picture && !ShowPicture(question)) {
        return std::nullopt;
    }
    if (question.Display == eTanDisplay::Flicker) {
        modConsole::Error(cText::Tr("Die Balken für den TAN-Generator lassen sich im Terminal nicht zeigen. Geben Sie "
                                    "an ihm von Hand ein, eins nach dem anderen:"));
        for (const QString& part : question.ByHand) {
            modConsole::Error(u"  "_s + part);
        }
    }
    return ReadTan(question);
}

// What cannot be a TAN of this procedure would only cost one of the few tries that the bank allows.
std::optional<cSecret> cConsoleBankUser::ReadTan(const cTanQuestion& question) const
{
    const QString missing = m_options.TanFd < 0
        ? cText::Tr("Die TAN lässt sich nur an einem Terminal eingeben. Sonst nennen Sie mit --tan-fd die Nummer einer "
                    "geöffneten Datei, in der sie als Zeile steht.")
        : cText::Tr("In der Datei von --tan-fd steht keine weitere TAN.");
    while (const std::optional<cSecret> line = Line(m_options.TanFd, question.Label, missing)) {
        QString typed = line->Characters().toString();
        int cursor = 0;
        const bool fits = modBankQuestion::Fit(question, typed, cursor) && !typed.isEmpty();
        cSecret tan(typed);
        cSecret::Wipe(typed);
        if (fits) {
            return tan;
        }
        modConsole::Error(cText::Tr("Das kann keine TAN sein. {0}", {modBankQuestion::Form(question)}));
    }
    return std::nullopt;
}

bool cConsoleBankUser::ShowPicture(const cTanQuestion& question) const
{
    if (m_options.TanImage.isEmpty()) {
        modConsole::Error(cText::Tr("Für diese TAN schickt die Bank ein Bild. Nennen Sie mit --tan-image die Datei, in "
                                    "die es geschrieben werden soll."));
        return false;
    }
    const QString reason = modFileWrite::Replace(m_options.TanImage, question.Picture);
    modConsole::Error(reason.isEmpty() ? cText::Tr("Das Bild für die TAN steht in der Datei {0} ({1}).",
                                                   {m_options.TanImage, question.PictureType})
                                       : modFileWrite::Failed(m_options.TanImage, reason));
    return reason.isEmpty();
}

eApproval cConsoleBankUser::WaitForApproval(const cApproval& approval)
{
    if (approval.Asked == 0) {
        modConsole::Error(Head(approval.Bank, modBankQuestion::Way(approval.Procedure, approval.Medium)));
        modConsole::Error(modBankQuestion::WayAndPurpose({}, approval.Purpose));
        modConsole::Error(modBankQuestion::Words(approval));
    }
    if (!approval.IsAutomatic && !AskWhenApproved()) {
        return eApproval::Cancel;
    }
    m_isCancelled = !m_options.Wait(cText::Tr("Warten auf die Freigabe…"), approval.WaitSeconds);
    return m_isCancelled ? eApproval::Cancel : eApproval::AskBank;
}

// Such a bank is asked only when the user says so.
bool cConsoleBankUser::AskWhenApproved()
{
    if (!modSecretLine::HasTerminal()) {
        modConsole::Error(
            cText::Tr("Diese Bank erlaubt keine selbsttätige Abfrage der Freigabe. Starten Sie den Befehl "
                      "bitte an einem Terminal."));
        return false;
    }
    m_isCancelled = !modSecretLine::Press(cText::Tr("Drücken Sie die Eingabetaste, sobald Sie freigegeben haben."));
    return !m_isCancelled;
}

void cConsoleBankUser::EndApproval()
{
}

void cConsoleBankUser::ShowStep(const QString& text)
{
    if (isatty(STDERR_FILENO) != 0) {
        modConsole::Error(text);
    }
}
