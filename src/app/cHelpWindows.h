#pragma once

#include "views/main/modCommand.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class cManualBrowser;
class cShell;
class cUser;
class frmHandbuch;

// The manual and the pages of the maker. F1 opens the manual in every window but the main one, where it is the key of a
// command.
class cHelpWindows final : public QObject
{
    Q_OBJECT

public:
    cHelpWindows(cShell& shell, cUser& user);
    ~cHelpWindows() override;

    void Open(modCommand::eId command); // manual, home page, frequent questions

    bool eventFilter(QObject* watched, QEvent* event) override; // of all windows

private:
    void Follow(const QString& address);
    [[nodiscard]] cManualBrowser& Browser();

    cShell& m_shell;
    cUser& m_user;
    std::unique_ptr<cManualBrowser> m_browser; // both from the first look on
    std::unique_ptr<frmHandbuch> m_window;
};
