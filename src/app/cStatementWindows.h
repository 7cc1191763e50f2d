#pragma once

#include "views/main/modCommand.h"

#include <QStringList>

class cImportReview;
class cMainModel;
class cNavigator;
class cQtPrinter;
class cReceiptWindows;
class cStatementListModel;
class frmImport;
class frmMain;
class QWidget;
struct cBookTools;

// The page for bank statements and the windows about what came with them.
class cStatementWindows
{
public:
    struct cParts
    {
        const cBookTools& Tools;
        cMainModel& Model;
        cImportReview& Review;
        frmMain& Window;
        cNavigator& Navigator;
        cReceiptWindows& Receipts;
        cQtPrinter& Printer;
    };

    explicit cStatementWindows(const cParts& parts) : m_parts(parts) {}

    [[nodiscard]] frmImport& Page(); // built on first use, so that the start does not wait for it
    void Show();                     // brings the page to the front
    void Read(const QStringList& paths);

    // Carries out one of the commands for statements; others are passed over.
    void Carry(modCommand::eId command, QWidget* parent);
    void OpenAccountStatement(QWidget* parent);

private:
    void ChooseFiles();
    void CheckSeries();
    void OpenRules(QWidget* parent);
    void Export(const cStatementListModel& statement, QWidget* parent);

    cParts m_parts;
    frmImport* m_page = nullptr;
};
