#pragma once

#include "base/modSum.h"

#include <QLineEdit>

#include <functional>

// A field for an amount. A calculation such as "12,50+3,99*2" is replaced by its result when the field is left; a text
// that is no amount stays as it is.
class cAmountEdit final : public QLineEdit
{
    Q_OBJECT

public:
    // Asked each time, because a window may stay open while another format is chosen.
    using fnDecimal = std::function<eDecimal()>;

    // What becomes of a field that the user has emptied.
    enum class eEmpty { Stays, IsZero };

    explicit cAmountEdit(fnDecimal decimal, QWidget* parent = nullptr, eEmpty empty = eEmpty::Stays);

    // Shows the result of what was typed.
    void Evaluate();

    // What is wrong with the text, for the user.
    [[nodiscard]] QString Fault() const { return modSum::Fault(text(), m_decimal()); }

Q_SIGNALS:
    // The text became its result, which is the same amount in another form.
    void Evaluated();

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    fnDecimal m_decimal;
    eEmpty m_empty;
};
