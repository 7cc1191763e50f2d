#include "import/cMatch.h"

#include "base/cText.h"

QString cMatchResult::Summary() const
{
    const auto count = [](qsizetype number) { return QString::number(number); };
    QString text = cText::Tr("{0} Umsätze zugeordnet, {1} vorgeschlagen, {2} bleiben offen",
                             {count(Assigned.size()), count(Proposed.size()), count(Left.size())});
    if (Listed > 0) {
        text += cText::Tr(", davon {0} mit möglichen Einträgen", {count(Listed)});
    }
    if (!Transfers.isEmpty()) {
        text += cText::Tr("; {0} Umbuchungen zwischen eigenen Konten erkannt", {count(Transfers.size())});
    }
    if (Failed > 0) {
        text += cText::Tr("; {0} nicht gespeichert", {count(Failed)});
    }
    return text;
}
