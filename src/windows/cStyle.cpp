#include "windows/cStyle.h"

#include "windows/modIcon.h"

using namespace Qt::Literals::StringLiterals;

QIcon cStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    switch (icon) {
    case SP_ToolBarHorizontalExtensionButton: return modIcon::Get(u"mehr"_s);
    case SP_ToolBarVerticalExtensionButton: return modIcon::Get(u"mehr-unten"_s);
    case SP_LineEditClearButton: return modIcon::Get(u"leeren"_s);
    default: return QProxyStyle::standardIcon(icon, option, widget);
    }
}
