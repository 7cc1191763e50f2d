#pragma once

#include "views/entry/cEntryEditor.h"

#include <QWidget>

class cAmountEdit;
class cCategoryBox;
class cDayEdit;
class cReceiptField;
class cSplitPage;
class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QSpinBox;

// The fields of an entry in the face that they call for.
class cEntryForm final : public QWidget
{
    Q_OBJECT

public:
    cEntryForm(cEntryEditor& editor, const cEntryFields& fields, QWidget* parent = nullptr);

    void Show(const cEntryFields& fields);

    [[nodiscard]] cEntryFields Read() const;

    // Ends the input into the field with the keyboard focus as leaving it does.
    void Settle();

    void SetCorrections(const cEntryItemFixModList& corrections);

    // Puts the keyboard focus where typing starts.
    void FocusFirst();

    // The same after the face has changed: with an amount, the split table comes next.
    void FocusNext();

    // Colours what cannot be read, or moves to the first field that is still open.
    void ShowFailure(cEntryEditor::eSaved saved);

Q_SIGNALS:
    void CalculatorRequested();
    void CorrectionsChanged();

private:
    void Build();
    void BuildAmount();
    void BuildSeries();
    void AddRow(const QString& text, QWidget* field);
    void AddShortRow(const QString& text, QWidget* field);
    void Offer(); // fills the choices
    void OfferPayers(const cEntryFields& fields);
    void Connect();
    void OrderTabs();
    void ShowFace();
    void ShowTarget();
    void ShowAmount();
    void ShowSeries();
    void EndAfter(int count);
    void ShowReceipts();
    void AddReceipts(const QList<cReceiptSource>& sources);
    void ChooseCategory(const QString& path);
    void TakeDefaults(const cEntryFields& fields);
    void ChooseDescription(const QString& text);
    void ChooseAccount();
    void FocusOpen();

    cEntryEditor& m_editor;
    cEntryFields m_fields; // as last shown; the controls hold what was typed since
    QFormLayout* m_form;
    QLabel* m_startText;
    QWidget* m_amountRow;
    cAmountEdit* txtBetrag;
    QLabel* m_vat;
    cCategoryBox* cboKategorie;
    QLineEdit* txtBeschreibung;
    cDayEdit* EntryDate;
    QComboBox* cboKonto;
    QComboBox* cboBuchungsart;
    QComboBox* cboNachKonto;
    QComboBox* cboBezahltVon;
    QComboBox* cboInterval;
    QWidget* m_seriesRow;
    QCheckBox* EntryDateCheck;
    cDayEdit* EntryDateEnd;
    QSpinBox* m_times;
    cDayEdit* m_cancelBy;
    QLabel* m_preview;
    cReceiptField* m_receipts;
    cSplitPage* m_split;
};
