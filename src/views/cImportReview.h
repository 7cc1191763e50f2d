#pragma once

#include "model/cImportEntry.h"
#include "views/cMatchFlow.h"
#include "views/cStagedListModel.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class cAmountFormat;
class cAssignList;
class cDataAccess;
class cProgress;
class cSettings;
class cUser;
struct cImportResult;
struct cProposal;

// The page of bank statements without its widgets: reads files, proposes, books and deletes.
class cImportReview final : public QObject, private cStagedSource
{
    Q_OBJECT

public:
    // What the review works with; all of it outlives the review.
    struct cParts
    {
        cDataAccess& Data;
        cSettings& Settings;
        const cAmountFormat& Format;
        cUser& User;
    };

    explicit cImportReview(const cParts& parts, QObject* parent = nullptr);
    ~cImportReview() override;

    // Reads the staged rows anew, when another part of the program may have changed them or the book.
    void Refresh();

    // The same, after something was undone or another book was opened: what the last action did is not true any more.
    void StartAfresh();

    // Lets the user choose statement files and reads them.
    void ChooseFiles(cProgress& progress);
    // Reads the files, asks for the accounts of new numbers, and says in Summary what came of each.
    void ImportFiles(const QStringList& paths, cProgress& progress);

    // What the last action did, one line per file or step.
    [[nodiscard]] QStringList Summary() const { return m_summary; }
    // The transactions of the last files that were not taken because they are there already, as texts.
    [[nodiscard]] QStringList Duplicates() const;
    // Takes these all the same; the numbers are places in Duplicates.
    void StageDuplicates(const QList<int>& places);
    void DropDuplicates();

    // Books the rows as shown. Those that are booked already are passed over; those that match an entry are asked
    // about.
    void Book(const QList<int>& asked, cProgress& progress);

    // What can be done with the rows that are selected.
    struct cActions
    {
        bool Change = false; // book and delete
        bool Match = false;  // also without a selection
        bool Assign = false;
        bool Release = false;
    };
    [[nodiscard]] cActions ActionsFor(const QList<int>& rowIds);
    // Assigns open rows to the entries in the book that they belong to: those given when they are several, else all
    // that are shown.
    void Match(const QList<int>& rowIds, cProgress& progress);
    // The entries that one open row may belong to; empty when it is not one row, or it is not open. The list tells the
    // review what was assigned, and the review outlives it.
    [[nodiscard]] std::unique_ptr<cAssignList> StartAssign(const QList<int>& rowIds);
    // Sets booked rows back to open; the entries stay.
    void Release(const QList<int>& rowIds);

    // Removes the rows after a question; entries made from them stay.
    void Delete(const QList<int>& rowIds);

    [[nodiscard]] bool IsOpenOnly() const;
    void SetOpenOnly(bool isOpenOnly); // kept in the setting "HideBookedEntries"
    void SetFilter(const QString& text);

    [[nodiscard]] cStagedListModel& Rows() { return m_rows; }
    [[nodiscard]] QStringList Categories() const; // paths to choose from
    [[nodiscard]] static QStringList Intervals(); // as the user sees them
    [[nodiscard]] static QString StoredInterval(const QString& shown);
    [[nodiscard]] bool IsReadOnly() const;

    // Headline and hint for a list that shows nothing.
    [[nodiscard]] QString EmptyTitle() const;
    [[nodiscard]] QString EmptyHint() const;
    [[nodiscard]] QString CountText() const; // "12 offen, 30 insgesamt"

    // Column layout of the list, as its window wrote it.
    [[nodiscard]] QString Layout() const;
    void SaveLayout(const QString& layout);

Q_SIGNALS:
    void RowsChanged();                     // staged rows came, went or were booked
    void RowsStaged(const QList<int>& ids); // by the import that has just ended, after its questions
    void SummaryChanged();                  // Summary or Duplicates
    void EntriesChanged();                  // the book itself changed

private:
    struct cWorks; // the tools of the import floor
    struct cChoice
    {
        QString Category; // empty: as proposed
        QString Interval;
    };

    [[nodiscard]] cStagedInfo Info(const cImportEntry& row) override;
    bool SetCategory(const cImportEntry& row, const QString& category) override;
    bool SetInterval(const cImportEntry& row, const QString& interval) override;

    [[nodiscard]] QList<int> AskAboutMatches(const QList<int>& rowIds);
    void LoadRows();
    [[nodiscard]] cImportResult ImportFile(const QString& path, cProgress& progress);
    void Report(const cImportResult& result);
    void Report(const cMatchFlow::cOutcome& outcome);
    void ShowRefusals(const QStringList& refusals);
    void AskAccounts(const QStringList& numbers);
    void ReportNew(int newest); // rows with a higher ID
    [[nodiscard]] cImportEntryList OpenRows(const QList<int>& rowIds);
    void AskAccountsOf(const cImportEntryList& rows);
    [[nodiscard]] QHash<int, cProposal> Chosen(const cImportEntryList& rows);
    [[nodiscard]] cStagedInfo BookedInfo(const cImportEntry& row);

    cParts m_parts;
    std::unique_ptr<cWorks> m_works;
    cStagedListModel m_rows;
    QHash<int, cChoice> m_choices; // by row ID
    cImportEntryList m_duplicates;
    QStringList m_summary;
};
