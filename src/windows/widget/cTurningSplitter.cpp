#include "windows/widget/cTurningSplitter.h"

cTurningSplitter::cTurningSplitter(int letters, QWidget* parent) : QSplitter(parent), m_letters(letters)
{
    setChildrenCollapsible(false);
}

// It can always become as narrow as its wider half.
QSize cTurningSplitter::minimumSizeHint() const
{
    int least = 0;
    for (int i = 0; i < count(); ++i) {
        least = qMax(least, widget(i)->minimumSizeHint().width());
    }
    return {least, QSplitter::minimumSizeHint().height()};
}

void cTurningSplitter::resizeEvent(QResizeEvent* event)
{
    const bool isNarrow = width() < fontMetrics().averageCharWidth() * m_letters;
    const Qt::Orientation wanted = isNarrow ? Qt::Vertical : Qt::Horizontal;
    if (orientation() != wanted) {
        setOrientation(wanted);
        updateGeometry();
    }
    QSplitter::resizeEvent(event);
}
