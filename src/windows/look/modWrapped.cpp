#include "windows/look/modWrapped.h"

#include <QLabel>

QLabel* modWrapped::Make(const QString& text, int columns, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setWordWrap(true);
    const int width = label->fontMetrics().averageCharWidth() * columns;
    label->setMinimumSize(width, label->heightForWidth(width));
    return label;
}
