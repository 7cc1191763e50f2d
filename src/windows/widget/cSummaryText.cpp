#include "windows/widget/cSummaryText.h"

#include "base/cText.h"

namespace {

constexpr int mostLines = 5;
constexpr int shareOfWindow = 9; // of a low one it takes this part at most

} // namespace

cSummaryText::cSummaryText(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(textInteractionFlags() | Qt::TextSelectableByKeyboard); // its caret shows the focus
    setTabChangesFocus(true);
    setAccessibleName(cText::Tr("Ergebnis"));
}

void cSummaryText::ShowLines(const QStringList& lines)
{
    setPlainText(lines.join(u'\n'));
    setVisible(!lines.isEmpty());
    Fit();
}

void cSummaryText::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    Fit();
}

// As high as its lines are at this width, where the window has room for them.
void cSummaryText::Fit()
{
    const int most = qBound(2, window()->height() / fontMetrics().lineSpacing() / shareOfWindow, mostLines);
    const int shown = qBound(1, qRound(document()->size().height()), most); // counted in lines here
    const int frame = frameWidth() + static_cast<int>(document()->documentMargin());
    setFixedHeight(fontMetrics().lineSpacing() * shown + 2 * frame + 4);
}
