#pragma once

#include <QDialog>

class cCategoryBox;
class cManyChange;
class QComboBox;
class QFormLayout;
class QLineEdit;

// Category, account, description and kind of several entries at once; what stays "unverändert" is left as it is.
class frmMehrere final : public QDialog
{
    Q_OBJECT

public:
    // `change` outlives the window.
    explicit frmMehrere(cManyChange& change, QWidget* parent = nullptr);

    void accept() override; // stays open while something cannot be stored

private:
    void Build();
    [[nodiscard]] QComboBox* MakeChoice(const QStringList& stored, const QStringList& shown);
    void ShowTarget();

    cManyChange& m_change;
    QFormLayout* m_form;
    cCategoryBox* cboKategorie;
    QComboBox* cboKonto;
    QLineEdit* txtBeschreibung;
    QComboBox* cboBuchungsart;
    QComboBox* cboNachKonto;
};
