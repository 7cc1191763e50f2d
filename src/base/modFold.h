#pragma once

#include <QString>
#include <QStringList>

// Comparing texts as a person does who types quickly: without regard to case, accents and umlauts.
namespace modFold {

// The text in both foldings, "Müller" as "muller" and as "mueller".
struct cFolded
{
    QString Plain;
    QString Spelled;
};

[[nodiscard]] cFolded Fold(const QString& text);

// The words of a search text, folded.
[[nodiscard]] QList<cFolded> Words(const QString& search);

// True when every word is found in the text; without words it is always true.
[[nodiscard]] bool HoldsAll(const cFolded& text, const QList<cFolded>& words);

} // namespace modFold
