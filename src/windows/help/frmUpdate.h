#pragma once

#include "views/help/cUpdateCheck.h"

#include <QDialog>

class QCheckBox;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;

// "Nach Updates suchen": what the maker answers, what is new, and the file of the new version.
class frmUpdate final : public QDialog
{
    Q_OBJECT

public:
    // Looks by itself once it is shown, unless the check has looked already.
    explicit frmUpdate(cUpdateCheck& check, QWidget* parent = nullptr);

    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void Build();
    [[nodiscard]] QWidget* BuildButtons();
    void ShowState();
    void Fit();
    void Skip();

    cUpdateCheck& m_check;
    QLabel* m_headline;
    QLabel* m_notesHead;
    QPlainTextEdit* m_notes;
    QProgressBar* m_progress;
    QCheckBox* m_weekly;
    QPushButton* m_download = nullptr;
    QPushButton* m_again = nullptr;
    QPushButton* m_skip = nullptr;
    QPushButton* m_close = nullptr;
};
