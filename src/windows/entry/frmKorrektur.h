#pragma once

#include "base/cUser.h"
#include "views/entry/cSeriesChange.h"

#include <QDate>
#include <QDialog>
#include <QString>

#include <functional>

class cAmountEdit;
class cDayEdit;
class QLabel;
class QLayout;
class QLineEdit;

// The small form for another amount or another day in one period of a recurring entry.
class frmKorrektur final : public QDialog
{
    Q_OBJECT

public:
    struct cValues
    {
        QString Day; // as typed; only where the form asks for it
        QString Amount;
        QString Comment;

        bool operator==(const cValues&) const = default;
    };

    enum class eTaken { Done, BadAmount, BadDay, NoOccurrence, Refused };

    struct cParts
    {
        QString Text;                               // what is corrected
        cValues Values;                             // to start with
        eDecimal Decimal = eDecimal::Comma;         // how amounts are typed
        QDate Today;                                // valid: the form asks for the day
        bool IsAmountFirst = false;                 // the amount is typed first, though it asks for the day too
        std::function<eTaken(const cValues&)> Take; // stores the values
        std::function<eAnswer()> AskToSave;         // before typed values are lost
        std::function<bool()> Remove;               // removes the correction; empty when there is none
    };

    explicit frmKorrektur(const cParts& parts, QWidget* parent = nullptr);

    // For one occurrence in the entry list; saves and removes at once. `change` outlives the form.
    frmKorrektur(cSeriesChange& change, const cSeriesChange::cPeriodFields& fields, QWidget* parent = nullptr);

    void reject() override; // asks before typed values are lost

Q_SIGNALS:
    void CorrectionSaved(); // or removed

private:
    void Build();
    void BuildButtons(QLayout& layout);
    [[nodiscard]] cValues Read() const;
    void Save();
    void Remove();
    void ShowFailure(eTaken taken);

    cParts m_parts;
    cDayEdit* m_day;
    cAmountEdit* txtBetrag;
    QLineEdit* txtKommentar;
    QLabel* m_message;
    cValues m_shown; // before anything was typed
};
