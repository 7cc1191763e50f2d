#include "windows/widget/modEmptyField.h"

#include "base/cText.h"

#include <QEvent>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

void Describe(QLineEdit& field)
{
    const QString placeholder = field.placeholderText().isEmpty() ? cText::Tr("leer") : field.placeholderText();
    const QString state = field.text().isEmpty() ? placeholder : QString();
    const QString gap = state.isEmpty() || field.toolTip().isEmpty() ? QString() : u". "_s;
    field.setAccessibleDescription(state + gap + field.toolTip());
}

// Placeholder and tool tip may come later than the text.
class cWatch final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* field = qobject_cast<QLineEdit*>(watched);
        if (field != nullptr && (event->type() == QEvent::Show || event->type() == QEvent::ToolTipChange)) {
            Describe(*field);
        }
        return false;
    }
};

} // namespace

void modEmptyField::Tell(QLineEdit& field)
{
    field.installEventFilter(new cWatch(&field));
    QObject::connect(&field, &QLineEdit::textChanged, &field, [&field] { Describe(field); });
    Describe(field);
}
