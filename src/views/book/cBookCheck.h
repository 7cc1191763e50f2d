#pragma once

#include "model/cFaultyEntry.h"

#include <QAbstractTableModel>
#include <QDate>
#include <QList>
#include <QString>
#include <QStringList>

class cAmountFormat;
class cDataAccess;

// What a look at the whole book finds: whether its file is sound, and the list of entries that no view shows or that do
// not count as they stand.
class cBookCheck final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Fault, Day, Text, Account, Amount, ColumnCount };

    // Looks at once; data and format outlive the check.
    cBookCheck(cDataAccess& data, const cAmountFormat& format, QDate today, QObject* parent = nullptr);

    void Reload(); // looks again

    [[nodiscard]] bool IsSound() const; // nothing was found at all
    [[nodiscard]] bool IsFileSound() const { return m_problems.isEmpty() && m_missing.isEmpty(); }
    // What to make of the file, and of the entries; one sentence or two each.
    [[nodiscard]] QString FileText() const;
    [[nodiscard]] QString EntriesText() const;
    // Receipts whose file is missing, and files that belong to no entry, a line each; empty where there are none. They
    // make the book no worse: nothing of it is wrong.
    [[nodiscard]] QString ReceiptText() const { return m_receipts; }
    [[nodiscard]] const QStringList& FileProblems() const { return m_problems; } // in SQLite's words
    [[nodiscard]] const QList<cFaultyEntry>& Entries() const { return m_entries; }
    [[nodiscard]] bool CanDelete() const; // false for a book that can only be read

    [[nodiscard]] int EntryAt(int row) const; // ID; 0 for no row
    // "Tag '31.02.2026' nicht lesbar; kein Betrag"
    [[nodiscard]] static QString FaultText(const cFaultyEntry& entry);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    [[nodiscard]] QString CellText(const cFaultyEntry& entry, int column) const;

    cDataAccess& m_data;
    const cAmountFormat& m_format;
    QDate m_today;
    QStringList m_problems;
    QStringList m_missing;
    QString m_receipts;
    bool m_isRead = false;
    QList<cFaultyEntry> m_entries;
};
