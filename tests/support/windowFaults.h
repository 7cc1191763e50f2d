#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAccessible>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeySequence>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMetaObject>
#include <QRegularExpression>
#include <QStringList>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolButton>
#include <QTreeView>

// What keeps somebody from using a window without mouse or eyes, or from reading it. All of it is looked up in the
// widgets that are in sight.
namespace modWindowFaults {

inline QString Named(const QWidget& widget)
{
    QString text = QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        text += u' ' + button->text();
    } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        text += u' ' + label->text();
    } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        text += u' ' + combo->currentText();
    }
    return text;
}

template <typename tVisit>
void ForEachVisible(const QWidget& window, tVisit visit)
{
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool isDrawnAside = widget->mapTo(&window, QPoint(widget->width(), 0)).x() <= 0; // by a splitter
        if (widget->isVisibleTo(&window) && widget->window() == &window && !isDrawnAside) {
            visit(*widget);
        }
    }
}

// Controls that the tabulator key reaches and a screen reader has no name for.
inline QStringList Nameless(const QWidget& window)
{
    QStringList faults;
    ForEachVisible(window, [&](const QWidget& widget) {
        const QWidget* parent = widget.parentWidget();
        const bool isInner = qobject_cast<const QComboBox*>(parent) != nullptr
            || qobject_cast<const QAbstractSpinBox*>(parent) != nullptr;
        if (isInner || widget.focusProxy() != nullptr || (widget.focusPolicy() & Qt::TabFocus) == 0
            || qobject_cast<const QTabBar*>(&widget) != nullptr) {
            return;
        }
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
        if (face == nullptr || face->text(QAccessible::Name).isEmpty()) {
            faults.append(QStringLiteral("no name: ") + Named(widget));
        }
    });
    return faults;
}

// Labels whose name for screen readers takes the place of what they show.
inline QStringList Silent(const QWidget& window)
{
    QStringList faults;
    ForEachVisible(window, [&](const QWidget& widget) {
        const auto* label = qobject_cast<const QLabel*>(&widget);
        QString shown = label == nullptr || label->accessibleName().isEmpty() ? QString() : label->text();
        shown.remove(QRegularExpression(QStringLiteral("<[^>]*>"))).remove(u'&');
        if (!shown.isEmpty() && !label->accessibleName().contains(shown)) {
            faults.append(QStringLiteral("silent: ") + Named(widget));
        }
    });
    return faults;
}

inline void NoteMnemonic(const QString& text, const QString& owner, QStringList& used, QStringList& faults)
{
    const QKeySequence key = QKeySequence::mnemonic(text);
    if (key.isEmpty()) {
        return;
    }
    if (used.contains(key.toString())) {
        faults.append(QStringLiteral("%1 twice: %2 in %3").arg(key.toString(), text, owner));
    }
    used.append(key.toString());
}

// Letters that two controls in sight, or two lines of a menu, answer to.
inline QStringList DoubleMnemonics(const QWidget& window)
{
    QStringList faults;
    QStringList used;
    ForEachVisible(window, [&](const QWidget& widget) {
        if (const auto* label = qobject_cast<const QLabel*>(&widget); label != nullptr && label->buddy() != nullptr) {
            NoteMnemonic(label->text(), Named(window), used, faults);
        } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
            NoteMnemonic(button->text(), Named(window), used, faults);
        } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
            NoteMnemonic(group->title(), Named(window), used, faults);
        } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
            for (int i = 0; i < tabs->count(); ++i) {
                NoteMnemonic(tabs->tabText(i), Named(window), used, faults);
            }
        } else if (const auto* bar = qobject_cast<const QMenuBar*>(&widget)) {
            for (const QAction* menu : bar->actions()) {
                NoteMnemonic(menu->text(), Named(window), used, faults);
            }
        }
    });
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        QStringList lines;
        for (const QAction* action : menu->actions()) {
            NoteMnemonic(action->text(), menu->title(), lines, faults);
        }
    }
    return faults;
}

inline bool IsLabelClipped(const QLabel& label)
{
    if (label.text().isEmpty()) {
        return false;
    }
    if (label.wordWrap()) {
        return label.heightForWidth(label.width()) > label.height();
    }
    const QSize needed = label.minimumSizeHint();
    return needed.width() > label.width() || needed.height() > label.height();
}

inline bool IsButtonClipped(const QAbstractButton& button)
{
    const auto* tool = qobject_cast<const QToolButton*>(&button);
    if (tool != nullptr && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !button.icon().isNull()) {
        return false; // its text is for the screen reader
    }
    const QSize text = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    const int icon = button.icon().isNull() ? 0 : button.iconSize().width();
    return !button.text().isEmpty() && (text.width() + icon > button.width() || text.height() > button.height());
}

inline bool IsChoiceClipped(const QComboBox& combo)
{
    QStyleOptionComboBox option;
    option.initFrom(&combo);
    option.editable = combo.isEditable();
    const QRect field =
        combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
    return combo.fontMetrics().horizontalAdvance(combo.currentText()) > field.width();
}

// A list below the edge of what it stands in, where no scroll bar leads.
inline bool IsListClipped(const QAbstractItemView& list)
{
    return !list.isWindow() && list.geometry().bottom() > list.parentWidget()->rect().bottom();
}

// Texts and lists that do not fit into their place.
inline QStringList Clipped(const QWidget& window)
{
    QStringList faults;
    ForEachVisible(window, [&](const QWidget& widget) {
        const auto* label = qobject_cast<const QLabel*>(&widget);
        const auto* button = qobject_cast<const QAbstractButton*>(&widget);
        const auto* combo = qobject_cast<const QComboBox*>(&widget);
        const auto* list = qobject_cast<const QAbstractItemView*>(&widget);
        const bool isClipped = (label != nullptr && IsLabelClipped(*label)) || (list != nullptr && IsListClipped(*list))
            || (button != nullptr && IsButtonClipped(*button)) || (combo != nullptr && IsChoiceClipped(*combo));
        if (isClipped) {
            faults.append(QStringLiteral("clipped: ") + Named(widget));
        }
    });
    return faults;
}

// Letters that the line below them makes another letter of: "bis" with its i underlined reads "bjs".
inline QStringList MisreadMnemonics(const QWidget& window)
{
    QStringList faults;
    ForEachVisible(window, [&](const QWidget& widget) {
        const auto* label = qobject_cast<const QLabel*>(&widget);
        const auto* button = qobject_cast<const QAbstractButton*>(&widget);
        const QString text = label != nullptr ? label->text() : button != nullptr ? button->text() : QString();
        if (text.contains(QStringLiteral("&i")) || text.contains(QStringLiteral("&j"))) {
            faults.append(QStringLiteral("misread: ") + Named(widget));
        }
    });
    return faults;
}

inline QStringList Letters(const QWidget& window)
{
    return DoubleMnemonics(window) + MisreadMnemonics(window);
}

// A window that does not get as small as the room on a screen.
inline QStringList TooLarge(const QWidget& window, QSize room)
{
    const QSize least = window.minimumSizeHint().expandedTo(window.minimumSize());
    if (least.width() <= room.width() && least.height() <= room.height()) {
        return {};
    }
    return {QStringLiteral("needs %1 x %2").arg(least.width()).arg(least.height())};
}

// What a cell's text needs with its margins.
inline int NeededWidth(const QAbstractItemView& view, const QString& text)
{
    const int margin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
    return view.fontMetrics().horizontalAdvance(text) + 2 * margin;
}

// Days and amounts in lists that are cut off or out of sight.
inline QStringList CutValues(const QWidget& window)
{
    static const QRegularExpression value(QStringLiteral("^-?[\\d.]+,\\d\\d\\s€$|^\\d\\d\\.\\d\\d\\.\\d{4}$"));
    QStringList faults;
    ForEachVisible(window, [&](const QWidget& widget) {
        const auto* view = qobject_cast<const QTreeView*>(&widget);
        if (view == nullptr) {
            return;
        }
        for (QModelIndex row = view->model()->index(0, 0); row.isValid(); row = view->indexBelow(row)) {
            for (int column = 0; column < view->model()->columnCount(); ++column) {
                const QString text = row.siblingAtColumn(column).data().toString();
                const int width = view->columnWidth(column);
                const int right = view->columnViewportPosition(column) + width;
                const bool isCut = NeededWidth(*view, text) > width || right > view->viewport()->width();
                if (width > 0 && value.match(text).hasMatch() && isCut) {
                    faults.append(QStringLiteral("cut: %1 in %2").arg(text, Named(*view)));
                }
            }
        }
    });
    return faults;
}

inline QStringList All(const QWidget& window)
{
    return Nameless(window) + Silent(window) + Letters(window) + Clipped(window) + CutValues(window);
}

} // namespace modWindowFaults
