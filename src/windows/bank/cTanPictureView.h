#pragma once

#include <QByteArray>
#include <QImage>
#include <QScrollArea>

class QLabel;

// The picture that a TAN is made from, in a width on the glass of the screen.
class cTanPictureView final : public QScrollArea
{
    Q_OBJECT

public:
    explicit cTanPictureView(const QByteArray& file, QWidget* parent = nullptr);

    [[nodiscard]] bool HasPicture() const { return !m_image.isNull(); }
    void SetWidth(int millimetres);

    [[nodiscard]] QSize sizeHint() const override;

private:
    QImage m_image;
    QLabel* m_label;
};
