#pragma once

#include <QApplication>
#include <QDate>
#include <QDir>
#include <QEventLoop>
#include <QSize>
#include <QString>
#include <QTimer>
#include <QWidget>

#include <cstdio>

// The day of all pictures.
inline const QDate sceneDay(2026, 11, 21);

// Lets everything that is waiting be done and painted, also what a page reads a moment after it is shown.
inline void Settle(int milliseconds = 150)
{
    QEventLoop waiting;
    QTimer::singleShot(milliseconds, &waiting, &QEventLoop::quit);
    waiting.exec();
    for (int i = 0; i < 20; ++i) {
        QApplication::processEvents(QEventLoop::AllEvents, 10);
    }
}

// Takes pictures of windows into files of one folder, named after window and palette.
class cCamera
{
public:
    // Windows are taken no larger than `screen`, where it is given.
    cCamera(const QString& folder, const QString& palette, const QSize& screen = {})
        : m_folder(folder),
          m_palette(palette),
          m_screen(screen)
    {
    }

    void Take(QWidget& widget, const QString& name)
    {
        if (m_screen.isValid()) {
            widget.resize(widget.size().boundedTo(m_screen));
        }
        Settle();
        const QString path = QDir(m_folder).filePath(QStringLiteral("%1-%2.png").arg(name, m_palette));
        m_isGood = widget.grab().save(path) && m_isGood;
        std::printf("%s\n", qPrintable(path));
    }

    // Does `open`, which blocks in a dialog sooner or later, takes its picture from within and closes it.
    template <typename tOpen>
    void TakeDialog(const QString& name, tOpen open)
    {
        bool isTaken = false;
        QTimer waiting;
        QObject::connect(&waiting, &QTimer::timeout, qApp, [&] {
            QWidget* dialog = QApplication::activeModalWidget();
            if (dialog != nullptr && !isTaken) {
                isTaken = true;
                Take(*dialog, name);
                dialog->close();
            }
        });
        waiting.start(50);
        open();
        m_isGood = isTaken && m_isGood;
    }

    [[nodiscard]] bool IsGood() const { return m_isGood; }

private:
    QString m_folder;
    QString m_palette;
    QSize m_screen;
    bool m_isGood = true;
};
