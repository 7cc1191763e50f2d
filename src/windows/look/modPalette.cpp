#include "windows/look/modPalette.h"

#include <QColor>

namespace {

struct cColours
{
    QRgb Window;
    QRgb Button;
    QRgb Base;
    QRgb AlternateBase;
    QRgb Text;
    QRgb QuietText; // of what cannot be used now
    QRgb Highlight;
    QRgb Link;
    QRgb VisitedLink;
};

constexpr cColours light{0xfff2f4f6, 0xffffffff, 0xffffffff, 0xfff7f8fa, 0xff1b1d20,
                         0xff767a80, 0xff2d6ea0, 0xff0b57a4, 0xff6a3d9a};
constexpr cColours dark{0xff2d2f33, 0xff3a3d42, 0xff1e2023, 0xff26282c, 0xffe6e8eb,
                        0xff82858a, 0xff2d6ea0, 0xff6eb4f0, 0xffc0a0e8};

QPalette Made(const cColours& colours)
{
    QPalette palette{QColor(colours.Window)}; // with the edges that go with it
    palette.setColor(QPalette::Button, QColor(colours.Button));
    palette.setColor(QPalette::Base, QColor(colours.Base));
    palette.setColor(QPalette::AlternateBase, QColor(colours.AlternateBase));
    palette.setColor(QPalette::Highlight, QColor(colours.Highlight));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(colours.Link));
    palette.setColor(QPalette::LinkVisited, QColor(colours.VisitedLink));
    palette.setColor(QPalette::ToolTipBase, QColor(colours.AlternateBase));
    palette.setColor(QPalette::ToolTipText, QColor(colours.Text));
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
        palette.setColor(role, QColor(colours.Text));
        palette.setColor(QPalette::Disabled, role, QColor(colours.QuietText));
    }
    QColor hint(colours.Text);
    hint.setAlpha(150);
    palette.setColor(QPalette::PlaceholderText, hint);
    return palette;
}

} // namespace

QPalette modPalette::Light()
{
    return Made(light);
}

QPalette modPalette::Dark()
{
    return Made(dark);
}
