#include "windows/bank/cTanPictureView.h"

#include "base/cText.h"
#include "windows/bank/modScreenSize.h"

#include <QLabel>
#include <QScreen>

cTanPictureView::cTanPictureView(const QByteArray& file, QWidget* parent)
    : QScrollArea(parent),
      m_image(QImage::fromData(file)),
      m_label(new QLabel(this))
{
    setFrameShape(QFrame::NoFrame);
    setAlignment(Qt::AlignCenter);
    setAccessibleName(cText::Tr("Bild für die TAN"));
    m_label->setMargin(fontMetrics().averageCharWidth()); // cameras want a light edge around it
    m_label->setAutoFillBackground(true);
    QPalette light = m_label->palette();
    light.setColor(QPalette::Window, Qt::white);
    m_label->setPalette(light);
    setWidget(m_label);
}

// Squares stay sharp when they are made larger; what is made smaller keeps all of its colours.
void cTanPictureView::SetWidth(int millimetres)
{
    if (!HasPicture()) {
        return;
    }
    const double ratio = devicePixelRatioF();
    const int width = qRound(millimetres * modScreenSize::DotsPerMillimetre(*screen()) * ratio);
    const auto manner = width > m_image.width() ? Qt::FastTransformation : Qt::SmoothTransformation;
    QPixmap picture = QPixmap::fromImage(m_image.scaledToWidth(qMax(1, width), manner));
    picture.setDevicePixelRatio(ratio);
    m_label->setPixmap(picture);
    m_label->adjustSize();
    updateGeometry();
}

QSize cTanPictureView::sizeHint() const
{
    return m_label->size() + QSize(2 * frameWidth(), 2 * frameWidth());
}
