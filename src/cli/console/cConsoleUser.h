#pragma once

#include "base/cUser.h"

#include <optional>

// The command line stands in for the user: messages go to the error output, and nobody can be asked. A question is
// answered with what the options of the command say to it; else it is shown with what to do instead, and answered with
// the answer that changes nothing.
class cConsoleUser final : public cUser
{
public:
    void Show(eTone tone, const QString& text, const QString& title = {}) override;
    [[nodiscard]] eAnswer Ask(const cQuestion& question) override;
    [[nodiscard]] std::optional<QString> Choose(const cChoice& choice) override;
    [[nodiscard]] int Decide(const cDecision& decision) override;
    [[nodiscard]] std::optional<QList<int>> Tick(const cChecklist& list) override; // all when the answer is yes
    [[nodiscard]] QStringList ChooseFiles(const QString& title, const QString& filter, ePurpose purpose) override;
    [[nodiscard]] QString ChooseSavePath(const QString& title, const QString& filter, const QString& proposal,
                                         ePurpose purpose = ePurpose::Export) override;
    [[nodiscard]] QString ChooseFolder(const QString& title, const QString& current) override;

    // What the options of the command answer beforehand.
    struct cAnswers
    {
        std::optional<eAnswer> Answer{};
        std::optional<int> Decision{};   // an option, counted from 0
        std::optional<QString> Choice{}; // has to be one of the items
        QString About{}; // the title of the decisions that this one answers; others get the first option
        QString Hint{};  // said after a question without answer: what to do about it
    };
    void Prepare(const cAnswers& answers) { m_answers = answers; }

    // True once a message of a failure was shown.
    [[nodiscard]] bool HasFailed() const { return m_hasFailed; }
    // True once anything was shown.
    [[nodiscard]] bool HasSpoken() const { return m_hasSpoken; }

private:
    void Refuse(const QString& question);

    cAnswers m_answers;
    bool m_hasFailed = false;
    bool m_hasSpoken = false;
};

// The two outputs of the program, in UTF-8 whatever the terminal is set to.
namespace modConsole {

// Texts of the book and of statements may hold signs that a terminal obeys; there they are shown as pictures of
// themselves. Files and pipes get the output as it is.
void Out(const QString& text);
void Error(const QString& text); // adds the line end

// What was said of errors so far; of very many the first ones.
[[nodiscard]] const QStringList& Errors();

// Writes out what is held back. False when some of the output is lost, after a message that says why; who stopped
// reading needs none.
[[nodiscard]] bool Finish();

} // namespace modConsole
