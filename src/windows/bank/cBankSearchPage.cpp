#include "windows/bank/cBankSearchPage.h"

#include "base/cText.h"
#include "views/bank/cBankDirectory.h"
#include "views/bank/cBankSetup.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSignalBlocker>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastRows = 6; // of the list of banks

} // namespace

cBankSearchPage::cBankSearchPage(cBankSetup& setup, QWidget* parent)
    : cBankPage(parent),
      m_setup(setup),
      m_text(new QLineEdit(this)),
      m_list(new QListWidget(this)),
      m_hint(new QLabel(this)),
      m_more(new QCheckBox(cText::Tr("&Erweitert"), this)),
      m_url(new QLineEdit(this)),
      m_version(new QComboBox(this))
{
    auto* label = new QLabel(cText::Tr("&Bank suchen (Name, Ort, Bankleitzahl, BIC oder IBAN):"), this);
    label->setBuddy(m_text);
    label->setWordWrap(true);
    m_list->setAccessibleName(cText::Tr("Gefundene Banken"));
    // Else its preferred height would make the page scroll as soon as the address is shown.
    m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * leastRows);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->hide();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_text);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_hint);
    layout->addWidget(m_more);
    layout->addWidget(BuildMore());
    connect(m_text, &QLineEdit::textChanged, this, &cBankSearchPage::Search);
    connect(m_list, &QListWidget::currentRowChanged, this, &cBankSearchPage::Choose);
}

QWidget* cBankSearchPage::BuildMore()
{
    auto* more = new QWidget(this);
    auto* form = new QFormLayout(more);
    form->setContentsMargins(0, 0, 0, 0);
    m_version->addItem(cText::Tr("FinTS 3.0"), u"300"_s);
    m_version->addItem(cText::Tr("HBCI 2.2"), u"220"_s);
    form->addRow(cText::Tr("&Adresse der Bank:"), m_url);
    form->addRow(cText::Tr("&Protokoll:"), m_version);
    more->hide();
    connect(m_more, &QCheckBox::toggled, more, &QWidget::setVisible);
    return more;
}

void cBankSearchPage::Enter()
{
    m_url->setText(m_setup.State().Url);
    m_version->setCurrentIndex(m_version->findData(m_setup.State().HbciVersion));
}

void cBankSearchPage::Leave()
{
    m_setup.SetUrl(m_url->text());
    m_setup.SetHbciVersion(m_version->currentData().toString());
}

QWidget* cBankSearchPage::First()
{
    return m_text;
}

void cBankSearchPage::ShowHint(const QString& text)
{
    m_hint->setText(text);
    m_hint->setVisible(!text.isEmpty());
}

// A code that nobody knows can be taken as well; its address is then typed.
void cBankSearchPage::Search()
{
    const cBankMatches found = m_text->text().trimmed().isEmpty() ? cBankMatches() : m_setup.Search(m_text->text());
    {
        const QSignalBlocker blocker(m_list);
        m_banks = found.Banks;
        m_list->clear();
        for (const cBankInfo& bank : found.Banks) {
            m_list->addItem(m_setup.Title(bank));
        }
    }
    ShowHint(found.Problem);
    if (m_banks.isEmpty()) {
        m_setup.ChooseCode(cBankSetup::IsCode(m_text->text()) ? m_text->text() : QString());
        Enter();
    } else {
        m_list->setCurrentRow(0);
    }
}

void cBankSearchPage::Choose()
{
    if (const int row = m_list->currentRow(); row >= 0) {
        m_setup.ChooseBank(m_banks.at(row));
        Enter();
        ShowHint(m_setup.BankProblem());
    }
}
