#pragma once

#include "model/modPeriod.h"
#include "views/export/cEntryExtract.h"
#include "views/ledger/cReconcileListModel.h"
#include "views/ledger/cStatementLedger.h"
#include "views/list/cListFilter.h"
#include "views/list/modEntrySums.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

struct cBookTools;

// The statement of a bank account as the staged rows tell it: rows by day with the balance after each, checked against
// the balances that the bank named and against the account of the book.
class cStatementListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Day, Counterparty, Purpose, Amount, Balance, State, Category, ColumnCount };

    enum eRole {
        ToneRole = Qt::UserRole, // eMoneyTone
        BookedRole,              // bool
    };

    enum class eFinding { Good, Unknown, Bad };

    // Shows the account with the newest rows.
    explicit cStatementListModel(const cBookTools& tools, QObject* parent = nullptr);
    ~cStatementListModel() override;

    [[nodiscard]] const QStringList& Numbers() const { return m_numbers; }
    [[nodiscard]] QStringList AccountTexts() const; // the same numbers with the names of their accounts
    // Those that somebody may mean by a text: another form of the number, or the account of the book.
    [[nodiscard]] QStringList NumbersMeant(const QString& text) const;
    [[nodiscard]] QString PapersText() const; // of the button that opens the statements on paper
    [[nodiscard]] const QString& Number() const { return m_ledger.Number(); }
    void ChooseAccount(const QString& number); // one of Numbers
    void Reload();                             // after rows or entries changed

    [[nodiscard]] const QString& Period() const { return m_period; } // a word of modWord::Periods
    void ChoosePeriod(const QString& period);
    void ChooseFreeRange(const modPeriod::cRange& range); // only while the free period is chosen
    [[nodiscard]] bool IsFreePeriod() const;
    [[nodiscard]] modPeriod::cRange Range() const;
    [[nodiscard]] QDate Today() const;

    void TypeFilter(const QString& text); // filters when typing pauses
    void SetFilter(const QString& text);  // at once; every word must be found

    // What is known of the balances, in sentences; what to show beside them; the sums of the rows shown.
    [[nodiscard]] QStringList Findings() const;
    [[nodiscard]] eFinding Finding() const;
    [[nodiscard]] cSumTexts SumTexts() const;
    [[nodiscard]] QString EmptyTitle() const;
    [[nodiscard]] QString EmptyHint() const;

    // Places in the ledger of the first row of the period and behind the last one.
    [[nodiscard]] std::pair<qsizetype, qsizetype> Places() const;

    // The entry that the row is booked as, and the day that tells which occurrence; empty for an open row.
    [[nodiscard]] std::optional<std::pair<int, QDate>> EntryOf(int row) const;
    // The rows as lines of fields with tabs between them, with the titles above.
    [[nodiscard]] QString TextOf(const std::vector<int>& rows) const;

    // Title and period, and the rows shown as if they were entries.
    [[nodiscard]] QString Title() const;
    [[nodiscard]] QStringList Lines() const;
    [[nodiscard]] cEntryExtract Extract() const;

    [[nodiscard]] const cStatementLedger& Ledger() const { return m_ledger; }
    [[nodiscard]] const cBookComparison& Book() const { return m_book; }
    // The same account against the book, row by row.
    [[nodiscard]] cReconcileListModel& Differences() { return m_differences; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void Changed(); // rows, sums and findings are new

private:
    [[nodiscard]] bool IsUnread() const; // there are no rows because they could not be read
    void TakeOtherNumbers();             // of accounts without rows
    void ShowAccount();                  // that was loaded
    void Show();                         // the days of the period, then the filter
    void Filter();                       // what of them holds the words
    [[nodiscard]] qsizetype RowAt(int row) const { return m_shown[static_cast<std::size_t>(row)]; }
    [[nodiscard]] cListFilter& Texts();
    [[nodiscard]] QString Text(qsizetype row, int column) const;
    [[nodiscard]] const QString& CategoryOf(const cImportEntry& row) const;

    const cBookTools& m_tools;
    cStatementLedger m_ledger;
    cBookComparison m_book;
    cReconcileListModel m_differences;
    QStringList m_numbers;
    QString m_period;
    modPeriod::cRange m_free;
    QList<modFold::cFolded> m_words;
    QString m_typed;
    std::vector<int> m_inPeriod; // places in the ledger
    std::vector<int> m_shown;
    qint64 m_income = 0; // of the rows shown
    qint64 m_expense = 0;
    std::unique_ptr<cListFilter> m_filter;    // made by the first filter
    mutable QHash<int, QString> m_categories; // by entry, as far as they were asked for
    QTimer m_timer;
};
