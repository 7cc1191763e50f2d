#include "windows/look/modTone.h"

#include <QEvent>
#include <QWidget>

namespace {

const QString keeperName = QStringLiteral("toneKeeper");

class cToneKeeper final : public QObject
{
public:
    cToneKeeper(QWidget& widget, modTone::fnTone tone, QPalette::ColorRole role)
        : QObject(&widget),
          m_widget(widget),
          m_tone(tone),
          m_role(role)
    {
        setObjectName(keeperName);
        widget.installEventFilter(this);
        Colour();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange) {
            Colour();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void Colour()
    {
        QPalette colours = m_widget.palette();
        const QColor colour = m_tone(colours);
        if (colours.color(QPalette::Active, m_role) != colour) { // setting it changes the palette again
            colours.setColor(m_role, colour);
            m_widget.setPalette(colours);
        }
    }

    QWidget& m_widget;
    modTone::fnTone m_tone;
    QPalette::ColorRole m_role;
};

} // namespace

bool modTone::IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Base).lightness() < 128;
}

QColor modTone::Income(const QPalette& palette)
{
    return IsDark(palette) ? QColor(0x7a, 0xd6, 0x9b) : QColor(0x17, 0x70, 0x3a);
}

QColor modTone::Expense(const QPalette& palette)
{
    return IsDark(palette) ? QColor(0xff, 0x9a, 0x8f) : QColor(0xb0, 0x2a, 0x20);
}

QColor modTone::Warning(const QPalette& palette)
{
    return IsDark(palette) ? QColor(0xff, 0xc4, 0x66) : QColor(0x94, 0x55, 0x00);
}

QColor modTone::Quiet(const QPalette& palette)
{
    QColor text = palette.color(QPalette::Text);
    text.setAlphaF(0.65F);
    return text;
}

void modTone::Use(QWidget& widget, fnTone tone, QPalette::ColorRole role)
{
    delete widget.findChild<QObject*>(keeperName, Qt::FindDirectChildrenOnly);
    widget.setPalette({});
    if (tone != nullptr) {
        new cToneKeeper(widget, tone, role);
    }
}
