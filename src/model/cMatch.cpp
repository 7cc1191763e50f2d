#include "model/cMatch.h"

#include "base/cText.h"

QString cMatchResult::Summary() const
{
    const auto count = [](qsizetype number) { return QString::number(number); };
    QString text = cText::Tr("Zugeordnet: {0}, vorgeschlagen: {1}, offen: {2}",
                             {count(Assigned.size()), count(Proposed.size()), count(Left.size())});
    if (Listed > 0) {
        text += cText::Tr(", davon mit möglichen Einträgen: {0}", {count(Listed)});
    }
    if (!Transfers.isEmpty()) {
        text += cText::Tr("; Umbuchungen zwischen eigenen Konten: {0}", {count(Transfers.size())});
    }
    if (Failed > 0) {
        text += cText::Tr("; nicht gespeichert: {0}", {count(Failed)});
    }
    return text;
}
