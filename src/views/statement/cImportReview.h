#pragma once

#include "base/cUser.h"
#include "model/cImportEntry.h"
#include "views/statement/cMatchFlow.h"
#include "views/statement/cPlanFlow.h"
#include "views/statement/cStagedChoice.h"
#include "views/statement/cStagedGuide.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class cAssignListModel;
class cEntryEditor;
class cEntrySuggestions;
class cManyChange;
class cProgress;
class cRuleEditor;
class cStatementFiles;
struct cBookTools;
struct cEntryFields;

// The page of bank statements without its widgets: proposes, books, matches and deletes. The window for the rows of one
// import has a review of its own, which shares what the user chose for them.
class cImportReview final : public QObject, private cStagedSource
{
    Q_OBJECT

public:
    explicit cImportReview(const cBookTools& tools, QObject* parent = nullptr);
    ~cImportReview() override;

    // Whether somebody sees the rows, which is so from the beginning. What nobody sees is neither read nor planned;
    // when it is shown, that is made up for as soon as nothing else is to be done.
    void SetShown(bool isShown);

    // Reads the staged rows anew, when another part of the program may have changed them or the book.
    void Refresh();

    // The same, after something was undone or another book was opened: what the last action did is not true any more.
    void StartAfresh();

    // The reading of files. What came of them is in Summary.
    [[nodiscard]] cStatementFiles& Files();

    // What is shown, and how.
    [[nodiscard]] cStagedChoice& View() { return m_view; }
    [[nodiscard]] cStagedListModel& Rows() { return m_view.Rows(); }

    // A review of the rows that came with the same import as this one, or with the latest one for row 0; empty when
    // that is not known. It does not outlive this review, which follows what is done there.
    [[nodiscard]] std::unique_ptr<cImportReview> StartImportReview(int rowId = 0);
    [[nodiscard]] bool HasImportOf(int rowId) const;

    // What the last action did, one line per file or step.
    [[nodiscard]] QStringList Summary() const { return m_summary; }

    // What may be booked unseen, and what comes next.
    [[nodiscard]] cStagedGuide& Guide() { return m_guide; }

    // Books the rows as shown. Those that are booked already are passed over; those that belong to an entry or may be
    // there twice are asked about, and among several those that are not sure. False when the user gave up or nothing
    // could be written.
    bool Book(const QList<int>& asked, cProgress& progress);
    // Of the rows shown, assigns those whose entry is there and books those whose proposal is sure, after a question
    // that names the numbers. True when the user did not give up, also where nothing was sure.
    bool AcceptProposals(cProgress& progress);

    // Plans some more rows of a high pile, while nothing else is to be done; once all are planned the list shows them
    // in their groups. False when nothing is left.
    bool PlanNext();

    // What can be done with the rows that are selected.
    struct cActions
    {
        bool Change = false; // deleting
        bool Book = false;
        bool Choose = false; // category and interval
        bool Edit = false;   // before it is booked
        bool Match = false;  // also without a selection
        bool Accept = false; // also without a selection
        bool Assign = false;
        bool Release = false;
        bool Rule = false;
        bool Import = false; // the rows of the same import
    };
    [[nodiscard]] cActions ActionsFor(const QList<int>& rowIds);

    // Takes a category, an interval (stored word) and a description for the open ones of the rows; what is empty stays
    // as it is. Where all rows are booked, their entries get the category. False when it cannot be done.
    bool Choose(const QList<int>& rowIds, const QString& category, const QString& interval,
                const QString& description = {});
    // The entries behind rows that are all booked, to be changed together; none where one is open. Whoever has stored a
    // change says so.
    [[nodiscard]] std::unique_ptr<cManyChange> StartChange(const QList<int>& rowIds);
    void FollowEntries();
    // After the category of one row was chosen: offers it for the other open rows of the same payee, now or by an own
    // rule for all that are still to come. Nothing is asked when there are none.
    void OfferAlike(int rowId, const QString& category);
    // Opens the editor with what is proposed for one open row; what is saved there is its entry. Asks first when the
    // row has an entry already.
    void EditAndBook(const QList<int>& rowIds);
    [[nodiscard]] QString ChoiceTitle(const QList<int>& rowIds); // "Kategorie für 12 Umsätze"
    [[nodiscard]] eAnswer AskToSave() const;                     // what was chosen; see modUnsaved
    // The kind of entry that all these rows become by their sign; empty when they differ.
    [[nodiscard]] QString TypeOf(const QList<int>& rowIds);
    [[nodiscard]] cEntrySuggestions& Suggestions(); // the same with what was used lately
    [[nodiscard]] static QStringList Intervals();   // as the user sees them
    [[nodiscard]] static QString StoredInterval(const QString& shown);

    // Assigns open rows to the entries in the book that they belong to: those given when they are several, else all
    // that are shown.
    void Match(const QList<int>& rowIds, cProgress& progress);
    // The entries that one open row may belong to; empty when it is not one row, or it is not open. The list tells the
    // review what was assigned, and the review outlives it.
    [[nodiscard]] std::unique_ptr<cAssignListModel> StartAssign(const QList<int>& rowIds);
    // Sets booked rows back to open; the entries stay.
    void Release(const QList<int>& rowIds);
    // The user's own rules with a new one proposed from the row; the review follows what is stored, and outlives it.
    [[nodiscard]] std::unique_ptr<cRuleEditor> StartRule(const QList<int>& rowIds);

    // Removes the rows after a question; entries made from them stay.
    void Delete(const QList<int>& rowIds);

    [[nodiscard]] bool IsReadOnly() const;

Q_SIGNALS:
    void RowsChanged();                     // staged rows came, went or were booked
    void RowsStaged(const QList<int>& ids); // by the import that has just ended, after its questions
    void SummaryChanged();
    void EntriesChanged(); // the book itself changed
    // Somebody shall show the editor with these fields, and come back when it is closed.
    void EditorWanted(cEntryEditor& editor, const cEntryFields& fields);

private:
    struct cWorks; // the tools of the import floor

    cImportReview(const cBookTools& tools, std::shared_ptr<cWorks> works, const cImportRuns::cRange& import);

    [[nodiscard]] cStagedInfo Info(const cImportEntry& row) override;
    [[nodiscard]] eStagedGroup Group(const cImportEntry& row) override;

    [[nodiscard]] bool ChangeCategory(const QList<int>& rowIds, const QString& category);
    [[nodiscard]] bool MayEdit(const cRowPlan& plan);
    [[nodiscard]] QStringList CheckSeries(const cImportEntryList& rows);
    bool CarryOut(const QList<int>& rowIds, const std::function<cPlanFlow::cOutcome()>& work);
    void Forget();
    void LoadRows();
    void LoadOld();
    void TellStaged(const QList<int>& ids);
    void Tell(const QStringList& lines);
    void TellNotTaken(const QString& category);
    void Report(const QStringList& lines); // the same after the rows have changed
    void ReportAccounts(const QStringList& lines);
    void ReportMatches(const cMatchFlow::cOutcome& outcome);
    [[nodiscard]] cImportEntryList RowsOf(const QList<int>& rowIds);
    [[nodiscard]] cImportEntryList OpenRows(const QList<int>& rowIds);
    void AskAccountsOf(const cImportEntryList& rows);

    const cBookTools& m_tools;
    std::shared_ptr<cWorks> m_works; // of the page, in the window too
    cStagedChoice m_view;
    cStagedGuide m_guide;
    QStringList m_summary;
    bool m_isShown = true;
    bool m_isOld = false;        // the rows are to be read again before somebody sees them
    bool m_hasUnplanned = false; // the pile is high, and some of it was not looked at yet
};
