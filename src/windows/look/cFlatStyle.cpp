#include "windows/look/cFlatStyle.h"

#include "windows/look/modFlat.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>

#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString plainStyle = u"fusion"_s;
constexpr int arrowRoom = 14;
constexpr int buttonRoom = 18; // beside the words of a button

// An arrow where the plain style would draw a filled triangle.
bool DrawArrow(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter)
{
    switch (element) {
    case QStyle::PE_IndicatorArrowUp: modFlat::Arrow(painter, option, option.rect, Qt::UpArrow); return true;
    case QStyle::PE_IndicatorArrowDown: modFlat::Arrow(painter, option, option.rect, Qt::DownArrow); return true;
    case QStyle::PE_IndicatorArrowLeft: modFlat::Arrow(painter, option, option.rect, Qt::LeftArrow); return true;
    case QStyle::PE_IndicatorArrowRight: modFlat::Arrow(painter, option, option.rect, Qt::RightArrow); return true;
    case QStyle::PE_IndicatorBranch:
        if (option.state.testFlag(QStyle::State_Children)) {
            const auto closed = option.direction == Qt::RightToLeft ? Qt::LeftArrow : Qt::RightArrow;
            modFlat::Arrow(painter, option, option.rect,
                           option.state.testFlag(QStyle::State_Open) ? Qt::DownArrow : closed);
        }
        return true;
    case QStyle::PE_IndicatorHeaderArrow: {
        const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
        const bool isUp = header != nullptr && header->sortIndicator == QStyleOptionHeader::SortUp;
        modFlat::Arrow(painter, option, option.rect, isUp ? Qt::UpArrow : Qt::DownArrow);
        return true;
    }
    default: return false;
    }
}

bool IsDefault(const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionButton::DefaultButton)
        && button->state.testFlag(QStyle::State_Enabled);
}

bool DrawBox(QStyle::PrimitiveElement element, const QStyleOption& option, QPainter& painter)
{
    switch (element) {
    case QStyle::PE_FrameLineEdit: modFlat::FieldEdge(painter, option); return true;
    case QStyle::PE_PanelLineEdit: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
        if (frame == nullptr || frame->lineWidth == 0) {
            return false;
        }
        modFlat::Field(painter, option);
        return true;
    }
    case QStyle::PE_PanelButtonCommand: modFlat::Button(painter, option, IsDefault(option)); return true;
    case QStyle::PE_PanelButtonTool: modFlat::ToolButton(painter, option); return true;
    case QStyle::PE_IndicatorCheckBox: modFlat::CheckBox(painter, option); return true;
    case QStyle::PE_IndicatorRadioButton: modFlat::RadioButton(painter, option); return true;
    case QStyle::PE_FrameFocusRect:
        if (option.state.testFlag(QStyle::State_KeyboardFocusChange)) {
            modFlat::Focus(painter, option);
        }
        return true;
    case QStyle::PE_Frame:
    case QStyle::PE_FrameMenu: modFlat::Frame(painter, option); return true;
    case QStyle::PE_PanelMenu:
        painter.fillRect(option.rect, option.palette.color(QPalette::Base));
        modFlat::Frame(painter, option);
        return true;
    case QStyle::PE_FrameGroupBox: modFlat::GroupFrame(painter, option); return true;
    case QStyle::PE_PanelScrollAreaCorner:
        painter.fillRect(option.rect, option.palette.color(QPalette::Window));
        return true;
    case QStyle::PE_FrameTabBarBase: modFlat::BottomLine(painter, option); return true;
    case QStyle::PE_FrameDefaultButton:
    case QStyle::PE_FrameTabWidget:
    case QStyle::PE_FrameStatusBarItem: return true;
    default: return DrawArrow(element, option, painter);
    }
}

// Opens its menu wherever it is pressed, and says so by an arrow behind its text.
bool IsMenuTool(const QStyleOption& option)
{
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(&option);
    return button != nullptr && button->features.testFlag(QStyleOptionToolButton::HasMenu)
        && !button->features.testFlag(QStyleOptionToolButton::MenuButtonPopup) && !button->text.isEmpty();
}

// Length and place of a scroll bar's handle on the whole bar.
QRect HandleOf(const QStyleOptionSlider& bar, int leastLength)
{
    const bool isAcross = bar.orientation == Qt::Horizontal;
    const int length = isAcross ? bar.rect.width() : bar.rect.height();
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    const int wanted = range > 0 ? int(qint64(length) * bar.pageStep / (range + bar.pageStep)) : length;
    const int handle = std::min(length, std::max(leastLength, wanted));
    const int start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - handle, bar.upsideDown);
    const QRect place = isAcross ? QRect(start, 0, handle, bar.rect.height()) //
                                 : QRect(0, start, bar.rect.width(), handle);
    return QStyle::visualRect(bar.direction, bar.rect, place.translated(bar.rect.topLeft()));
}

} // namespace

cFlatStyle::cFlatStyle() : QProxyStyle(plainStyle)
{
    m_running.start();
}

bool cFlatStyle::IsPlain(const QPalette& palette)
{
    const std::unique_ptr<QStyle> plain(QStyleFactory::create(plainStyle));
    return palette == plain->standardPalette();
}

int cFlatStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_TabBarTabShiftVertical: return 0; // the line below the tab says which one is open
    case PM_ScrollBarExtent: return 12;
    case PM_ScrollBarSliderMin: return 32;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize cFlatStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const
{
    QSize made = QProxyStyle::sizeFromContents(type, option, size, widget);
    if (type == CT_HeaderSection) {
        made.rheight() += 6;
    }
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        type == CT_PushButton && button != nullptr && !button->text.isEmpty()) {
        const bool hasMenu = button->features.testFlag(QStyleOptionButton::HasMenu);
        made.setWidth(std::max(made.width(), size.width() + (hasMenu ? buttonRoom + arrowRoom / 2 : buttonRoom)));
    }
    if (type == CT_ToolButton && IsMenuTool(*option)) {
        made.rwidth() += arrowRoom;
    }
    return made;
}

QRect cFlatStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
        return QProxyStyle::subControlRect(control, option, part, widget);
    }
    const QRect handle = HandleOf(*bar, proxy()->pixelMetric(PM_ScrollBarSliderMin, bar, widget));
    const bool isAcross = bar->orientation == Qt::Horizontal;
    const auto before = [&](QRect place) {
        isAcross ? place.setRight(handle.left() - 1) : place.setBottom(handle.top() - 1);
        return place;
    };
    const auto behind = [&](QRect place) {
        isAcross ? place.setLeft(handle.right() + 1) : place.setTop(handle.bottom() + 1);
        return place;
    };
    const bool isTurned = isAcross && bar->direction == Qt::RightToLeft;
    switch (part) {
    case SC_ScrollBarGroove: return bar->rect;
    case SC_ScrollBarSlider: return handle;
    case SC_ScrollBarSubPage: return isTurned ? behind(bar->rect) : before(bar->rect);
    case SC_ScrollBarAddPage: return isTurned ? before(bar->rect) : behind(bar->rect);
    default: return {};
    }
}

void cFlatStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    if (!DrawBox(element, *option, *painter)) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void cFlatStyle::DrawMenuBarItem(const QStyleOption& option, QPainter& painter, const QWidget* widget) const
{
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(&option);
    if (item == nullptr) {
        return;
    }
    if (item->state.testFlag(State_Selected) && item->state.testFlag(State_Enabled)) {
        modFlat::Shade(painter, option, option.rect.adjusted(0, 1, 0, -1), 0.1);
    }
    const bool isUnderlined = proxy()->styleHint(SH_UnderlineShortcut, item, widget) != 0;
    proxy()->drawItemText(&painter, item->rect,
                          Qt::AlignCenter | (isUnderlined ? Qt::TextShowMnemonic : Qt::TextHideMnemonic)
                              | Qt::TextDontClip | Qt::TextSingleLine,
                          item->palette, item->state.testFlag(State_Enabled), item->text, QPalette::WindowText);
}

void cFlatStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    switch (element) {
    case CE_HeaderEmptyArea:
        if (!option->state.testFlag(State_Horizontal)) { // below the rows it is ground of the table
            painter->fillRect(option->rect, option->palette.color(QPalette::Base));
            return;
        }
        [[fallthrough]];
    case CE_HeaderSection: modFlat::HeaderGround(*painter, *option, option->state.testFlag(State_Horizontal)); return;
    case CE_TabBarTabShape: modFlat::Tab(*painter, *option); return;
    case CE_ToolBar:
        painter->fillRect(option->rect, option->palette.color(QPalette::Window));
        modFlat::BottomLine(*painter, *option);
        return;
    case CE_MenuBarEmptyArea: painter->fillRect(option->rect, option->palette.color(QPalette::Window)); return;
    case CE_MenuBarItem: DrawMenuBarItem(*option, *painter, widget); return;
    case CE_PushButtonLabel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
            button != nullptr && IsDefault(*button)) {
            QStyleOptionButton onAccent = *button;
            onAccent.palette.setColor(QPalette::ButtonText, button->palette.color(QPalette::HighlightedText));
            QProxyStyle::drawControl(element, &onAccent, painter, widget);
            return;
        }
        break;
    case CE_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
            item != nullptr && item->menuItemType == QStyleOptionMenuItem::Separator && item->text.isEmpty()) {
            modFlat::MiddleLine(*painter, *option);
            return;
        }
        break;
    case CE_ProgressBarContents:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option)) {
            DrawProgress(*bar, *painter, widget);
        }
        return;
    case CE_ProgressBarGroove: modFlat::Groove(*painter, *option, option->rect, 0.15); return;
    default: break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void cFlatStyle::DrawComboBox(const QStyleOptionComboBox& box, QPainter& painter, const QWidget* widget) const
{
    if (!box.frame) {
        painter.fillRect(box.rect, box.palette.color(QPalette::Base));
    } else if (box.editable) {
        modFlat::Field(painter, box);
    } else {
        modFlat::Choice(painter, box);
    }
    QStyleOptionComboBox arrow(box);
    arrow.state.setFlag(State_Selected, false); // said of the box with the focus, whose ground stays as it is
    modFlat::Arrow(painter, arrow, proxy()->subControlRect(CC_ComboBox, &box, SC_ComboBoxArrow, widget), Qt::DownArrow);
}

void cFlatStyle::DrawSpinBox(const QStyleOptionSpinBox& box, QPainter& painter, const QWidget* widget) const
{
    if (box.frame) {
        modFlat::Field(painter, box);
    }
    if (box.buttonSymbols == QAbstractSpinBox::NoButtons) {
        return;
    }
    const auto draw = [&](SubControl part, QAbstractSpinBox::StepEnabledFlag step, Qt::ArrowType direction) {
        const QRect place = proxy()->subControlRect(CC_SpinBox, &box, part, widget);
        QStyleOption arrow;
        arrow.palette = box.palette;
        arrow.fontMetrics = box.fontMetrics;
        arrow.state = box.state;
        arrow.state.setFlag(State_Enabled, box.state.testFlag(State_Enabled) && box.stepEnabled.testFlag(step));
        if (arrow.state.testFlag(State_Enabled) && box.activeSubControls == part) {
            modFlat::Shade(painter, box, place.adjusted(0, 1, -1, -1), box.state.testFlag(State_Sunken) ? 0.2 : 0.1);
        }
        modFlat::Arrow(painter, arrow, place, direction);
    };
    draw(SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow);
    draw(SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow);
}

void cFlatStyle::DrawMenuTool(const QStyleOptionToolButton& button, QPainter& painter, const QWidget* widget) const
{
    QStyleOptionToolButton text(button);
    text.features.setFlag(QStyleOptionToolButton::HasMenu, false);
    if (button.state & (State_Sunken | State_On) || !button.state.testFlag(State_AutoRaise)
        || (button.state.testFlag(State_MouseOver) && button.state.testFlag(State_Enabled))) {
        proxy()->drawPrimitive(PE_PanelButtonTool, &button, &painter, widget);
    }
    if (button.state.testFlag(State_HasFocus)) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(button);
        proxy()->drawPrimitive(PE_FrameFocusRect, &focus, &painter, widget);
    }
    text.rect = visualRect(button.direction, button.rect, button.rect.adjusted(0, 0, -arrowRoom, 0));
    proxy()->drawControl(CE_ToolButtonLabel, &text, &painter, widget);
    const QRect end(button.rect.right() - arrowRoom, button.rect.top(), arrowRoom, button.rect.height());
    modFlat::Arrow(painter, button, visualRect(button.direction, button.rect, end), Qt::DownArrow);
}

void cFlatStyle::DrawProgress(const QStyleOptionProgressBar& bar, QPainter& painter, const QWidget* widget) const
{
    const auto part = [&](double from, double to) {
        const auto at = [&](double share) { return int(share * bar.rect.width()); };
        const QRect place(bar.rect.left() + at(from), bar.rect.top(), at(to) - at(from), bar.rect.height());
        modFlat::Filled(painter, bar, visualRect(bar.direction, bar.rect, place));
    };
    const qint64 range = qint64(bar.maximum) - bar.minimum;
    if (range > 0) {
        part(0, double(qint64(bar.progress) - bar.minimum) / double(range));
        return;
    }
    painter.save(); // how far it is nobody knows: the plain style has it painted again and again, unseen
    painter.setClipRect(QRect());
    QProxyStyle::drawControl(CE_ProgressBarContents, &bar, &painter, widget);
    painter.restore();
    constexpr int way = 1600; // milliseconds there and back
    constexpr double length = 0.25;
    const double share = double(m_running.elapsed() % way) / way;
    const double start = (1 - length) * (share < 0.5 ? 2 * share : 2 - 2 * share);
    part(start, start + length);
}

void cFlatStyle::DrawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const
{
    painter.fillRect(bar.rect, bar.palette.color(QPalette::Window));
    if (bar.maximum <= bar.minimum) {
        return;
    }
    const bool isHeld = bar.state.testFlag(State_Sunken) && bar.activeSubControls == SC_ScrollBarSlider;
    const bool isMet = bar.state.testFlag(State_MouseOver);
    const QRect handle = proxy()->subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSlider, widget);
    modFlat::Groove(painter, bar, handle.adjusted(3, 3, -3, -3), isHeld ? 0.6 : isMet ? 0.45 : 0.3);
}

void cFlatStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const
{
    if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        DrawComboBox(*box, *painter, widget);
    } else if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option)) {
        DrawSpinBox(*spin, *painter, widget);
    } else if (const auto* tool = qstyleoption_cast<const QStyleOptionToolButton*>(option);
               tool != nullptr && IsMenuTool(*tool)) {
        DrawMenuTool(*tool, *painter, widget);
    } else if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
               bar != nullptr && control == CC_ScrollBar) {
        DrawScrollBar(*bar, *painter, widget);
    } else {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}
