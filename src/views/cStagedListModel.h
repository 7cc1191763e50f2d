#pragma once

#include "base/modFold.h"
#include "model/cImportEntry.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class cAmountFormat;

// What is known of a bank transaction beyond its row: where it goes, or where it went.
struct cStagedInfo
{
    QString Account; // of the book; empty when the bank's number is not assigned yet
    QString Category;
    QString Interval; // stored word
    QString Reason;   // why this category is proposed
};

// Where the list asks for what it shows beyond the rows. Asked for the rows in sight only, unless the list is sorted by
// one of these columns.
class cStagedSource
{
public:
    cStagedSource() = default;
    cStagedSource(const cStagedSource&) = delete;
    cStagedSource& operator=(const cStagedSource&) = delete;
    virtual ~cStagedSource() = default;

    [[nodiscard]] virtual cStagedInfo Info(const cImportEntry& row) = 0;

    // Takes the user's own choice for a row; false when it is none of the list.
    virtual bool SetCategory(const cImportEntry& row, const QString& category) = 0;
    virtual bool SetInterval(const cImportEntry& row, const QString& interval) = 0;
};

// The bank transactions that were read, one row each.
class cStagedListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { State, Date, Counterparty, Purpose, Amount, Account, Category, Interval, Reason, ColumnCount };

    enum eRole {
        ToneRole = Qt::UserRole, // int: 1 income, 2 expense, 0 neither
        RowIdRole,               // int: ID of the staged row
        BookedRole,              // bool
    };

    enum class eShow { All, OpenOnly };

    cStagedListModel(cStagedSource& source, const cAmountFormat& format, QObject* parent = nullptr);

    void SetRows(cImportEntryList rows);
    void SetShow(eShow show);
    void SetFilter(const QString& text); // every word must be found
    void ForgetInfo();                   // the source would answer differently now

    [[nodiscard]] int IdAt(const QModelIndex& index) const;
    [[nodiscard]] QModelIndexList IndexesOf(const QList<int>& ids) const;
    [[nodiscard]] QList<int> OpenIds() const; // of the rows shown
    [[nodiscard]] qsizetype TotalCount() const { return m_rows.size(); }
    [[nodiscard]] qsizetype OpenCount() const { return m_openCount; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    void Rebuild(); // which rows are shown, in which order
    void Order();
    [[nodiscard]] bool IsShown(const cImportEntry& row) const;
    [[nodiscard]] const cImportEntry& RowAt(int row) const;
    [[nodiscard]] const cStagedInfo& InfoOf(const cImportEntry& row) const;
    [[nodiscard]] QString Text(const cImportEntry& row, int column) const;
    [[nodiscard]] QString Tip(const cImportEntry& row, int column) const;
    [[nodiscard]] QString AccountText(const cImportEntry& row) const;

    cStagedSource& m_source;
    const cAmountFormat& m_format;
    cImportEntryList m_rows;
    std::vector<qsizetype> m_order;
    QList<modFold::cFolded> m_words;
    eShow m_show = eShow::All;
    int m_sortColumn = Date;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    qsizetype m_openCount = 0;
    mutable QHash<int, cStagedInfo> m_info; // by row ID, as far as it was asked for
};
