#pragma once

#include "app/machine/cFileFolders.h"
#include "base/cUser.h"

#include <QObject>
#include <QString>

// The user in front of the windows: modal boxes over the active window.
class cQtUser final : public cUser
{
public:
    // The registry remembers the folders of the file dialogs.
    explicit cQtUser(cRegistry& registry) : m_folders(registry) {}

    void Show(eTone tone, const QString& text, const QString& title = {}) override;
    [[nodiscard]] eAnswer Ask(const cQuestion& question) override;
    [[nodiscard]] std::optional<QString> Choose(const cChoice& choice) override;
    [[nodiscard]] int Decide(const cDecision& decision) override;
    [[nodiscard]] std::optional<QList<int>> Tick(const cChecklist& list) override;
    [[nodiscard]] QStringList ChooseFiles(const QString& title, const QString& filter, ePurpose purpose) override;
    [[nodiscard]] QString ChooseSavePath(const QString& title, const QString& filter, const QString& proposal,
                                         ePurpose purpose = ePurpose::Export) override;
    [[nodiscard]] QString ChooseFolder(const QString& title, const QString& current) override;

private:
    cFileFolders m_folders;
    QString m_told; // the failure that has been told since the user could last do something
    QObject m_turn; // gets the event that ends this
};
