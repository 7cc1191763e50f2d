#include "import/stage/cFetchMemory.h"

#include "base/modDate.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"

#include <QCryptographicHash>
#include <QStringList>
#include <QtEndian>
#include <QVarLengthArray>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int digits = 16; // hexadecimal ones of a digest: far more than a few thousand rows need

// The account is that of the setting; it may be staged in another form after a change of formats.
quint64 DigestOf(const cImportEntry& row)
{
    QVarLengthArray<char16_t, 512> fields;
    const auto add = [&](const QString& field, bool isExact) {
        for (const QChar c : field) {
            if (isExact || !c.isSpace()) {
                fields.append(c.unicode());
            }
        }
        fields.append(u'\n');
    };
    add(modDate::ToIso(row.ImportDate), true);
    add(QString::number(row.ImportValue), true);
    add(row.ImportBeneficiaryAccount, true);
    add(row.ImportBeneficiaryBLZ, true);
    add(row.ImportBeneficiary, false);
    add(row.ImportPurpose, false);
    const QByteArray text = QStringView(fields.constData(), fields.size() - 1).toUtf8();
    return qFromBigEndian<quint64>(QCryptographicHash::hash(text, QCryptographicHash::Sha1).constData());
}

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

bool cFetchMemory::HasBrought(const cImportEntry& row) const
{
    return m_oldest.isValid() && row.ImportDate >= m_oldest && m_rows.contains(DigestOf(row));
}

bool cFetchMemory::Note(const cImportEntryList& rows, QDate day)
{
    m_oldest = day.addDays(-KeptDays);
    m_rows.reserve(m_rows.size() + rows.size());
    for (const cImportEntry& row : rows) {
        if (row.ImportDate >= m_oldest) {
            m_rows.insert(DigestOf(row), row.ImportDate);
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
