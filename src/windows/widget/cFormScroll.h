#pragma once

#include <QScrollArea>

// A form that opens in its full size and scrolls where the window is too low for it.
class cFormScroll final : public QScrollArea
{
    Q_OBJECT

public:
    explicit cFormScroll(QWidget* form, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};
