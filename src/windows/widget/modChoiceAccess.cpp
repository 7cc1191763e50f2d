#include "windows/widget/modChoiceAccess.h"

#include "base/cText.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

class cChoiceInterface final : public QAccessibleWidget
{
public:
    explicit cChoiceInterface(QComboBox& combo) : QAccessibleWidget(&combo, QAccessible::ComboBox), m_combo(combo) {}

    [[nodiscard]] QString text(QAccessible::Text what) const override
    {
        switch (what) {
        case QAccessible::Name: {
            const QString name = m_combo.accessibleName();
            return name.isEmpty() ? Shown() : cText::Tr("{0}: {1}", {name, Shown()});
        }
        case QAccessible::Value: return m_combo.currentText();
        default: return QAccessibleWidget::text(what);
        }
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.expandable = true;
        state.hasPopup = true;
        state.expanded = m_combo.view()->isVisible();
        state.editable = m_combo.isEditable();
        return state;
    }

    // The list comes first, where the bridge to the screen readers looks for it.
    [[nodiscard]] int childCount() const override { return m_combo.isEditable() ? 2 : 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override
    {
        return index < 0 || index >= childCount() ? nullptr : QAccessible::queryAccessibleInterface(Parts().at(index));
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override
    {
        const QObject* object = child == nullptr ? nullptr : child->object();
        return object == nullptr ? -1 : static_cast<int>(Parts().indexOf(object));
    }

    // Labels may stand anywhere in the window; the toolkit only finds those beside the field.
    [[nodiscard]] QList<std::pair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override
    {
        auto found = QAccessibleWidget::relations(match & ~QAccessible::Relation(QAccessible::Label));
        const QList<QLabel*> labels = m_combo.window()->findChildren<QLabel*>();
        for (QLabel* label : labels) {
            if (match.testFlag(QAccessible::Label) && label->buddy() == &m_combo) {
                found.append({QAccessible::queryAccessibleInterface(label), QAccessible::Label});
            }
        }
        return found;
    }

    [[nodiscard]] QStringList actionNames() const override { return {showMenuAction(), pressAction()}; }
    void doAction(const QString& action) override
    {
        if (!actionNames().contains(action)) {
            return;
        }
        if (m_combo.view()->isVisible()) {
            m_combo.hidePopup();
        } else {
            m_combo.showPopup();
        }
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*action*/) const override { return {}; }

private:
    [[nodiscard]] QObjectList Parts() const { return {m_combo.view(), m_combo.lineEdit()}; }

    [[nodiscard]] QString Shown() const
    {
        const QString open = m_combo.isEditable() ? m_combo.lineEdit()->placeholderText() : m_combo.placeholderText();
        const QString text = m_combo.currentText().isEmpty() ? open : m_combo.currentText();
        return text.isEmpty() ? cText::Tr("leer") : text;
    }

    QComboBox& m_combo;
};

QAccessibleInterface* Make(const QString& key, QObject* object)
{
    // Asked for one class after the other, from the object's own up; the first answer counts.
    auto* combo = key == u"QComboBox"_s ? qobject_cast<QComboBox*>(object) : nullptr;
    return combo == nullptr ? nullptr : new cChoiceInterface(*combo);
}

} // namespace

void modChoiceAccess::Install()
{
    QAccessible::installFactory(Make); // which passes over one that it already has
}
