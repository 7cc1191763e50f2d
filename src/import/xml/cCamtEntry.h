#pragma once

#include "model/cImportEntry.h"

#include <QString>

#include <optional>
#include <pugixml.hpp>
#include <vector>

// One entry of a camt statement: a booking with the transactions it is made of.
class cCamtEntry
{
public:
    // `account` is the own account, `entry` the element with everything in it.
    cCamtEntry(const QString& account, const pugi::xml_node& entry);

    // False for what is only announced.
    [[nodiscard]] bool IsBooked() const;

    // Signed cents; empty when the amount is no number.
    [[nodiscard]] std::optional<qint64> Cents() const { return m_cents; }

    // True when the booking comprises several transactions whose amounts do not make up its own.
    [[nodiscard]] bool IsClosedBatch() const { return m_details.size() > 1 && m_parts.empty(); }

    // The records: one for each transaction of a batch, or one for the whole. Their day is invalid when the entry has
    // none that can be read.
    [[nodiscard]] cImportEntryList Records() const;

private:
    void SplitBatch();
    [[nodiscard]] cImportEntry Record(const pugi::xml_node& detail, qint64 cents) const;

    QString m_account;
    pugi::xml_node m_entry;
    std::vector<pugi::xml_node> m_details;
    std::vector<qint64> m_parts; // cents of the details when the booking can be split
    std::optional<qint64> m_cents;
};
