#pragma once

#include "views/sheet/cManyChange.h"

#include <QDialog>

class cCategoryBox;
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
    void reject() override; // asks before something typed is lost

private:
    void Build();
    [[nodiscard]] QComboBox* MakeChoice(const QStringList& stored, const QStringList& shown);
    void ShowTarget();
    [[nodiscard]] cManyFields Read() const;

    cManyChange& m_change;
    QFormLayout* m_form;
    cCategoryBox* cboKategorie;
    QComboBox* cboKonto;
    QLineEdit* txtBeschreibung;
    QComboBox* cboBuchungsart;
    QComboBox* cboNachKonto;
};
