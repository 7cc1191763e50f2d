#pragma once

#include <QString>
#include <QWidget>

// One line of text that takes the width there is; what does not fit is in the tool tip.
class cElidedText final : public QWidget
{
    Q_OBJECT

public:
    explicit cElidedText(QWidget* parent = nullptr);

    void SetText(const QString& text);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_text;
};
