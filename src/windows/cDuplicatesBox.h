#pragma once

#include <QWidget>

class cImportReview;
class QListWidget;
class QPushButton;

// The bank transactions of the last files that were left out because they are there already; hidden without any.
class cDuplicatesBox final : public QWidget
{
    Q_OBJECT

public:
    explicit cDuplicatesBox(cImportReview& review, QWidget* parent = nullptr);

private:
    void Build();
    void Fill();
    void ShowButtons();
    void Stage();

    cImportReview& m_review;
    QListWidget* m_list;
    QPushButton* m_stage;
    QPushButton* m_drop;
};
