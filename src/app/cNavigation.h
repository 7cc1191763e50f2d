#pragma once

#include "app/cEntryForms.h"
#include "app/cHelpWindows.h"
#include "app/cLogWindows.h"
#include "app/cReceiptWindows.h"
#include "app/machine/cQtPrinter.h"
#include "views/entry/cEntryEditor.h"
#include "views/main/cNavigator.h"
#include "windows/main/frmMain.h"

#include <QString>
#include <QStringList>

#include <memory>

class cAmountFormat;
class cBankWindows;
class cBookWindows;
class cHouseholdWindows;
class cBook;
class cBookHost;
class cConfiguration;
class cImportReview;
class cMainModel;
class cNationalSettings;
class cOutlook;
class cOverviewModel;
class cRescue;
class cSearchModel;
class cSheetWindows;
class cShell;
class cStatementWindows;
class cStatisticsModel;
class cUpdateWindows;
class frmBuchung;
class frmStatistik;
class frmSuche;
struct cBookTools;
struct cEntryFields;

// Opens the windows that commands ask for and tells the main model when they have changed the book.
class cNavigation final : public cNavigator
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
        cUpdateWindows& Updates;
        cErrorLog& Log;
        cOutlook& Outlook;
    };

    explicit cNavigation(const cParts& parts);
    ~cNavigation() override;

    // The windows and models that stay open; called once they are there.
    void Connect(cMainModel& model, cImportReview& review, frmMain& window);
    void TellDamage();
    void TellBroken();  // that the last run was, if it was
    void OfferDrafts(); // what was typed and not saved when the program had to end the last time
    [[nodiscard]] cEntryForms& Forms() { return m_forms; }
    void BackupsChanged(); // one was made, or how they are made
    void LeaveBook();      // before the file is closed: so are the windows that show it

    [[nodiscard]] cStatementWindows& Statements() { return *m_statements; }
    void TakeFiles(const QStringList& paths);     // that were dropped: a book is opened, the others are read
    [[nodiscard]] cStatisticsModel& Statistics(); // built with its page on first use
    [[nodiscard]] cNationalSettings& National() { return *m_national; }

    void OpenNewEntry() override;
    void OpenEntry(int entryId, QDate day) override;
    void OpenCorrection(int entryId, QDate day, eCorrected first) override;
    void OpenTemplates(const QString& path) override;
    void Open(modCommand::eId command) override;
    void EndProgram() override;

private:
    void BuildPage(frmMain::ePage page);
    void BuildOverview();
    [[nodiscard]] QWidget* Parent() const; // of a window that is opened now: the one in front
    void OpenEditor(cEntryEditor& editor, const std::optional<cEntryFields>& fields);
    void OpenDraft(cEntryDraft draft);
    void OpenEditorFor(cEntryEditor& editor, const cEntryFields& fields);
    void OpenStartBalance();
    void OpenSearch();
    void OpenAbout();
    void OpenLog();
    void Carry(modCommand::eId command);
    void OpenNationalSettings();
    [[nodiscard]] cBankWindows& Banks();
    void OpenFetch();
    void Export();
    void Print(void (cQtPrinter::*way)(cPrintable&, QWidget*));
    void PrintStatistics(void (cQtPrinter::*way)(cPrintable&, QWidget*));
    void BookChanged();
    void ConnectEditor(const frmBuchung& form, const cEntryEditor& editor);
    void ShowSaved(int entryId);

    cParts m_parts;
    cEntryForms m_forms;
    cLogWindows m_logs;
    cQtPrinter m_printer;
    cHelpWindows m_help;
    cMainModel* m_model = nullptr;
    cImportReview* m_review = nullptr;
    frmMain* m_window = nullptr;
    std::unique_ptr<cNationalSettings> m_national;
    std::unique_ptr<cOverviewModel> m_overview; // these two from the first look on
    std::unique_ptr<cStatisticsModel> m_statistics;
    frmStatistik* m_statisticsPage = nullptr;
    std::unique_ptr<cSheetWindows> m_sheets;
    std::unique_ptr<cReceiptWindows> m_receipts;
    std::unique_ptr<cHouseholdWindows> m_household;
    std::unique_ptr<cBookWindows> m_books;
    std::unique_ptr<cStatementWindows> m_statements;
    std::unique_ptr<cBankWindows> m_banks;       // from the first one on
    std::unique_ptr<cSearchModel> m_searchModel; // from the first search on
    frmSuche* m_search = nullptr;
};
