#pragma once

#include "support/windowFaults.h"

#include <QAction>
#include <QLineEdit>
#include <QLocale>
#include <QRegularExpression>

// What a window says, as far as its widgets tell it; what a widget paints by itself is not here.
namespace modWindowTexts {

struct cShown
{
    QString Text;
    QString Where;
};

inline void AddActions(const QWidget& widget, QList<cShown>& shown)
{
    for (const QAction* action : widget.actions()) {
        shown.append({action->text(), QStringLiteral("action")});
        shown.append({action->toolTip(), QStringLiteral("hint of action")});
        shown.append({action->statusTip(), QStringLiteral("status of action")});
    }
}

inline void AddItems(const QAbstractItemView& view, QList<cShown>& shown)
{
    constexpr int most = 40; // rows; further ones are of the same kinds
    const QAbstractItemModel* model = view.model();
    for (int column = 0; model != nullptr && column < model->columnCount(); ++column) {
        shown.append({model->headerData(column, Qt::Horizontal).toString(),
                      QStringLiteral("head of ") + modWindowFaults::Named(view)});
        for (int row = 0; row < qMin(most, model->rowCount()); ++row) {
            const QModelIndex index = model->index(row, column);
            shown.append({index.data().toString(), QStringLiteral("cell of ") + modWindowFaults::Named(view)});
            shown.append(
                {index.data(Qt::ToolTipRole).toString(), QStringLiteral("hint in ") + modWindowFaults::Named(view)});
        }
    }
}

inline void AddWidget(const QWidget& widget, QList<cShown>& shown)
{
    const QString where = modWindowFaults::Named(widget);
    shown.append({widget.toolTip(), QStringLiteral("hint of ") + where});
    shown.append({widget.accessibleName(), QStringLiteral("name of ") + where});
    shown.append({widget.accessibleDescription(), QStringLiteral("description of ") + where});
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        shown.append({label->text(), where});
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        shown.append({button->text(), where});
    } else if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) {
        shown.append({group->title(), where});
    } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        shown.append({edit->placeholderText(), where});
    } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i) {
            shown.append({tabs->tabText(i), where});
        }
    } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
        for (int i = 0; i < combo->count(); ++i) {
            shown.append({combo->itemText(i), where});
        }
    } else if (const auto* menu = qobject_cast<const QMenu*>(&widget)) {
        shown.append({menu->title(), where});
    } else if (const auto* view = qobject_cast<const QTreeView*>(&widget)) {
        AddItems(*view, shown);
    }
    AddActions(widget, shown);
}

// Every text of the window and of its menus, without empty ones.
inline QList<cShown> Of(const QWidget& window)
{
    QList<cShown> shown{{window.windowTitle(), QStringLiteral("title")}};
    AddWidget(window, shown);
    modWindowFaults::ForEachVisible(window, [&](const QWidget& widget) { AddWidget(widget, shown); });
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        AddWidget(*menu, shown);
    }
    shown.removeIf([](const cShown& text) { return text.Text.trimmed().isEmpty(); });
    return shown;
}

// What stands outside of brackets and markup, without the names of keys and the numbers of accounts.
inline QString Outside(QString text)
{
    static const QRegularExpression passedOver(
        QStringLiteral("<[^>]*>|&[a-z]+;|\\b[A-Z]{2}\\d\\d[\\d "
                       "]{10,}|\\b(Ctrl|Alt|Shift|Del|Esc|Ins|Return|Enter|Space|Backspace|Tab|Home|End|PgUp|"
                       "PgDown|Up|Down|Left|Right|F\\d+)\\b"));
    QString outside;
    int depth = 0;
    for (const QChar c : text.remove(passedOver)) {
        depth += c == u'[' ? 1 : 0;
        outside += depth == 0 ? c : QChar(u' ');
        depth -= c == u']' && depth > 0 ? 1 : 0;
    }
    return outside;
}

// True when letters are left that are neither in brackets nor one of the allowed texts.
inline bool IsUntranslated(const QString& text, const QStringList& allowed)
{
    static const QRegularExpression word(QStringLiteral("\\p{L}{2,}"));
    QString rest = Outside(text);
    for (const QString& known : allowed) {
        rest.remove(known);
    }
    return word.match(rest).hasMatch();
}

} // namespace modWindowTexts
