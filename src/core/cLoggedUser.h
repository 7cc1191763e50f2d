#pragma once

#include "base/cUser.h"

class cErrorLog;

// The user of another port; what tells of a failure is also taken down in the log.
class cLoggedUser final : public cUser
{
public:
    // Both outlive it.
    cLoggedUser(cUser& user, cErrorLog& log) : m_user(user), m_log(log) {}

    void Show(eTone tone, const QString& text, const QString& title = {}) override;
    void Note(const QString& operation, const QString& text) override;
    [[nodiscard]] eAnswer Ask(const cQuestion& question) override;
    [[nodiscard]] std::optional<QString> Choose(const cChoice& choice) override;
    [[nodiscard]] int Decide(const cDecision& decision) override;
    [[nodiscard]] std::optional<QList<int>> Tick(const cChecklist& list) override;
    [[nodiscard]] QStringList ChooseFiles(const QString& title, const QString& filter, ePurpose purpose) override;
    [[nodiscard]] QString ChooseSavePath(const QString& title, const QString& filter, const QString& proposal,
                                         ePurpose purpose) override;
    [[nodiscard]] QString ChooseFolder(const QString& title, const QString& current) override;

private:
    void Record(eTone tone, const QString& title, const QString& text);

    cUser& m_user;
    cErrorLog& m_log;
};
