#include "windows/bank/frmPin.h"

#include "base/cText.h"
#include "views/bank/modBankQuestion.h"
#include "windows/bank/modBankHead.h"
#include "windows/bank/modSecretField.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

frmPin::frmPin(const cPinQuestion& question, QWidget* parent) : QDialog(parent), m_field(new QLineEdit(this))
{
    setWindowTitle(cText::Tr("PIN eingeben"));
    m_field->setObjectName(u"pin"_s);
    m_field->setEchoMode(QLineEdit::Password);
    modSecretField::Prepare(*m_field);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(modBankHead::Make(question.Bank, modBankQuestion::Login(question), this));
    auto* form = new QFormLayout;
    form->addRow(cText::Tr("&PIN für das Online-Banking:"), m_field);
    layout->addLayout(form);
    layout->addWidget(modBankHead::Text(
        cText::Tr("Die PIN wird nicht gespeichert. Nach mehreren falschen Eingaben sperrt die Bank Ihren Zugang."),
        this));

    auto* buttons = new QDialogButtonBox(this);
    QPushButton* send = buttons->addButton(cText::Tr("OK"), QDialogButtonBox::AcceptRole);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    send->setEnabled(false);
    connect(m_field, &QLineEdit::textChanged, send,
            [send](const QString& typed) { send->setEnabled(!typed.isEmpty()); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    m_field->setFocus();
}

// Whatever way the window is closed, nothing of the PIN stays in it.
void frmPin::done(int result)
{
    if (result == Accepted) {
        m_pin = modSecretField::Take(*m_field);
    }
    modSecretField::Clear(*m_field);
    QDialog::done(result);
}
