#pragma once

#include "views/book/cBookFlow.h"
#include "views/main/modCommand.h"

#include <functional>
#include <memory>

class cAmountFormat;
class cMainModel;
class cNavigator;
class cPasswordFlow;
class QWidget;
struct cBookTools;

// The windows about the book as a whole: other books, its backups, its password, what is wrong in it.
class cBookWindows
{
public:
    struct cParts
    {
        const cBookTools& Tools;
        cBook& Book;
        cConfiguration& Configuration;
        cAmountFormat& Format;
        cRescue& Rescue;
        cShell& Shell;
        cBookHost& Host;
        cMainModel& Model;
        cNavigator& Navigator;
    };

    explicit cBookWindows(const cParts& parts);
    ~cBookWindows();

    // Carries out one of the commands for the book; others are passed over.
    void Carry(modCommand::eId command, QWidget* parent);
    [[nodiscard]] cBookFlow& Flow() { return m_flow; }
    void LeaveBook();

    // Called when a backup was made, or how they are made was changed.
    void OnBackups(std::function<void()> changed) { m_backupsChanged = std::move(changed); }

private:
    void OpenCheck(QWidget* parent);
    void OpenPassword(QWidget* parent);
    void OpenBackupSettings(QWidget* parent);
    void MakeBackup();

    cParts m_parts;
    cBookFlow m_flow;
    std::unique_ptr<cPasswordFlow> m_password; // remembers wrong tries from one window to the next
    std::function<void()> m_backupsChanged;
};
