#include "windows/frmPasswort.h"

#include "base/cText.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

frmPasswort::frmPasswort(cCheck isRight, QWidget* parent)
    : QDialog(parent),
      m_isRight(std::move(isRight)),
      m_password(new QLineEdit),
      m_message(new QLabel)
{
    setWindowTitle(cText::Tr("Passwortschutz"));
    auto* label = new QLabel(cText::Tr("&Bitte geben Sie das Passwort der Datenbank ein:"));
    label->setBuddy(m_password);
    m_password->setEchoMode(QLineEdit::Password);
    m_message->setObjectName(QStringLiteral("message"));
    m_message->setWordWrap(true);

    auto* buttons = new QDialogButtonBox;
    QPushButton* ok = buttons->addButton(cText::Tr("OK"), QDialogButtonBox::AcceptRole);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    ok->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmPasswort::Try);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_password, &QLineEdit::textEdited, m_message, &QLabel::clear);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_password);
    layout->addWidget(m_message);
    layout->addWidget(buttons);
}

frmPasswort::~frmPasswort() = default;

void frmPasswort::Try()
{
    if (m_isRight(m_password->text())) {
        accept();
        return;
    }
    m_message->setText(cText::Tr("Das Passwort ist nicht richtig. Bitte versuchen Sie es noch einmal."));
    m_password->selectAll();
    m_password->setFocus();
}
