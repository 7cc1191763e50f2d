#pragma once

#include <QLineEdit>

// A field for an amount. A calculation such as "12,50+3,99*2" is replaced by its result when the field is left; a text
// that is no amount stays as it is.
class cAmountEdit final : public QLineEdit
{
    Q_OBJECT

public:
    explicit cAmountEdit(QWidget* parent = nullptr);

    // Shows the result of what was typed.
    void Evaluate();

Q_SIGNALS:
    // The text became its result, which is the same amount in another form.
    void Evaluated();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};
