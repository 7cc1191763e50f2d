#pragma once

#include "views/overview/cOverviewCard.h"

#include <QFrame>

class QVBoxLayout;

// A card of the overview: its title, which leads to all of it, the main figure, and its lines.
class cOverviewCardView final : public QFrame
{
    Q_OBJECT

public:
    explicit cOverviewCardView(const cOverviewCard& card, QWidget* parent = nullptr);

    [[nodiscard]] eOverviewCard Card() const { return m_card; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void AddHead(const cOverviewCard& card, QVBoxLayout& layout);
    void AddLine(const cOverviewLine& line, const QList<cOverviewLine>& card, QVBoxLayout& layout);

    eOverviewCard m_card;
};
