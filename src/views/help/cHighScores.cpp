#include "views/help/cHighScores.h"

#include "base/modDate.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"

#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

// "3400/12/2026-11-22;2100/9/2026-11-20"
QList<cHighScores::cRun> cHighScores::Best() const
{
    QList<cRun> runs;
    const QStringList texts = m_settings.Get(modSettingKey::GameScores).split(u';', Qt::SkipEmptyParts);
    for (const QString& text : texts) {
        const cRun run{text.section(u'/', 0, 0).toInt(), text.section(u'/', 1, 1).toInt(),
                       modDate::FromIso(text.section(u'/', 2))};
        if (run.Points > 0 && run.Day.isValid()) {
            runs.append(run);
        }
    }
    std::stable_sort(runs.begin(), runs.end(), [](const cRun& a, const cRun& b) { return a.Points > b.Points; });
    return runs.first(std::min<qsizetype>(runs.size(), Kept));
}

int cHighScores::Add(const cRun& run)
{
    QList<cRun> runs = Best();
    const auto place =
        std::find_if(runs.begin(), runs.end(), [&](const cRun& each) { return each.Points < run.Points; });
    const qsizetype number = place - runs.begin();
    if (run.Points <= 0 || number >= Kept) {
        return 0;
    }
    runs.insert(number, run);
    QStringList texts;
    for (const cRun& each : std::as_const(runs).first(std::min<qsizetype>(runs.size(), Kept))) {
        texts.append(
            QStringList{QString::number(each.Points), QString::number(each.Months), modDate::ToIso(each.Day)}.join(
                u'/'));
    }
    return m_settings.Set(modSettingKey::GameScores, texts.join(u';')) ? static_cast<int>(number) + 1 : 0;
}
