#include "windows/widget/cActionButton.h"

#include "base/cText.h"

#include <QAction>

cActionButton::cActionButton(QAction* action, QWidget* parent) : QPushButton(parent), m_action(action)
{
    setAutoDefault(false);
    setIcon(action->icon());
    setText(action->text());
    const QString key = action->shortcut().toString(QKeySequence::NativeText);
    setToolTip(key.isEmpty() ? QString() : cText::Tr("In der Liste auch mit {0}", {key}));
    connect(this, &QPushButton::clicked, action, &QAction::trigger);
    connect(action, &QAction::changed, this, &cActionButton::Follow);
    Follow();
}

void cActionButton::Follow()
{
    setEnabled(m_action->isEnabled());
    setVisible(m_action->isVisible());
}
