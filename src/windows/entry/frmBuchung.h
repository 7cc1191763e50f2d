#pragma once

#include "views/entry/cEntryEditor.h"

#include <QDialog>

#include <optional>

class cCorrectionsPage;
class cEntryForm;
class QCheckBox;
class QDialogButtonBox;
class QListWidget;
class QPushButton;
class QTabWidget;

// The window for one entry: new, changed, split, or the start balance of an account. The fields say which.
class frmBuchung final : public QDialog
{
    Q_OBJECT

public:
    frmBuchung(cEntryEditor& editor, const cEntryFields& fields, QWidget* parent = nullptr);

    // Asks before typed contents are lost.
    void reject() override;

    // Puts what was typed into a window of this entry before; it counts as not saved.
    void ShowTyped(const cEntryFields& fields);

    // What is typed and not saved; empty when there is nothing of that. Asks nothing.
    [[nodiscard]] std::optional<cEntryFields> Unsaved();

Q_SIGNALS:
    void EntrySaved();
    void CalculatorRequested();

private:
    void Build();
    void BuildButtons();
    void BuildSaved();
    void Connect();
    void ShowFace();
    void ShowCorrections();
    void ToggleSplit();
    void Save();
    [[nodiscard]] bool Store(const cEntryFields& fields);
    void GoOn(const cEntryFields& saved);

    cEntryEditor& m_editor;
    QTabWidget* m_pages;
    cEntryForm* m_form;
    cCorrectionsPage* m_corrections;
    QCheckBox* chkCloseDialog;
    QWidget* m_savedBox;
    QListWidget* m_saved;
    QDialogButtonBox* m_buttons;
    QPushButton* m_split = nullptr;
    cEntryFields m_shown; // before anything was typed
};
