#pragma once

#include "views/list/cSearchModel.h"

#include <QWidget>

class cAmountEdit;
class cDayEdit;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

// The fields of the search window.
class cSearchFields final : public QWidget
{
    Q_OBJECT

public:
    explicit cSearchFields(const cSearchModel& model, QWidget* parent = nullptr);

    void Offer(); // fills the choices anew, keeping what is chosen
    void Clear();
    void ShowText(const QString& text); // as if it had been typed in place of what stands there
    void StartTyping();                 // focus on the text, marked, so that typing replaces it
    [[nodiscard]] cSearchModel::cFields Read() const;

Q_SIGNALS:
    void Typed(); // one letter of what is still being typed
    void Chosen();
    void Left(); // the user wants to go on in the list

private:
    void Build();
    QWidget* BuildAmount();
    QWidget* BuildMarks();
    void Connect();
    void ShowFields(); // days of the period, second amount

    const cSearchModel& m_model;
    QLineEdit* m_text;
    QComboBox* m_amountRule;
    cAmountEdit* m_amount;
    QLabel* m_amountToLabel;
    cAmountEdit* m_amountTo;
    QComboBox* m_period;
    cDayEdit* m_start;
    cDayEdit* m_end;
    QComboBox* m_account;
    QComboBox* m_type;
    QComboBox* m_category;
    QLabel* m_payerLabel;
    QComboBox* m_payer;
    QCheckBox* m_isCorrected;
    QCheckBox* m_isFromBank;
};
