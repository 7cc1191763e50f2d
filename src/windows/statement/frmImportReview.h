#pragma once

#include <QDialog>

class cImportReview;
class cStagedPanel;
class cSummaryText;
class QMenu;
class QPushButton;

// The bank transactions of one import, to be looked through before they are booked.
class frmImportReview final : public QDialog
{
    Q_OBJECT

public:
    // `review` outlives the window.
    explicit frmImportReview(cImportReview& review, QWidget* parent = nullptr);

private:
    void Build();
    [[nodiscard]] QMenu* BuildViews();
    void ShowRows();
    void ShowSummary();

    cImportReview& m_review;
    cStagedPanel* m_panel;
    cSummaryText* m_summary;
    QPushButton* m_bookAll;
};
