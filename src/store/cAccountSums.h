#pragma once

#include "model/cAccountSum.h"
#include "model/cEntryItem.h"
#include "store/modRow.h"

#include <QList>

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// Sums by three stored texts. Neighbours mostly share them, so the sum found last is tried before the hash.
template <typename tSum>
class cSumsByTexts
{
public:
    struct cPart
    {
        std::array<std::string, 3> Texts;
        tSum Sum{};
    };

    tSum& Of(const std::array<std::string_view, 3>& texts)
    {
        if (m_last >= m_parts.size() || !std::equal(texts.begin(), texts.end(), m_parts[m_last].Texts.begin())) {
            m_last = Find(texts);
        }
        return m_parts[m_last].Sum;
    }

    [[nodiscard]] const std::vector<cPart>& Parts() const { return m_parts; }

private:
    size_t Find(const std::array<std::string_view, 3>& texts)
    {
        constexpr char between = '\0';
        m_key.assign(texts[0]).append(1, between).append(texts[1]).append(1, between).append(texts[2]);
        const auto [place, isNew] = m_places.try_emplace(m_key, m_parts.size());
        if (isNew) {
            m_parts.push_back({{std::string(texts[0]), std::string(texts[1]), std::string(texts[2])}});
        }
        return place->second;
    }

    std::vector<cPart> m_parts;
    std::unordered_map<std::string, size_t> m_places;
    std::string m_key; // kept for its memory
    size_t m_last = 0;
};

// Sums by kind, account and target.
class cAccountSums
{
public:
    static constexpr const char* Columns =
        "EntryDate, EntryType, EntryAccount, EntryAccountMove, EntryValue, EntryCategory";

    void Add(std::span<const std::string_view> stored)
    {
        m_sums.Of({stored[1], stored[2], stored[3]}).Cents += modRow::ReadCents(stored[4]).value_or(0);
    }

    void Add(const cEntryItem& entry, qint64 cents)
    {
        const std::string type = entry.EntryType.toStdString();
        const std::string account = modRow::Doubled(entry.EntryAccount).toStdString();
        const std::string move = modRow::Doubled(entry.EntryAccountMove).toStdString();
        m_sums.Of({type, account, move}).Cents += cents;
    }

    // Occurrences of one series, which share everything but day and amount.
    void AddSeries(const cEntryItemList& occurrences)
    {
        qint64 cents = 0;
        for (const cEntryItem& item : occurrences) {
            cents += item.EntryValue;
        }
        if (!occurrences.isEmpty()) {
            Add(occurrences.first(), cents);
        }
    }

    [[nodiscard]] QList<cAccountSum> Take() const
    {
        QList<cAccountSum> sums;
        for (const auto& [texts, sum] : m_sums.Parts()) {
            sums.append({QString::fromStdString(texts[0]), modRow::ReadDoubled(texts[1]), modRow::ReadDoubled(texts[2]),
                         sum.Cents});
        }
        return sums;
    }

private:
    cSumsByTexts<cAccountSum> m_sums;
};
