#pragma once

#include "model/cImportEntry.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

enum class eKnown { No, Equal, ButBlanks };

// All staged rows with their lookups. Lookups by row and by entry are binary searches; the duplicate test goes through
// a hash index and answers exactly as a comparison with every row would.
class cImportHive
{
public:
    // Takes the rows, sorted by ID upwards or downwards, and builds the assignment index.
    void setImportEntryList(cImportEntryList entries);
    [[nodiscard]] cImportEntryList getImportEntryList() const { return m_entries; }
    // The own account numbers of a list in their order.
    [[nodiscard]] static QStringList AccountsOf(const cImportEntryList& entries);
    // An ID above that of every row.
    [[nodiscard]] int NextId() const;
    [[nodiscard]] int Count() const { return static_cast<int>(m_entries.size()); }

    // True when a staged row is assigned to the entry.
    [[nodiscard]] bool IsImportEntryAvail(int entryId) const;
    [[nodiscard]] int GetImportEntryCountByNumber(const QString& account) const;
    // Cents.
    [[nodiscard]] qint64 GetImportEntrySumByNumber(const QString& account) const;
    // The duplicate test: a staged row isEqual the record.
    [[nodiscard]] bool IsImportItemAvail(const cImportEntry& entry) const;
    // The same, and whether a row up to this ID is equal to the record but for blanks.
    [[nodiscard]] eKnown Find(const cImportEntry& entry, int newestId) const;
    // The staged rows that are equal to the record, or equal but for blanks.
    [[nodiscard]] cImportEntryList AllButBlanks(const cImportEntry& entry) const;
    [[nodiscard]] std::optional<cImportEntry> GetImportEntryByID(int id) const;
    // Entry ID -1 stands for the rows that are not assigned.
    [[nodiscard]] std::optional<cImportEntry> GetImportEntryByAssignedID(int entryId) const;
    [[nodiscard]] cImportEntryList GetImportEntriesByAssignedID(int entryId) const;
    [[nodiscard]] QList<int> OpenIds() const; // of the rows that are not assigned, in their order
    // The rows of the entry from `from` to `to`, both included.
    [[nodiscard]] cImportEntryList GetImportEntryByArea(int entryId, QDate from, QDate to) const;

    void Reserve(qsizetype rows); // so many are to be added
    // Keep the rows in step with single writes to the table. The rows stay in the order of their IDs.
    void Add(const cImportEntry& entry);
    void Change(const cImportEntry& entry);
    void Remove(int id);

private:
    struct cGroup
    {
        int EntryId = -1;
        QList<int> RowIds; // in the order of the rows
    };

    [[nodiscard]] qsizetype FindRow(int id) const;
    [[nodiscard]] qsizetype FindGroup(int entryId) const;
    void BuildGroups();
    void AddToGroup(int entryId, int rowId);
    void RemoveFromGroup(int entryId, int rowId);
    void AddToIndex(const cImportEntry& entry) const;
    void RemoveFromIndex(const cImportEntry& entry) const;
    void BuildIndex() const;
    [[nodiscard]] size_t HashOf(const cImportEntry& entry) const;

    cImportEntryList m_entries;
    QList<cGroup> m_groups; // sorted by EntryId

    // Built by the first duplicate test: readers that never import do not pay for it.
    mutable bool m_isIndexed = false;
    mutable QMultiHash<size_t, int> m_index; // cImportEntry::EqualHash to row ID
    mutable cImportEntry m_asked;            // a row that is looked for is the one that is added next
    mutable size_t m_askedHash = m_asked.EqualHash();
};
