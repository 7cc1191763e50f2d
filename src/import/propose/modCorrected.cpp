#include "import/propose/modCorrected.h"

#include "model/modSettingKey.h"
#include "store/cDataAccess.h"

#include <QStringList>

#include <utility>

namespace {

constexpr qsizetype most = 500; // older ones have long been followed by other bookings

} // namespace

QList<int> modCorrected::Load(cDataAccess& data)
{
    QList<int> ids;
    const QList<std::pair<QString, QString>> settings = data.GetSettings();
    for (const auto& [name, value] : settings) {
        if (name == modSettingKey::Corrected.Name()) {
            const QStringList texts = value.split(u'\n', Qt::SkipEmptyParts);
            for (const QString& text : texts) {
                ids.append(text.toInt());
            }
        }
    }
    return ids;
}

bool modCorrected::Note(cDataAccess& data, int entryId)
{
    QList<int> ids = Load(data);
    ids.removeAll(entryId);
    ids.append(entryId);
    ids = ids.mid(qMax<qsizetype>(0, ids.size() - most));
    QStringList texts;
    for (const int id : ids) {
        texts.append(QString::number(id));
    }
    return data.ChangeSettingItem(modSettingKey::Corrected.Name(), texts.join(u'\n'));
}
