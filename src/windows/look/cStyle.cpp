#include "windows/look/cStyle.h"

#include "windows/look/modIcon.h"
#include "windows/look/modTone.h"

#include <QPainter>
#include <QStyleHintReturn>
#include <QStyleOption>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

int cStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* more) const
{
    // The toolkit would give pictures only to those buttons whose text it knows.
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, more);
}

QIcon cStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    switch (icon) {
    case SP_ToolBarHorizontalExtensionButton: return modIcon::Get(u"mehr"_s);
    case SP_ToolBarVerticalExtensionButton: return modIcon::Get(u"mehr-unten"_s);
    case SP_LineEditClearButton: return modIcon::Get(u"leeren"_s);
    case SP_MessageBoxQuestion: return modIcon::Get(u"frage"_s);
    case SP_MessageBoxInformation: return modIcon::Get(u"hinweis"_s);
    case SP_MessageBoxWarning: return modIcon::Get(u"warnung"_s);
    case SP_MessageBoxCritical: return modIcon::Get(u"fehler"_s);
    default: return QProxyStyle::standardIcon(icon, option, widget);
    }
}

void cStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                           const QWidget* widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool isField = element == PE_FrameLineEdit && !(option->state & State_HasFocus);
    if (!(isField || element == PE_IndicatorCheckBox) || !modTone::IsDark(option->palette)) {
        return;
    }
    constexpr double corner = 2;
    QColor edge = option->palette.color(QPalette::Text);
    edge.setAlphaF(0.3F);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(edge);
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    painter->restore();
}

void cStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const
{
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (element != CE_HeaderLabel || header == nullptr) {
        QProxyStyle::drawControl(element, option, painter, widget);
        return;
    }
    QStyleOptionHeader elided = *header;
    elided.text = header->fontMetrics.elidedText(header->text, Qt::ElideRight, header->rect.width());
    QProxyStyle::drawControl(element, &elided, painter, widget);
}
