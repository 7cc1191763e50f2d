#include "windows/bank/cBankLoginPage.h"

#include "base/cText.h"
#include "views/bank/cBankSetup.h"
#include "views/bank/modBankText.h"

#include <QBoxLayout>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

// The bank's word with a letter for the keyboard, which must not be one of the other fields and buttons.
QString WithMnemonic(const QString& label)
{
    const QString taken = QStringLiteral("zwpijlr");
    QString text = QString(label).replace(u'&', QStringLiteral("&&"));
    for (qsizetype place = 0; place < text.size(); ++place) {
        if (text.at(place).isLetter() && !taken.contains(text.at(place), Qt::CaseInsensitive)) {
            text.insert(place, u'&');
            break;
        }
    }
    return text + u':';
}

} // namespace

cBankLoginPage::cBankLoginPage(cBankSetup& setup, QWidget* parent)
    : cBankPage(parent),
      m_setup(setup),
      m_bank(new QLabel(this)),
      m_userLabel(new QLabel(this)),
      m_user(new QLineEdit(this)),
      m_fixedUser(new QLabel(this)),
      m_url(new QLineEdit(this)),
      m_product(new QLineEdit(this))
{
    QFont bold = font();
    bold.setBold(true);
    m_bank->setFont(bold);
    auto* pin = new QLabel(cText::Tr("Die PIN wird abgefragt, sobald die Bank angesprochen wird. Sie wird nicht "
                                     "gespeichert."),
                           this);
    auto* product = new QLabel(modBankText::ProductHint(), this);
    for (QLabel* text : {m_bank, m_fixedUser, pin, product}) {
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
    }
    auto* login = new QFormLayout;
    if (setup.IsNew()) {
        m_userLabel->setBuddy(m_user);
        login->addRow(m_userLabel, m_user);
    } else {
        login->addRow(m_userLabel, m_fixedUser);
        login->addRow(cText::Tr("Ad&resse der Bank:"), m_url); // else it stands with the bank
    }
    m_user->setVisible(setup.IsNew());
    m_fixedUser->setVisible(!setup.IsNew());
    m_url->setVisible(!setup.IsNew());
    auto* registration = new QFormLayout;
    registration->addRow(cText::Tr("&Produktregistrierung:"), m_product);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_bank);
    layout->addLayout(login);
    layout->addWidget(pin);
    layout->addSpacing(fontMetrics().height());
    layout->addLayout(registration);
    layout->addWidget(product);
    layout->addStretch();
}

void cBankLoginPage::Enter()
{
    const QString label = m_setup.LoginLabel();
    m_bank->setText(m_setup.BankText());
    const QString named = label.isEmpty() ? cText::Tr("&Anmeldename oder Legitimations-ID:") : WithMnemonic(label);
    m_userLabel->setText(m_setup.IsNew() ? named : QString(named).remove(u'&'));
    m_user->setText(m_setup.State().UserId);
    m_fixedUser->setText(m_setup.State().UserId);
    m_url->setText(m_setup.State().Url);
    m_product->setText(m_setup.ProductId());
}

void cBankLoginPage::Leave()
{
    if (m_setup.IsNew()) {
        m_setup.SetUserId(m_user->text());
    } else {
        m_setup.SetUrl(m_url->text());
    }
    m_setup.SetProductId(m_product->text());
}

// Never a registration that is there: its text is selected, and a PIN typed too early would replace it.
QWidget* cBankLoginPage::First()
{
    return m_setup.IsNew() ? m_user : m_product->text().isEmpty() ? m_product : nullptr;
}
