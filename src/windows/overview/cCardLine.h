#pragma once

#include "views/overview/cOverviewCard.h"

#include <QAbstractButton>
#include <QHash>

#include <optional>

// A line of a card: its text in as many lines as it needs, a figure at the right end, and a bar where it has a share.
// The lines of a card that have bars look alike: where one of them has no room for its figure beside the text, the
// figures of all stand below. A click leads to what it tells, where it leads anywhere.
class cCardLine final : public QAbstractButton
{
    Q_OBJECT

public:
    static constexpr int Margin = 4; // around the text, within the line

    cCardLine(const cOverviewLine& line, const QList<cOverviewLine>& card, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    struct cWidths
    {
        int Figure;
        int Lead;
        int Beside; // that text and figure want to stand beside each other
    };

    [[nodiscard]] const cWidths& Widths() const;
    [[nodiscard]] int LeadLetters() const;
    [[nodiscard]] int WidthBeside(const cOverviewLine& line) const;
    [[nodiscard]] int LookWidth(const cOverviewLine& line) const; // of the picture before the text; 0 without one
    [[nodiscard]] bool IsStacked(int width) const;                // the figure stands below the text
    [[nodiscard]] int TextHeight(int width) const;
    [[nodiscard]] QColor Colour() const;

    cOverviewLine m_line;
    QList<cOverviewLine> m_alike;            // the line itself among them
    mutable std::optional<cWidths> m_widths; // measured once for each font
    mutable QHash<int, int> m_heights;       // of the text, by the room that it has
};
