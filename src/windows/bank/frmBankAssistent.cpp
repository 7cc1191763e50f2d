#include "windows/bank/frmBankAssistent.h"

#include "base/cText.h"
#include "windows/bank/cBankAccountsPage.h"
#include "windows/bank/cBankLoginPage.h"
#include "windows/bank/cBankMethodPage.h"
#include "windows/bank/cBankSearchPage.h"
#include "windows/look/modTone.h"
#include "windows/widget/cFormScroll.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>

frmBankAssistent::frmBankAssistent(cBankSetup& setup, QDate today, QWidget* parent)
    : QDialog(parent),
      m_setup(setup),
      m_pages(new QStackedWidget(this)),
      m_order{new cBankSearchPage(setup, this), new cBankLoginPage(setup, this), new cBankMethodPage(setup, this),
              new cBankAccountsPage(setup, today, this)},
      m_step(new QLabel(this)),
      m_problem(new QLabel(this)),
      m_words(new QLabel(this)),
      m_address(new QLabel(this)),
      m_log(new QPushButton(cText::Tr("Protoko&ll…"), this)),
      m_back(new QPushButton(cText::Tr("&Zurück"), this)),
      m_next(new QPushButton(this)),
      m_cancel(new QPushButton(cText::Tr("Abbrechen"), this))
{
    setWindowTitle(setup.IsNew() ? cText::Tr("Bankzugang einrichten") : cText::Tr("Bankzugang ändern"));
    for (cBankPage* page : std::as_const(m_order)) {
        m_pages->addWidget(new cFormScroll(page, this));
    }
    modTone::Use(*m_problem, modTone::Expense);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_pages, 1);
    for (QLabel* text : {m_step, m_problem, m_words, m_address}) {
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        layout->addWidget(text);
    }
    layout->addLayout(BuildButtons());
    connect(&m_setup, &cBankSetup::StepShown, m_step, &QLabel::setText);
    const QSize wanted(fontMetrics().averageCharWidth() * 105, fontMetrics().height() * 32);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    ShowPage();
}

QLayout* frmBankAssistent::BuildButtons()
{
    auto* row = new QHBoxLayout;
    row->addWidget(m_log);
    row->addStretch();
    row->addWidget(m_back);
    row->addWidget(m_next);
    row->addWidget(m_cancel);
    m_log->setAutoDefault(false);
    m_back->setAutoDefault(false);
    m_cancel->setAutoDefault(false);
    m_next->setDefault(true);
    connect(m_log, &QPushButton::clicked, this, &frmBankAssistent::LogRequested);
    connect(m_back, &QPushButton::clicked, this, &frmBankAssistent::Back);
    connect(m_next, &QPushButton::clicked, this, &frmBankAssistent::Next);
    connect(m_cancel, &QPushButton::clicked, this, &frmBankAssistent::reject);
    return row;
}

cBankPage& frmBankAssistent::Page() const
{
    return *m_order.at(static_cast<qsizetype>(m_setup.Page()));
}

void frmBankAssistent::Next()
{
    Page().Leave();
    SetBusy(true);
    (void)m_setup.Next();
    SetBusy(false);
    if (m_setup.Page() == cBankSetup::ePage::Done) {
        accept();
    } else {
        ShowPage(); // also the same one: the bank may have told more by now, media or what it calls the login
    }
}

void frmBankAssistent::Back()
{
    Page().Leave();
    m_setup.Back();
    ShowPage();
}

void frmBankAssistent::reject()
{
    if (m_setup.IsRunning()) {
        m_setup.Cancel();
        m_step->setText(cText::Tr("Der Vorgang wird abgebrochen …"));
        return;
    }
    Page().Leave();
    if (m_setup.MayClose()) {
        QDialog::reject();
    }
}

void frmBankAssistent::SetBusy(bool isBusy)
{
    m_pages->setEnabled(!isBusy);
    m_back->setEnabled(!isBusy && m_setup.CanGoBack());
    m_next->setEnabled(!isBusy);
    m_step->clear();
    if (isBusy) {
        m_problem->clear();
        m_words->clear();
        m_address->clear();
    }
}

void frmBankAssistent::ShowPage()
{
    m_pages->setCurrentIndex(static_cast<int>(m_setup.Page()));
    Page().Enter();
    QWidget* first = Page().First();
    (first == nullptr ? m_next : first)->setFocus();
    m_back->setEnabled(m_setup.CanGoBack());
    m_next->setText(m_setup.Page() == cBankSetup::ePage::Accounts ? cText::Tr("&Fertigstellen") : cText::Tr("&Weiter"));
    ShowProblem();
}

void frmBankAssistent::ShowProblem()
{
    const QString words = m_setup.BankWords();
    m_step->clear();
    m_problem->setText(m_setup.Problem());
    m_log->setVisible(!m_setup.Problem().isEmpty() && !m_setup.LogText().isEmpty());
    m_words->setText(words.isEmpty() ? QString() : cText::Tr("Die Bank schreibt:\n{0}", {words}));
    m_problem->setVisible(!m_setup.Problem().isEmpty());
    m_words->setVisible(!words.isEmpty());
    m_address->setText(m_setup.AddressNote());
    m_address->setVisible(!m_address->text().isEmpty());
}
