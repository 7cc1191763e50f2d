#include "windows/bank/frmAbruf.h"

#include "base/cText.h"
#include "views/bank/cBankFetch.h"
#include "views/bank/modFetchText.h"
#include "windows/bank/cFetchTree.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cProgressBox.h"
#include "windows/widget/modDayRange.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>

#include <algorithm>

namespace {

enum eRange { SinceLast, Named };

} // namespace

frmAbruf::frmAbruf(cBankFetch& fetch, QWidget* parent)
    : QDialog(parent),
      m_fetch(fetch),
      m_accounts(new cFetchTree(fetch, this)),
      m_range(new QComboBox(this)),
      m_from(new cDayEdit(fetch.Today(), this)),
      m_to(new cDayEdit(fetch.Today(), this)),
      m_details(new QLabel(this)),
      m_step(new QLabel(this)),
      m_busy(new QProgressBar(this))
{
    setWindowTitle(cText::Tr("Umsätze abrufen"));
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(cText::Tr("&Konten:"), this);
    label->setBuddy(m_accounts);
    layout->addWidget(label);
    layout->addWidget(m_accounts, 1);
    m_details->setWordWrap(true);
    m_details->setTextFormat(Qt::PlainText);
    m_details->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    layout->addWidget(m_details);
    auto* form = new QFormLayout;
    BuildRange(*form);
    layout->addLayout(form);
    m_step->setTextFormat(Qt::PlainText);
    m_step->setWordWrap(true);
    m_busy->setRange(0, 0);
    m_busy->setTextVisible(false);
    m_busy->setAccessibleName(cText::Tr("Der Abruf läuft"));
    layout->addWidget(m_step);
    layout->addWidget(m_busy);
    layout->addWidget(BuildButtons());
    Connect();
    ShowRunning(false);
    ShowRange();
    ShowDetails();
    ShowStep({});
    resize(modPlace::Fitting(QSize(64, 30) * fontMetrics().height(), screen()->availableGeometry()));
}

void frmAbruf::BuildRange(QFormLayout& form)
{
    m_range->addItems({cText::Tr("seit dem letzten Abruf"), cText::Tr("von … bis …")});
    form.addRow(cText::Tr("&Zeitraum:"), m_range);
    m_from->setAccessibleName(cText::Tr("Erster Tag"));
    m_to->setAccessibleName(cText::Tr("Letzter Tag"));
    m_days = modDayRange::Make(*m_from, *m_to, this);
    auto* label = new QLabel(cText::Tr("&von:"), this);
    label->setBuddy(m_from);
    form.addRow(label, m_days);
    m_to->SetDay(m_fetch.Today());
}

QWidget* frmAbruf::BuildButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    m_review = buttons->addButton(cText::Tr("Zur &Durchsicht"), QDialogButtonBox::AcceptRole);
    m_start = buttons->addButton(cText::Tr("&Abrufen"), QDialogButtonBox::ActionRole);
    m_log = buttons->addButton(cText::Tr("&Protokoll…"), QDialogButtonBox::ActionRole);
    m_close = buttons->addButton(cText::Tr("S&chließen"), QDialogButtonBox::RejectRole);
    m_review->hide();
    m_start->setDefault(true);
    for (QPushButton* button : {m_log, m_close}) {
        button->setAutoDefault(false);
    }
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &frmAbruf::reject);
    return buttons;
}

void frmAbruf::Connect()
{
    connect(m_start, &QPushButton::clicked, this, &frmAbruf::Start);
    connect(m_log, &QPushButton::clicked, this, &frmAbruf::LogRequested);
    connect(m_range, &QComboBox::currentIndexChanged, this, &frmAbruf::ShowRange);
    connect(m_accounts, &QTreeWidget::currentItemChanged, this, &frmAbruf::ShowDetails);
    connect(&m_fetch, &cBankFetch::StepShown, this, &frmAbruf::ShowStep);
    connect(&m_fetch, &cBankFetch::LineChanged, this, [this](qsizetype account) {
        m_accounts->ShowLine(account);
        ShowDetails();
    });
}

void frmAbruf::SetFrom(QDate day)
{
    m_from->SetDay(day);
    m_range->setCurrentIndex(Named);
}

void frmAbruf::Start()
{
    if (m_fetch.Accounts().isEmpty()) {
        Q_EMIT BanksRequested();
        return;
    }
    cBankFetch::cWish wish{.Accounts = m_accounts->Chosen()};
    if (wish.Accounts.isEmpty()) {
        ShowStep(cText::Tr("Wählen Sie mindestens ein Konto."));
        m_accounts->setFocus();
        return;
    }
    if (m_range->currentIndex() == Named) {
        wish.From = m_from->Day();
        wish.To = m_to->Day();
    }
    ShowRunning(true);
    {
        cProgressBox progress(this, cText::Tr("Die Umsätze werden übernommen …"));
        (void)m_fetch.Run(wish, progress); // the lines say what came of it
    }
    ShowRunning(false);
    m_accounts->ShowTrouble();
    ShowStep(m_fetch.Summary());
    const bool hasNew = std::any_of(m_fetch.Lines().begin(), m_fetch.Lines().end(),
                                    [](const cBankFetch::cLine& line) { return line.New > 0; });
    m_review->setVisible(hasNew);
    if (hasNew) {
        m_review->setDefault(true);
        m_review->setFocus();
    }
}

void frmAbruf::reject()
{
    if (m_isRunning) {
        ShowStep(cText::Tr("Der Abruf wird beendet …"));
        m_fetch.Cancel();
        return;
    }
    QDialog::reject();
}

void frmAbruf::ShowRange()
{
    const bool isNamed = m_range->currentIndex() == Named;
    m_days->setEnabled(isNamed);
    if (isNamed && !m_from->Day().isValid() && !m_fetch.Accounts().isEmpty()) {
        m_from->SetDay(m_fetch.FirstDay(qMax<qsizetype>(0, m_accounts->Current())));
    }
}

void frmAbruf::ShowStep(const QString& text)
{
    m_step->setText(text);
    m_step->setVisible(!text.isEmpty());
}

void frmAbruf::ShowDetails()
{
    const QString text = modFetchText::Details(m_fetch, m_accounts->Current());
    m_details->setText(text);
    m_details->setVisible(!text.isEmpty());
}

void frmAbruf::ShowRunning(bool isRunning)
{
    m_isRunning = isRunning;
    m_busy->setVisible(isRunning);
    const bool isEmpty = m_fetch.Accounts().isEmpty();
    m_start->setText(isEmpty ? cText::Tr("&Bankzugang einrichten…") : cText::Tr("&Abrufen"));
    m_start->setEnabled(!isRunning);
    m_range->setEnabled(!isRunning && !isEmpty);
    m_days->setEnabled(!isRunning && m_range->currentIndex() == Named);
    m_log->setEnabled(!isRunning && !m_fetch.LogText().isEmpty());
    m_accounts->SetChoosable(!isRunning);
    m_close->setText(isRunning ? cText::Tr("Abbrechen") : cText::Tr("S&chließen"));
}
