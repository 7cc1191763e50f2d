#include "views/statement/cStagedFilter.h"

#include "model/modCutText.h"

#include <QHash>
#include <QStringList>

#include <array>
#include <unordered_map>

namespace {

// What rows of one counterparty share. Rows of one query share their characters too, so addresses tell them apart.
using cShared = std::array<const QChar*, 4>;

struct cSharedHash
{
    std::size_t operator()(const cShared& shared) const { return qHashRange(shared.begin(), shared.end()); }
};

cShared Shared(const cImportEntry& row)
{
    return {row.ImportBeneficiary.constData(), row.ImportType.constData(), row.ImportBeneficiaryAccount.constData(),
            row.ImportAccount.constData()};
}

QString Words(const cImportEntry& row)
{
    return QStringList{modCutText::Name(row.ImportBeneficiary), row.ImportType, row.ImportBeneficiaryAccount,
                       row.ImportAccount}
        .join(u'\n');
}

} // namespace

cStagedFilter::cStagedFilter(const cImportEntryList& rows, const cAmountFormat& format) : m_rows(rows), m_filter(format)
{
    std::unordered_map<cShared, int, cSharedHash> known;
    for (const cImportEntry& row : rows) {
        const auto [words, isNew] = known.try_emplace(Shared(row), 0);
        if (isNew) {
            words->second = m_filter.AddText(Words(row));
        }
        m_filter.AddRow(words->second, m_filter.AddText(modCutText::Purpose(row.ImportPurpose)), row.ImportDate);
    }
}

std::vector<int> cStagedFilter::Find(const QList<modFold::cFolded>& words, const std::vector<int>& among)
{
    return m_filter.Find(words, among, [this](int row) { return m_rows.at(row).ImportValue; });
}
