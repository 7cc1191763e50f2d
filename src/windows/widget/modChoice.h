#pragma once

#include <QString>

class cVocabulary;
class QComboBox;
class QWidget;

// Fields in which one of a few stored texts is chosen. Each item shows a text and holds the stored one as its data.
namespace modChoice {

// An empty field; `openText` stands in it while nothing is chosen.
[[nodiscard]] QComboBox* Make(QWidget* parent, const QString& openText);

void AddWords(QComboBox& combo, const cVocabulary& words);

// Chooses a stored text, or nothing for an empty one. A text that is not offered (an account that was deleted, say) is
// offered as well, so that saving does not change it.
void Choose(QComboBox& combo, const QString& stored);

} // namespace modChoice
