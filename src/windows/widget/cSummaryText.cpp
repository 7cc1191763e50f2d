#include "windows/widget/cSummaryText.h"

#include "base/cText.h"

namespace {

constexpr int mostLines = 5;

} // namespace

cSummaryText::cSummaryText(QWidget* parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTabChangesFocus(true);
    setAccessibleName(cText::Tr("Ergebnis"));
}

void cSummaryText::ShowLines(const QStringList& lines)
{
    setPlainText(lines.join(u'\n'));
    setVisible(!lines.isEmpty());
    const int shown = qBound(1, static_cast<int>(lines.size()), mostLines);
    const int frame = frameWidth() + static_cast<int>(document()->documentMargin());
    setFixedHeight(fontMetrics().lineSpacing() * shown + 2 * frame + 4);
}
