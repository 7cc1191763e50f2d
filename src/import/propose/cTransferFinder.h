#pragma once

#include "model/cImportEntry.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <functional>
#include <optional>
#include <utility>

class cAccountMap;
class cDataAccess;
struct cEntryItem;
class cImportHiveCache;

// Finds transactions between two own accounts, and the row that the other account's statement holds for them.
class cTransferFinder
{
public:
    static constexpr int SlowestDays = 10; // between the two rows, over holidays or from abroad

    struct cTransfer
    {
        QString Own;              // account of the row
        QString Other;            // account of its counterparty
        int PartnerRow = 0;       // open row with the opposite amount; 0 when there is none
        QDate PartnerDay;         // of that row; invalid when there is none
        int ExistingEntry = 0;    // in the book, whose second row this is; 0 when there is none
        QString BookedAs;         // what that entry is as long as it is no transfer; empty otherwise
        bool IsElsewhere = false; // the other row was booked as something that cannot become this transfer
        bool IsMissed = false;    // the other account's rows reach over these days, and none is the other side
    };

    // `isDouble`: whether a row, by its ID, is booked already in the words of another file.
    cTransferFinder(
        cDataAccess& data, cImportHiveCache& hive, const cAccountMap& accounts,
        std::function<bool(int)> isDouble = [](int) { return false; });

    // Empty when the row's counterparty is somebody else.
    [[nodiscard]] std::optional<cTransfer> Find(const cImportEntry& row);

    // The account of a number as cAccountMap has it.
    [[nodiscard]] QString AccountOf(const QString& number);

    // The own account that the counterparty's number is of; empty for somebody else's.
    [[nodiscard]] QString OwnAccountOf(const QString& number, const QString& bankCode) const;

private:
    [[nodiscard]] std::optional<cTransfer> FindSettled(const cImportEntry& row);
    [[nodiscard]] bool IsTaken(const cImportEntry& row, const cImportEntry& other) const;
    void Pair(const cImportEntry& row, const cImportEntry& other);
    void Build();
    void FindPartner(const cImportEntry& row, cTransfer& transfer);
    [[nodiscard]] bool IsPartner(const cImportEntry& row, const cImportEntry& other, const cTransfer& transfer);
    [[nodiscard]] bool IsSlowPartner(const cImportEntry& row, const cImportEntry& other, const cTransfer& transfer);
    [[nodiscard]] bool IsCovered(const cImportEntry& row, const cTransfer& transfer);
    // False when `other` has its second row already, or may be meant for somebody else.
    [[nodiscard]] bool HasTaken(const cImportEntry& other, cTransfer& transfer);
    [[nodiscard]] bool IsHalf(const cEntryItem& entry, const cImportEntry& other);
    [[nodiscard]] bool CanBecome(const cTransfer& transfer, const cEntryItem& entry, const cImportEntry& other);

    cDataAccess& m_data;
    cImportHiveCache& m_hive;
    const cAccountMap& m_accounts;
    std::function<bool(int)> m_isDouble;
    QHash<QString, QString> m_known; // number to account, as asked for
    QList<std::pair<QString, QString>> m_mapping;
    bool m_isBuilt = false;
    cImportEntryList m_rows;
    QMultiHash<qint64, qsizetype> m_byCents;
    QHash<QString, std::pair<QDate, QDate>> m_days; // first and last of each account number
    QHash<int, int> m_partners;                     // pairs already found, both ways
};
