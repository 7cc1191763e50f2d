#include "import/stage/cFetchMemory.h"

#include "base/modDate.h"
#include "core/cSettings.h"
#include "import/stage/modRowDigest.h"
#include "model/modSettingKey.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

// "2026-03-10=3f…;2026-03-11=a0…"
cFetchMemory::cFetchMemory(cSettings& settings, const QString& account) : m_settings(settings), m_account(account)
{
    const QStringList parts = settings.Get(modSettingKey::Fetched.Of(account)).split(u';', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        if (const QDate day = modDate::FromIso(part.section(u'=', 0, 0)); day.isValid()) {
            m_rows.insert(part.section(u'=', 1), day);
            m_oldest = m_oldest.isValid() ? qMin(m_oldest, day) : day;
        }
    }
}

bool cFetchMemory::HasBrought(const cImportEntry& row, int number) const
{
    return m_oldest.isValid() && row.ImportDate >= m_oldest && m_rows.contains(modRowDigest::Of(row, number));
}

bool cFetchMemory::Note(const cImportEntryList& rows, QDate day)
{
    m_oldest = day.addDays(-KeptDays);
    QHash<QString, int> numbers; // of the equal ones
    for (const cImportEntry& row : rows) {
        if (row.ImportDate >= m_oldest) {
            m_rows.insert(modRowDigest::Of(row, ++numbers[modRowDigest::Of(row)]), row.ImportDate);
        }
    }
    m_rows.removeIf([this](auto row) { return row.value() < m_oldest; });
    QStringList kept;
    for (auto row = m_rows.constKeyValueBegin(); row != m_rows.constKeyValueEnd(); ++row) {
        kept.append(modDate::ToIso(row->second) + u'=' + row->first);
    }
    kept.sort();
    return m_settings.Set(modSettingKey::Fetched.Of(m_account), kept.join(u';'));
}
