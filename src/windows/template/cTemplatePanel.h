#pragma once

#include "views/template/cTemplateTreeModel.h"
#include "views/template/cTemplateWriter.h"

#include <QWidget>

#include <vector>

class cDayEdit;
class cElidedText;
class cLookBox;
class cTemplateManager;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

// The form beside the trees: the fields of the selected line, or what can be done with a line that has none.
class cTemplatePanel final : public QWidget
{
    Q_OBJECT

public:
    // Distances such as "+7" in a day count from `today`.
    explicit cTemplatePanel(QDate today, QWidget* parent = nullptr);

    // The fields of a line, or what can be done with one that has none; null for no line at all.
    void ShowLine(const cTemplateManager& manager, const cTemplateNode* node);
    void SetReadOnly(bool isReadOnly);

    [[nodiscard]] cTemplateFields Fields() const;
    [[nodiscard]] const cTemplateFields& Loaded() const { return m_loaded; } // the fields as they were shown first
    [[nodiscard]] bool IsChanged() const;
    void TakeAsLoaded(); // what was typed is saved
    void EditName();

Q_SIGNALS:
    void SaveRequested();
    void DiscardRequested();
    void LeaveRequested(); // with something typed
    void AddRequested();
    void MergeRequested();
    void RenameRequested();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    // A line of the form. Its mnemonic is there only while it is shown, because the same letter serves another one.
    struct cRow
    {
        QLabel* Label;
        QWidget* Field;
        QString Text;
    };

    void ShowFields(const cTemplateNode& node, const cTemplateFields& fields, const QStringList& groups);
    void ShowNote(const cTemplateNode& node);
    void Build();
    void BuildFields();
    void BuildButtons();
    void Connect();
    void AddRow(const QString& text, QWidget* field);
    void ShowRow(const QWidget* field, bool isShown);
    void ShowRows(const cTemplateNode* node);
    void ShowBookable();
    void ShowAmountHint();
    void ShowChanged();
    void Fill(const cTemplateFields& fields, const QStringList& groups);
    void SetText(const QWidget* field, const QString& text);

    QLabel* m_title;
    QLabel* m_hint;
    QFormLayout* m_form;
    QComboBox* m_group;
    QLineEdit* m_name;
    cLookBox* m_look;
    QCheckBox* m_bookable;
    QComboBox* m_type;
    QComboBox* m_interval;
    QLineEdit* m_limit;
    cElidedText* m_limitHint;
    QLineEdit* m_vat;
    QLineEdit* m_start;
    cDayEdit* m_date;
    QWidget* m_startRow;
    QPlainTextEdit* m_numbers;
    QLabel* m_numbersHint;
    QLineEdit* m_comment;
    QCheckBox* m_visible;
    QPushButton* m_save;
    QPushButton* m_discard;
    QPushButton* m_add;
    QPushButton* m_merge;
    QPushButton* m_rename;
    std::vector<cRow> m_rows;
    const cTemplateManager* m_manager = nullptr; // of the line that is shown
    cTemplateFields m_loaded;
    eTemplateNode m_kind = eTemplateNode::Main;
    bool m_hasFields = false;
    bool m_isReadOnly = false;
};
