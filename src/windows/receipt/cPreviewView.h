#pragma once

#include "windows/receipt/cPreviewReader.h"

#include <QScrollArea>
#include <QString>

class QLabel;

// A page of a receipt on screen: as a whole, or larger. What cannot be shown is said in words.
class cPreviewView final : public QScrollArea
{
    Q_OBJECT

public:
    explicit cPreviewView(QWidget* parent = nullptr);

    void ShowFile(const QString& path); // its first page as a whole
    void ShowText(const QString& text); // instead of a file
    void ShowPage(int page);            // from 0
    void Zoom(int steps);               // larger, or smaller for less than 0
    void ShowWhole();

    [[nodiscard]] bool HasPicture() const { return m_hasPicture; }
    [[nodiscard]] bool CanZoom(int steps) const;
    [[nodiscard]] int Page() const { return m_page; }
    [[nodiscard]] int Pages() const { return m_pages; }

Q_SIGNALS:
    void Shown(); // a picture or a text came

protected:
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    void Ask();
    void Show(const cPreview& preview);
    void Say(const QString& text);

    cPreviewReader* m_reader;
    QLabel* m_label;
    QString m_path;
    int m_page = 0;
    int m_pages = 1;
    int m_zoom = 0; // step
    bool m_hasPicture = false;
};
