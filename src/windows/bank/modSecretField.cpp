#include "windows/bank/modSecretField.h"

#include <QLineEdit>

void modSecretField::Prepare(QLineEdit& field)
{
    field.setInputMethodHints(Qt::ImhSensitiveData | Qt::ImhNoPredictiveText | Qt::ImhNoAutoUppercase);
}

void modSecretField::Clear(QLineEdit& field)
{
    QString held = field.text();
    field.setText({}); // forgets what could be undone as well, and lets go of the text that is overwritten now
    cSecret::Wipe(held);
}

cSecret modSecretField::Take(QLineEdit& field)
{
    QString held = field.text();
    cSecret secret(held);
    field.setText({});
    cSecret::Wipe(held);
    return secret;
}
