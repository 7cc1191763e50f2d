#include "import/stage/cFetchMemory.h"

#include "base/modDate.h"
#include "core/cSettings.h"
#include "import/stage/modRowDigest.h"
#include "model/modSettingKey.h"

#include <QStringList>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int digits = 16; // hexadecimal ones of a digest

} // namespace

// "2026-03-10=3f…;2026-03-11=a0…"
cFetchMemory::cFetchMemory(cSettings& settings, const QString& account) : m_settings(settings), m_account(account)
{
    const QStringList parts = settings.Get(modSettingKey::Fetched.Of(account)).split(u';', Qt::SkipEmptyParts);
    m_rows.reserve(parts.size());
    for (const QStringView part : parts) {
        const qsizetype sign = part.indexOf(u'=');
        const QDate day = modDate::FromIso(part.left(sign));
        bool isDigest = false;
        const quint64 digest = part.mid(sign + 1).toULongLong(&isDigest, 16);
        if (sign > 0 && isDigest && day.isValid()) {
            m_rows.insert(digest, day);
            m_oldest = m_oldest.isValid() ? qMin(m_oldest, day) : day;
        }
    }
}

bool cFetchMemory::HasBrought(const cImportEntry& row, int number) const
{
    return m_oldest.isValid() && row.ImportDate >= m_oldest
        && (m_rows.contains(modRowDigest::Value(row, number))
            || m_rows.contains(modRowDigest::Value(row, number, modRowDigest::eBank::Counts)));
}

bool cFetchMemory::Note(const cImportEntryList& rows, QDate day)
{
    m_oldest = day.addDays(-KeptDays);
    QHash<quint64, int> numbers; // of the equal ones
    m_rows.reserve(m_rows.size() + rows.size());
    for (const cImportEntry& row : rows) {
        if (row.ImportDate >= m_oldest) {
            m_rows.insert(modRowDigest::Value(row, ++numbers[modRowDigest::Value(row)]), row.ImportDate);
        }
    }
    m_rows.removeIf([this](auto row) { return row.value() < m_oldest; });
    QList<std::pair<QDate, quint64>> kept;
    kept.reserve(m_rows.size());
    for (auto row = m_rows.constKeyValueBegin(); row != m_rows.constKeyValueEnd(); ++row) {
        kept.append({row->second, row->first});
    }
    std::sort(kept.begin(), kept.end());
    QStringList texts;
    texts.reserve(kept.size());
    for (const auto& [date, digest] : std::as_const(kept)) {
        texts.append(modDate::ToIso(date) + u'=' + QString::number(digest, 16).rightJustified(digits, u'0'));
    }
    return m_settings.Set(modSettingKey::Fetched.Of(m_account), texts.join(u';'));
}
