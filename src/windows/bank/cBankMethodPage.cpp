#include "windows/bank/cBankMethodPage.h"

#include "base/cText.h"
#include "views/bank/cBankSetup.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QFormLayout>
#include <QLabel>

cBankMethodPage::cBankMethodPage(cBankSetup& setup, QWidget* parent)
    : cBankPage(parent),
      m_setup(setup),
      m_method(new QComboBox(this)),
      m_mediumLabel(new QLabel(cText::Tr("TAN-&Medium:"), this)),
      m_medium(new QComboBox(this))
{
    m_mediumLabel->setBuddy(m_medium);
    auto* text = new QLabel(cText::Tr("Womit geben Sie Vorgänge bei dieser Bank frei? Die Bank verlangt beim ersten "
                                      "Mal und danach etwa alle 180 Tage eine Freigabe."),
                            this);
    text->setWordWrap(true);
    for (QComboBox* box : {m_method, m_medium}) {
        box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    }
    auto* form = new QFormLayout;
    form->addRow(cText::Tr("&TAN-Verfahren:"), m_method);
    form->addRow(m_mediumLabel, m_medium);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text);
    layout->addLayout(form);
    layout->addStretch();
    connect(m_method, &QComboBox::activated, this, [this](int method) {
        m_setup.ChooseMethod(method);
        ShowMedia();
    });
}

void cBankMethodPage::Enter()
{
    m_method->clear();
    m_method->addItems(m_setup.Methods());
    m_method->setCurrentIndex(m_setup.Method());
    ShowMedia();
}

void cBankMethodPage::ShowMedia()
{
    const bool isAsked = m_setup.AsksMedium();
    m_medium->clear();
    m_medium->addItems(m_setup.State().Media);
    m_medium->setCurrentIndex(m_setup.Medium() < 0 ? 0 : m_setup.Medium());
    m_mediumLabel->setVisible(isAsked);
    m_medium->setVisible(isAsked);
}

void cBankMethodPage::Leave()
{
    if (m_method->currentIndex() >= 0) {
        m_setup.ChooseMethod(m_method->currentIndex());
    }
    if (m_setup.AsksMedium()) {
        m_setup.ChooseMedium(m_medium->currentIndex());
    }
}

QWidget* cBankMethodPage::First()
{
    return m_medium->isHidden() ? m_method : m_medium;
}
