#pragma once

#include "views/overview/cFirstSteps.h"

#include <QFrame>

#include <functional>

class QGridLayout;
class QLabel;
class QLineEdit;
class cAmountEdit;

// What the overview shows in place of figures while a book is empty: a table for the accounts, and the ways to bring
// entries into the book.
class cFirstStepsView final : public QFrame
{
    Q_OBJECT

public:
    struct cWay
    {
        QString Text;
        QString Hint;
        std::function<void()> Go;
    };

    cFirstStepsView(const cFirstSteps& steps, const QList<cWay>& ways, QWidget* parent = nullptr);

    // Reads the accounts again, unless somebody is typing here.
    void Refresh();
    void FocusFirst();

Q_SIGNALS:
    void Saved();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct cFields
    {
        QLineEdit* Name;
        cAmountEdit* Amount;
        QString Former; // the account that the row was filled with
    };

    void AddRow(QGridLayout& table, int row);
    void Save();

    cFirstSteps m_steps;
    QList<cFields> m_fields;
    QLabel* m_problem;
};
