#pragma once

#include <QDialog>
#include <QList>

class cCategoryBox;
class cImportReview;
class QComboBox;
class QLineEdit;

// One category and interval for several bank transactions.
class frmUmsatzKategorie final : public QDialog
{
    Q_OBJECT

public:
    // `review` outlives the window.
    frmUmsatzKategorie(cImportReview& review, const QList<int>& rowIds, QWidget* parent = nullptr);

    void reject() override; // asks first where something was chosen
    void accept() override; // stays open while the category is unknown

private:
    void Build();

    cImportReview& m_review;
    QList<int> m_rowIds;
    cCategoryBox* m_category;
    QComboBox* m_interval;
    QLineEdit* m_description;
};
