#include "import/stage/cLeftOutRows.h"

#include "base/modDate.h"
#include "core/cSettings.h"
#include "import/stage/modRowDigest.h"
#include "model/modSettingKey.h"

#include <QStringList>

#include <algorithm>

namespace {

// "2026-03-10=-300=3f…"
QString ToText(const cRepeat& repeat, modRowDigest::eBank bank = modRowDigest::eBank::Open)
{
    return modDate::ToIso(repeat.Entry.ImportDate) + u'=' + QString::number(repeat.Entry.ImportValue) + u'='
        + modRowDigest::Of(repeat.Entry, repeat.Number, bank);
}

} // namespace

QStringList cLeftOutRows::Texts(const QString& number) const
{
    return m_settings.Get(modSettingKey::EqualLeftOut.Of(number)).split(u';', Qt::SkipEmptyParts);
}

QList<cLeftOutRows::cRow> cLeftOutRows::Of(const QString& number) const
{
    QList<cRow> rows;
    const QStringList texts = Texts(number);
    for (const QString& text : texts) {
        if (const QDate day = modDate::FromIso(text.section(u'=', 0, 0)); day.isValid()) {
            rows.append({day, text.section(u'=', 1, 1).toLongLong()});
        }
    }
    return rows;
}

bool cLeftOutRows::Has(const cRepeat& repeat) const
{
    const QStringList texts = Texts(repeat.Entry.ImportAccount);
    return texts.contains(ToText(repeat)) || texts.contains(ToText(repeat, modRowDigest::eBank::Counts));
}

bool cLeftOutRows::Note(const cRepeatList& repeats)
{
    return std::all_of(repeats.begin(), repeats.end(), [this](const cRepeat& repeat) {
        return Has(repeat) || Save(repeat.Entry.ImportAccount, Texts(repeat.Entry.ImportAccount) << ToText(repeat));
    });
}

bool cLeftOutRows::Forget(const cRepeatList& repeats)
{
    return std::all_of(repeats.begin(), repeats.end(), [this](const cRepeat& repeat) {
        QStringList texts = Texts(repeat.Entry.ImportAccount);
        const auto removed =
            texts.removeAll(ToText(repeat)) + texts.removeAll(ToText(repeat, modRowDigest::eBank::Counts));
        return removed == 0 || Save(repeat.Entry.ImportAccount, texts);
    });
}

bool cLeftOutRows::Save(const QString& number, const QStringList& texts)
{
    const cSettingKey key = modSettingKey::EqualLeftOut.Of(number);
    return texts.isEmpty() ? m_settings.Delete(key) : m_settings.Set(key, texts.join(u';'));
}
