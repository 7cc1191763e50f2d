#pragma once

#include "import/read/cTableLayout.h"

#include <QString>

#include <optional>

class cSettings;

// What the user confirmed for tables, by the hash of their header: columns ("MAP:"), own account ("KTO:") and own bank
// code ("BLZ:").
class cTableMemory
{
public:
    explicit cTableMemory(cSettings& settings) : m_settings(settings) {}

    // The key of a header; the lines above it may be added to tell accounts of one bank apart.
    [[nodiscard]] static QString KeyOf(const QStringList& header);

    [[nodiscard]] bool HasMap(const QString& key) const;
    // Puts columns, number format, date order and sign rule into the layout, on top of the known layout that they were
    // made from; a sign that was open when they were saved still is. False when nothing is remembered or the header has
    // another number of columns.
    bool LoadMap(const QString& key, cTableLayout& layout) const;
    bool SaveMap(const QString& key, const cTableLayout& layout);

    // The character set of files that name their columns like this when they are read without one. Detect when nothing
    // is remembered.
    [[nodiscard]] eCharset Charset(const QString& key) const;
    bool SaveCharset(const QString& key, eCharset charset);

    // How the amounts count in files of this layout and account, as one of them told beyond doubt.
    [[nodiscard]] std::optional<eSignRule> Sign(const QString& signKey) const;
    bool SaveSign(const QString& signKey, eSignRule sign);

    // Empty when nothing is remembered, and when files of this kind were given different accounts.
    [[nodiscard]] QString Account(const QString& accountKey) const;
    // All accounts that files of this kind were given, to choose from.
    [[nodiscard]] QStringList Accounts(const QString& accountKey) const;
    bool SaveAccount(const QString& accountKey, const QString& account);

    [[nodiscard]] QString BankCode(const QString& accountKey) const;
    bool SaveBankCode(const QString& accountKey, const QString& bankCode);

private:
    cSettings& m_settings;
};
