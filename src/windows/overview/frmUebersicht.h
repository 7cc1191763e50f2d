#pragma once

#include <QWidget>

class QBoxLayout;
class QCheckBox;
class QLabel;
class QScrollArea;
class cFirstStepsView;
class cOverviewCardView;
class cOverviewModel;

// The first page of the main window: cards side by side, in as many columns as there is room for.
class frmUebersicht final : public QWidget
{
    Q_OBJECT

public:
    explicit frmUebersicht(cOverviewModel& model, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void ShowCards();
    void ShowFirstSteps();
    void Arrange();
    [[nodiscard]] int ColumnCount() const;

    cOverviewModel& m_model;
    QLabel* m_heading;
    QCheckBox* m_isStartPage;
    QScrollArea* m_scroll;
    QWidget* m_ground;
    QBoxLayout* m_columns;
    cFirstStepsView* m_firstSteps = nullptr; // while the book is empty
    QList<cOverviewCardView*> m_cards;
    int m_count = 0; // of the columns
};
