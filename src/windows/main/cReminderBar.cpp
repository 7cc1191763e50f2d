#include "windows/main/cReminderBar.h"

#include "base/cText.h"
#include "windows/look/modIcon.h"

#include <QtMath>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastLetters = 16; // a text cut shorter says nothing

} // namespace

cReminderBar::cReminderBar(QWidget* parent) : QToolButton(parent)
{
    setObjectName(u"cmdErinnerung"_s);
    setAutoRaise(true);
    setIcon(modIcon::Get(u"zukunft"_s));
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
    hide();
}

void cReminderBar::ShowText(const QString& text)
{
    m_text = text;
    setToolTip(text.isEmpty() ? QString() : cText::Tr("{0}\nEin Klick zeigt mehr.", {text}));
    setAccessibleName(text);
    Cut();
    updateGeometry();
    setVisible(!text.isEmpty());
}

int cReminderBar::Frame() const
{
    return iconSize().width() + fontMetrics().averageCharWidth() * 4;
}

QSize cReminderBar::sizeHint() const
{
    const int whole = qCeil(QFontMetricsF(font()).horizontalAdvance(m_text)) + 1; // else the last letters would be cut
    return {whole + Frame(), QToolButton::sizeHint().height()};
}

QSize cReminderBar::minimumSizeHint() const
{
    return {std::min(fontMetrics().averageCharWidth() * leastLetters + Frame(), sizeHint().width()),
            QToolButton::minimumSizeHint().height()};
}

void cReminderBar::resizeEvent(QResizeEvent* event)
{
    QToolButton::resizeEvent(event);
    Cut();
}

// An ampersand in a name is no mnemonic.
void cReminderBar::Cut()
{
    const QString cut = fontMetrics().elidedText(m_text, Qt::ElideRight, width() - Frame());
    setText(QString(cut).replace(u'&', u"&&"_s));
}
