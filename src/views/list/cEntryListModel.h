#pragma once

#include "base/modFold.h"
#include "model/cEntryItem.h"
#include "views/list/modEntrySums.h"
#include "views/look/cCategoryLooks.h"
#include "views/look/modMoneyTone.h"

#include <QAbstractItemModel>
#include <QDate>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class cAmountFormat;
class cEntryFilter;

// The entry list: occurrences in rows, optionally gathered in groups with count and sum. The records never move;
// sorting, grouping and filtering only rebuild the order in which they are shown.
class cEntryListModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum eColumn {
        Date,
        Type,
        Category,
        Account,
        Description,
        Interval,
        Amount,
        Balance,
        Receipts,
        Tags,
        Payer,
        ColumnCount
    };

    enum eRole {
        ToneRole = Qt::UserRole, // eMoneyTone
        FutureRole,              // bool: lies after today
        CorrectedRole,           // bool: amount of this period corrected
        GroupRole,               // bool: the row is the head of a group
        CentsRole,               // qint64: signed cents of a money column; invalid where the list shows none
        NameRole,                // text: name of a group, without its count
        ReceiptsRole,            // int: number of receipts; 0 in every other column
    };

    // An occurrence as it is found again after the list was rebuilt.
    struct cKey
    {
        int ID = 0;
        QDate Day; // of a series: the planned one, which no other occurrence has
        bool operator==(const cKey&) const = default;
    };

    explicit cEntryListModel(const cAmountFormat& format, QObject* parent = nullptr);
    ~cEntryListModel() override;

    // What to show. With an account, transfers count as its income or expense.
    struct cContent
    {
        cEntryItemList Entries;
        QString Account; // empty: all accounts
        QDate Today;
        QString HiddenCategory;             // entries of this category are left out; empty: none
        std::optional<qint64> StartBalance; // cents before the first entry; without it the balance column stays empty
        cCategoryLooks Looks{};
    };
    void SetContent(cContent content, const QString& filter, const QString& grouping);
    void SetFilter(const QString& text);       // every word must be found
    void SetGrouping(const QString& grouping); // a word of modWord::Groupings

    [[nodiscard]] const cEntrySums& Sums() const { return m_sums; }
    [[nodiscard]] const cEntryItem* EntryAt(const QModelIndex& index) const; // null for the head of a group
    [[nodiscard]] cKey KeyAt(const QModelIndex& index) const;
    // The rows of these keys in one pass over the list.
    [[nodiscard]] QModelIndexList IndexesOf(const QList<cKey>& keys) const;
    // The first row on or after the day while sorted by date upwards (the first on or before it while downwards);
    // invalid when the list is sorted otherwise or ends before.
    [[nodiscard]] QModelIndex IndexNear(QDate day) const;
    // The shown entry whose day is nearest, the first of several; in whatever order and groups. Invalid without
    // entries.
    [[nodiscard]] QModelIndex IndexNearest(QDate day) const;
    [[nodiscard]] bool IsGrouped() const { return !m_groups.empty(); }
    // The category of the group that a line or a head is in, which other entries may be given as well; empty unless the
    // list is grouped by category.
    [[nodiscard]] QString GroupCategory(const QModelIndex& index) const;
    [[nodiscard]] const QString& Grouping() const { return m_grouping; }            // as it was set
    [[nodiscard]] const QString& ShownAccount() const { return m_content.Account; } // empty: all accounts
    [[nodiscard]] QStringList KnownTags() const; // of all its entries, filtered out or not
    [[nodiscard]] bool HasBalances() const { return m_content.StartBalance.has_value(); }

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    struct cGroup
    {
        QString Name;
        int First = 0; // position in m_order
        int Count = 0;
        qint64 Sum = 0;
    };

    void Order(); // sorts and groups all entries
    // Decides which of `among` are shown, in this order.
    void Select(const std::vector<int>& among);
    void Sum(); // adds up what is shown, as a whole and by group
    void RunBalances();
    [[nodiscard]] std::vector<qint64> SortKeys() const;
    [[nodiscard]] qint64 Effect(int entry) const;
    [[nodiscard]] QModelIndex IndexAt(std::size_t position) const;          // of m_order
    [[nodiscard]] int EntryIndex(const QModelIndex& index) const;           // -1 for the head of a group
    [[nodiscard]] std::optional<qint64> Cents(int entry, int column) const; // empty where none is shown
    [[nodiscard]] QString Text(int entry, int column) const;
    [[nodiscard]] QString WidestAmount(int column) const; // of those that are shown
    [[nodiscard]] QString LongestText(int column) const;  // the same of a column of words
    [[nodiscard]] QVariant EntryData(int entry, int column, int role) const;
    [[nodiscard]] eMoneyTone Tone(int entry, int column) const;
    [[nodiscard]] QVariant GroupData(const cGroup& group, int column, int role) const;
    [[nodiscard]] QString Tip(const cEntryItem& entry) const;

    const cAmountFormat& m_format;
    cContent m_content;
    QList<modFold::cFolded> m_words;
    QString m_grouping;
    int m_sortColumn = Date;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    std::vector<int> m_all;     // all entries in their order, so that filtering does not sort
    std::vector<int> m_order;   // those that are shown
    std::vector<int> m_groupOf; // group by entry; empty without grouping
    QStringList m_groupNames;
    std::unique_ptr<cEntryFilter> m_filter; // made when something is typed for the first time
    std::vector<cGroup> m_groups;
    std::vector<qint64> m_balances; // by entry; empty when there is none to show
    cEntrySums m_sums;
};
