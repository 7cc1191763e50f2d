#pragma once

#include "views/overview/cOverviewCard.h"

#include <QWidget>

// A balance over days as a small line, with its lowest point marked and named below.
class cBalanceCurve final : public QWidget
{
    Q_OBJECT

public:
    explicit cBalanceCurve(cOverviewCurve curve, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QPolygonF Points(const QRectF& area) const;

    cOverviewCurve m_curve;
    qint64 m_least = 0; // the values between which the line runs, in cents
    qint64 m_most = 0;
};
