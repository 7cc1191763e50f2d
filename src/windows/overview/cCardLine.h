#pragma once

#include "views/overview/cOverviewCard.h"

#include <QAbstractButton>

// A line of a card: its text in as many lines as it needs, a figure at the right end, and a bar where it has a share. A
// click leads to what it tells, where it leads anywhere.
class cCardLine final : public QAbstractButton
{
    Q_OBJECT

public:
    static constexpr int Margin = 4; // around the text, within the line

    explicit cCardLine(const cOverviewLine& line, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] int FigureWidth() const;
    [[nodiscard]] int LeadLetters() const;
    [[nodiscard]] int LeadWidth() const;
    [[nodiscard]] int LookWidth() const;           // of the picture before the text; 0 without one
    [[nodiscard]] bool IsStacked(int width) const; // the figure stands below the text
    [[nodiscard]] int TextHeight(int width) const;
    [[nodiscard]] QColor Colour() const;

    cOverviewLine m_line;
};
