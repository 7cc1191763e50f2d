#pragma once

#include "base/cUser.h"

// The command line stands in for the user: messages go to the error output, and nobody can be asked. A question is
// shown with what to do instead, and answered with the answer that changes nothing.
class cConsoleUser final : public cUser
{
public:
    void Show(eTone tone, const QString& text, const QString& title = {}) override;
    [[nodiscard]] eAnswer Ask(const cQuestion& question) override;
    [[nodiscard]] std::optional<QString> Choose(const cChoice& choice) override;
    [[nodiscard]] int Decide(const cDecision& decision) override;
    [[nodiscard]] QStringList ChooseFiles(const QString& title, const QString& filter) override;
    [[nodiscard]] QString ChooseSavePath(const QString& title, const QString& filter, const QString& proposal) override;

    // True once a message of a failure was shown.
    [[nodiscard]] bool HasFailed() const { return m_hasFailed; }

private:
    bool m_hasFailed = false;
};

// The two outputs of the program, in UTF-8 whatever the terminal is set to.
namespace modConsole {

void Out(const QString& text);
void Error(const QString& text); // adds the line end

} // namespace modConsole
