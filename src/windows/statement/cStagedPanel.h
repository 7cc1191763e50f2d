#pragma once

#include <QWidget>

class cElidedText;
class cFlowLayout;
class cImportReview;
class cStagedActions;
class cStagedTree;
class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTimer;

// The list of bank transactions with everything that is done in it: the page of bank statements and the window for one
// import both consist of it.
class cStagedPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit cStagedPanel(cImportReview& review, QWidget* parent = nullptr);

    [[nodiscard]] cStagedTree& Tree() { return *m_tree; }
    [[nodiscard]] cStagedActions& Actions() { return *m_actions; }

    void AddFirst(QPushButton* button); // before the other buttons
    void AddMore(QAction* action);      // to the menu of what is rarely needed

    void ResetLayout(); // the stored columns, or those of the beginning

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    cFlowLayout* BuildActions();
    cFlowLayout* BuildView();
    QPushButton* BuildMore();
    void Connect();
    void ShowView();
    void ShowSelection();
    void SaveLayout();

    cImportReview& m_review;
    cStagedTree* m_tree;
    cStagedActions* m_actions;
    cFlowLayout* m_bar = nullptr;
    QMenu* m_more;
    QAction* m_showTitle;
    QCheckBox* m_openOnly;
    QCheckBox* m_uncategorised;
    QCheckBox* m_hideOld;
    QComboBox* m_grouping;
    QLineEdit* m_filter;
    QLabel* m_count;
    cElidedText* m_title;
    QTimer* m_planning;
};
