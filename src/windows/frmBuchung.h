#pragma once

#include "views/cEntryEditor.h"

#include <QDialog>

class QCheckBox;
class QComboBox;
class QDateEdit;
class QLabel;
class QLineEdit;

// The form for one entry: its fields, filled from and saved through the editor.
class frmBuchung final : public QDialog
{
    Q_OBJECT

public:
    frmBuchung(cEntryEditor& editor, const cEntryEditor::cFields& fields, QWidget* parent = nullptr);

Q_SIGNALS:
    void EntrySaved();

private:
    void Build();
    void Connect();
    void Offer(); // fills the choices
    void ShowFields();
    void ShowTransfer();
    [[nodiscard]] cEntryEditor::cFields Read() const;
    void ChooseCategory();
    void Save();

    cEntryEditor& m_editor;
    cEntryEditor::cFields m_fields;
    QLineEdit* txtBetrag;
    QLineEdit* txtBeschreibung;
    QComboBox* cboKategorie;
    QComboBox* cboBuchungsart;
    QComboBox* cboKonto;
    QComboBox* cboNachKonto;
    QLabel* lblNachKonto;
    QDateEdit* EntryDate;
    QCheckBox* EntryDateCheck;
    QDateEdit* EntryDateEnd;
    QComboBox* cboInterval;
    QCheckBox* chkCloseDialog;
};
