#pragma once

#include "views/book/cBackupSettings.h"

#include <QDialog>

class QCheckBox;
class QFormLayout;
class QLineEdit;
class QSpinBox;

// Number and folder of the automatic backups, and those that are there.
class frmSicherungen final : public QDialog
{
    Q_OBJECT

public:
    explicit frmSicherungen(cBackupSettings& settings, QWidget* parent = nullptr);

    void reject() override; // asks before something typed is lost

private:
    void BuildFields(QFormLayout& form);
    void ChooseFolder();
    [[nodiscard]] cBackupSettings::cFields Read() const;
    void Save();

    cBackupSettings& m_settings;
    QSpinBox* m_count;
    QLineEdit* m_folder;
    QCheckBox* m_receipts;
};
