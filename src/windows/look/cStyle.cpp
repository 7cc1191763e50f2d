#include "windows/look/cStyle.h"

#include "windows/look/cFlatStyle.h"
#include "windows/look/modIcon.h"

#include <QStyleHintReturn>
#include <QStyleOption>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

cStyle::cStyle()
{
    if (baseStyle()->name() == u"fusion") { // what the toolkit takes where the desktop names none
        setBaseStyle(new cFlatStyle);
    }
}

cStyle::cStyle(QStyle* base) : QProxyStyle(base)
{
}

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
