#include "windows/widget/cAmountEdit.h"

#include "windows/widget/modEmptyField.h"

#include <QFocusEvent>

cAmountEdit::cAmountEdit(fnDecimal decimal, QWidget* parent, eEmpty empty)
    : QLineEdit(parent),
      m_decimal(std::move(decimal)),
      m_empty(empty)
{
    setAlignment(Qt::AlignRight);
    modEmptyField::Tell(*this);
}

void cAmountEdit::Evaluate()
{
    const bool isZero = m_empty == eEmpty::IsZero && text().trimmed().isEmpty();
    const std::optional<qint64> cents = isZero ? 0 : modSum::Evaluate(text(), m_decimal());
    if (cents && modSum::ToText(*cents, m_decimal()) != text()) {
        setText(modSum::ToText(*cents, m_decimal()));
        Q_EMIT Evaluated();
    }
}

void cAmountEdit::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    if (event->reason() == Qt::MouseFocusReason) {
        // The click itself would put the cursor somewhere into the old number.
        QMetaObject::invokeMethod(this, &QLineEdit::selectAll, Qt::QueuedConnection);
    }
}

void cAmountEdit::focusOutEvent(QFocusEvent* event)
{
    // The context menu and another program in front do not end the input.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) {
        Evaluate();
    }
    QLineEdit::focusOutEvent(event);
}
