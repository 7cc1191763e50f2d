#include "windows/widget/cAmountEdit.h"

#include "base/modSum.h"

#include <QFocusEvent>

cAmountEdit::cAmountEdit(QWidget* parent) : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight);
}

void cAmountEdit::Evaluate()
{
    const std::optional<qint64> cents = modSum::Evaluate(text());
    if (cents && modSum::ToText(*cents) != text()) {
        setText(modSum::ToText(*cents));
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
