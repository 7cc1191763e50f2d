#include "windows/widget/modChoice.h"

#include "base/cVocabulary.h"

#include <QComboBox>

QComboBox* modChoice::Make(QWidget* parent, const QString& openText)
{
    auto* combo = new QComboBox(parent);
    combo->setPlaceholderText(openText);
    combo->setMinimumContentsLength(16);
    combo->setMaxVisibleItems(16);
    return combo;
}

void modChoice::AddWords(QComboBox& combo, const cVocabulary& words)
{
    const QStringList stored = words.Stored();
    for (const QString& word : stored) {
        combo.addItem(words.ToShown(word), word);
    }
}

void modChoice::Choose(QComboBox& combo, const QString& stored)
{
    if (!stored.isEmpty() && combo.findData(stored) < 0) {
        combo.addItem(stored, stored);
    }
    combo.setCurrentIndex(combo.findData(stored));
}
