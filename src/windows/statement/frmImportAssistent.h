#pragma once

#include "views/statement/cImportAssistant.h"

#include <QDialog>
#include <QList>

class cFieldGrid;
class cImportPreview;
class cReadingBox;
class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSpinBox;

// Shows how a statement file would be read and lets the user change it before anything is taken from it.
class frmImportAssistent final : public QDialog
{
    Q_OBJECT

public:
    // `assistant` outlives the window.
    explicit frmImportAssistent(cImportAssistant& assistant, QWidget* parent = nullptr);

private:
    struct cField
    {
        cImportAssistant::eField Field;
        QLabel* Label;
        QComboBox* Box;
    };

    void Build();
    QLayout* BuildFields();
    void BuildAccount(cFieldGrid& grid);
    void BuildHeaderLine(cFieldGrid& grid);
    void AddField(cFieldGrid& grid, cImportAssistant::eField field, const QString& label);
    QDialogButtonBox* BuildButtons();
    void OrderTabs();
    void Connect();
    void Refresh();
    void ShowFields();
    void ShowAccount();
    void ShowOutcome();

    cImportAssistant& m_assistant;
    QLabel* m_file;
    QLabel* m_format;
    QLabel* m_automatic;
    QLabel* m_accountLabel;
    QComboBox* m_account;
    QLabel* m_bankCodeLabel;
    QLineEdit* m_bankCode;
    QLabel* m_headerLabel;
    QSpinBox* m_header;
    QList<cField> m_fields;
    QCheckBox* m_duplicates;
    QCheckBox* m_payee;
    cReadingBox* m_readings;
    cImportPreview* m_preview;
    QLabel* m_outcome;
    QLabel* m_leftOutLabel;
    QPlainTextEdit* m_leftOut;
    QPushButton* m_import = nullptr;
    QPushButton* m_reset = nullptr;
    QPushButton* m_save = nullptr;
    QPushButton* m_load = nullptr;
};
