#pragma once

#include <QAbstractButton>
#include <QCoreApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QTabWidget>
#include <QTest>
#include <QUrl>

#include <algorithm>

// What the hands of a user do in a window.
namespace modWindowHands {

// In front, where the keys go.
inline void Bring(QWidget& window)
{
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
}

// The first of these that fits, one in sight before one that is hidden.
template <typename tWidget, typename tFits>
tWidget& Find(const QWidget& window, const QString& text, tFits fits)
{
    tWidget* found = nullptr;
    const QList<tWidget*> widgets = window.findChildren<tWidget*>();
    for (tWidget* widget : widgets) {
        if (fits(*widget) && (found == nullptr || (widget->isVisible() && !found->isVisible()))) {
            found = widget;
        }
    }
    if (found == nullptr) {
        qFatal("'%s' is not in the window", qPrintable(text));
    }
    return *found;
}

// The button with this text, without its access key, or with this name for screen readers.
inline QAbstractButton& Button(const QWidget& window, const QString& text)
{
    return Find<QAbstractButton>(window, text, [&](const QAbstractButton& button) {
        return button.text().remove(u'&') == text || button.accessibleName() == text;
    });
}

// The field whose label has this text.
template <typename tField>
tField& Labelled(const QWidget& window, const QString& text)
{
    const auto& label = Find<QLabel>(
        window, text, [&](const QLabel& each) { return each.buddy() != nullptr && each.text().remove(u'&') == text; });
    return *qobject_cast<tField*>(label.buddy());
}

// Whether a label in sight says this.
inline bool Shows(const QWidget& window, const QString& text)
{
    const QList<QLabel*> labels = window.findChildren<QLabel*>();
    return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
        return label->isVisibleTo(&window) && label->text().contains(text);
    });
}

// Looks at the window with every page of every book of tabs in sight once.
template <typename tLook>
void ForEachPage(QWidget& window, tLook look)
{
    look();
    const QList<QTabWidget*> books = window.findChildren<QTabWidget*>();
    for (QTabWidget* tabs : books) {
        const int shown = tabs->currentIndex();
        for (int page = 0; page < tabs->count(); ++page) {
            if (tabs->isVisible() && page != shown) {
                tabs->setCurrentIndex(page);
                look();
            }
        }
    }
}

// Lets data fall on a place of a widget, as far as that lets it come; whether it was taken.
inline bool Drop(QWidget& target, const QPoint& at, const QMimeData& data)
{
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QCoreApplication::sendEvent(&target, &enter);
    QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, {});
    drop.ignore();
    return enter.isAccepted() && QCoreApplication::sendEvent(&target, &drop) && drop.isAccepted();
}

inline bool DropFiles(QWidget& target, const QPoint& at, const QList<QUrl>& files)
{
    QMimeData data;
    data.setUrls(files);
    return Drop(target, at, data);
}

} // namespace modWindowHands
