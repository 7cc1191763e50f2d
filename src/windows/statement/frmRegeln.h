#pragma once

#include <QDialog>
#include <QTimer>

class cCategoryBox;
class cRuleEditor;
class cRuleTree;
class QComboBox;
class QGroupBox;
class QLabel;
class QLayout;
class QLineEdit;
class QListWidget;
class QPushButton;

// The user's own rules for bank transactions: the list, and a form for the one that is edited.
class frmRegeln final : public QDialog
{
    Q_OBJECT

public:
    // Shows the rule that `rules` is editing; `rules` outlives the window.
    explicit frmRegeln(cRuleEditor& rules, QWidget* parent = nullptr);

    void reject() override; // asks about a rule that is not stored

private:
    void BuildList(QLayout& layout);
    void BuildListButtons(QLayout& layout);
    [[nodiscard]] QGroupBox* BuildConditions();
    [[nodiscard]] QGroupBox* BuildResult();
    void AlignFields();
    void BuildForm(QLayout& layout);
    void BuildButtons(QLayout& layout);
    void Connect();
    [[nodiscard]] QPushButton* AddButton(QLayout& layout, const QString& text);

    void ChooseRow();
    void ShowDraft();
    void ReadDraft();
    void ShowTrial();

    cRuleEditor& m_rules;
    cRuleTree* m_tree;
    QLineEdit* m_text;
    QLineEdit* m_counterparty;
    QComboBox* m_sign;
    QComboBox* m_account;
    cCategoryBox* m_category;
    QComboBox* m_interval;
    QLineEdit* m_description;
    QGroupBox* m_conditions = nullptr;
    QGroupBox* m_result = nullptr;
    QLabel* m_trial;
    QListWidget* m_examples;
    QPushButton* m_save = nullptr;
    QPushButton* m_delete = nullptr;
    QPushButton* m_up = nullptr;
    QPushButton* m_down = nullptr;
    QTimer m_typing; // a pause in typing, after which the rule is tried
    bool m_isShowing = false;
};
