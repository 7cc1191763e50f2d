#include "windows/statement/frmImportAssistent.h"

#include "base/cText.h"
#include "windows/look/modTone.h"
#include "windows/statement/cImportPreview.h"
#include "windows/statement/cReadingBox.h"
#include "windows/widget/cFieldGrid.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/cFormScroll.h"
#include "windows/widget/modPlace.h"

#include <QAbstractItemView>
#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QStyledItemDelegate>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int shownLeftOut = 3; // lines; more of them scroll

// Says behind a number which account of the book it belongs to; what is chosen stays the bare number.
class cAccountDelegate final : public QStyledItemDelegate
{
public:
    cAccountDelegate(const cImportAssistant& assistant, QObject* parent)
        : QStyledItemDelegate(parent),
          m_assistant(assistant)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const QString account = m_assistant.BookAccount(option->text);
        if (!account.isEmpty()) {
            option->text = cText::Tr("{0} – {1}", {option->text, account});
        }
    }

private:
    const cImportAssistant& m_assistant;
};

} // namespace

frmImportAssistent::frmImportAssistent(cImportAssistant& assistant, QWidget* parent)
    : QDialog(parent),
      m_assistant(assistant),
      m_file(new QLabel(this)),
      m_format(new QLabel(this)),
      m_automatic(new QLabel(cImportAssistant::AutomaticTexts().join(u'\n'), this)),
      m_accountLabel(new QLabel(cText::Tr("&Kontonummer:"), this)),
      m_account(new QComboBox(this)),
      m_bankCodeLabel(new QLabel(cText::Tr("&Bankleitzahl:"), this)),
      m_bankCode(new QLineEdit(this)),
      m_headerLabel(new QLabel(cText::Tr("&Zeile mit den Spaltennamen:"), this)),
      m_header(new QSpinBox(this)),
      m_duplicates(new QCheckBox(cText::Tr("&Identische Buchungen verhindern"), this)),
      m_payee(new QCheckBox(cText::Tr("&Empfänger als Verwendungszweck, wenn keiner angegeben ist"), this)),
      m_readings(new cReadingBox(assistant, this)),
      m_preview(new cImportPreview(assistant, this)),
      m_outcome(new QLabel(this)),
      m_leftOutLabel(new QLabel(cText::Tr("Nicht &oder nur mit Vorbehalt übernommen:"), this)),
      m_leftOut(new QPlainTextEdit(this))
{
    setWindowTitle(cText::Tr("Importassistent"));
    Build();
    Connect();
    Refresh();
    const QSize wanted(fontMetrics().averageCharWidth() * 165, fontMetrics().height() * 46);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
}

void frmImportAssistent::Build()
{
    for (QLabel* label : {m_file, m_format, m_outcome}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    QFont bold = font();
    bold.setBold(true);
    m_file->setFont(bold);
    m_leftOutLabel->setBuddy(m_leftOut);
    m_leftOut->setReadOnly(true);
    m_leftOut->setTabChangesFocus(true);
    m_leftOut->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_leftOut->setFixedHeight(fontMetrics().lineSpacing() * (shownLeftOut + 1) + 2 * m_leftOut->frameWidth());
    auto* options = new cFlowLayout;
    options->addWidget(m_duplicates);
    options->AddGap(fontMetrics().averageCharWidth() * 3);
    options->addWidget(m_payee);
    auto* page = new QWidget(this); // all but the buttons scrolls on a small screen
    auto* form = new QVBoxLayout(page);
    form->setContentsMargins(0, 0, 0, 0);
    form->addWidget(m_file);
    form->addWidget(m_format);
    form->addWidget(m_automatic);
    form->addLayout(BuildFields());
    form->addLayout(options);
    form->addWidget(m_readings);
    form->addWidget(m_preview, 1);
    form->addWidget(m_outcome);
    form->addWidget(m_leftOutLabel);
    form->addWidget(m_leftOut);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new cFormScroll(page, this), 1);
    layout->addWidget(BuildButtons());
    OrderTabs();
}

// As the fields stand; the preview and the buttons follow.
void frmImportAssistent::OrderTabs()
{
    QList<QWidget*> order{m_account, m_bankCode};
    for (const cField& field : std::as_const(m_fields)) {
        order.append(field.Box);
    }
    order.insert(3, m_header); // beside the known layout
    order << m_duplicates << m_payee;
    for (qsizetype i = 1; i < order.size(); ++i) {
        setTabOrder(order.at(i - 1), order.at(i));
    }
}

QLayout* frmImportAssistent::BuildFields()
{
    using eField = cImportAssistant::eField;
    constexpr int mostColumns = 2;
    auto* grid = new cFieldGrid(mostColumns);
    BuildAccount(*grid);
    AddField(*grid, eField::Profile, cText::Tr("Bekannter &Aufbau:"));
    BuildHeaderLine(*grid);
    AddField(*grid, eField::Charset, cText::Tr("Zei&chensatz:"));
    AddField(*grid, eField::Separator, cText::Tr("&Trennzeichen:"));
    AddField(*grid, eField::Number, cText::Tr("Za&hlen:"));
    AddField(*grid, eField::Date, cText::Tr("&Datum:"));
    AddField(*grid, eField::Sign, cText::Tr("&Vorzeichen:"));
    AddField(*grid, eField::Sheet, cText::Tr("Tabe&llenblatt:"));
    return grid;
}

void frmImportAssistent::BuildAccount(cFieldGrid& grid)
{
    m_account->setEditable(true);
    m_account->setInsertPolicy(QComboBox::NoInsert);
    m_account->addItems(m_assistant.Accounts());
    m_account->setMinimumContentsLength(15);
    m_account->view()->setItemDelegate(new cAccountDelegate(m_assistant, m_account));
    m_account->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_accountLabel->setBuddy(m_account);
    m_bankCodeLabel->setBuddy(m_bankCode);
    grid.AddField(m_accountLabel, m_account);
    grid.AddField(m_bankCodeLabel, m_bankCode);
}

void frmImportAssistent::BuildHeaderLine(cFieldGrid& grid)
{
    m_header->setSpecialValueText(cText::Tr("keine"));
    m_header->setKeyboardTracking(false);
    m_headerLabel->setBuddy(m_header);
    grid.AddField(m_headerLabel, m_header);
}

void frmImportAssistent::AddField(cFieldGrid& grid, cImportAssistant::eField field, const QString& label)
{
    auto* box = new QComboBox(this);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(15);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_fields.append({field, new QLabel(label, this), box});
    m_fields.constLast().Label->setBuddy(box);
    grid.AddField(m_fields.constLast().Label, box);
}

QDialogButtonBox* frmImportAssistent::BuildButtons()
{
    auto* buttons = new QDialogButtonBox(this);
    m_import = buttons->addButton(cText::Tr("I&mportieren"), QDialogButtonBox::AcceptRole);
    m_import->setDefault(true);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    m_reset = buttons->addButton(cText::Tr("&Neu erkennen"), QDialogButtonBox::ResetRole);
    m_reset->setToolTip(cText::Tr("Verwirft, was hier über die Tabelle gewählt wurde"));
    connect(m_reset, &QPushButton::clicked, &m_assistant, &cImportAssistant::Reset);
    m_save = buttons->addButton(cText::Tr("Aufbau s&peichern…"), QDialogButtonBox::ActionRole);
    m_save->setToolTip(cText::Tr("Schreibt die Bedeutung der Spalten in eine kleine Datei, zum Weitergeben"));
    m_load = buttons->addButton(cText::Tr("A&ufbau laden…"), QDialogButtonBox::ActionRole);
    m_load->setToolTip(cText::Tr("Liest eine solche Datei ein und merkt sie sich"));
    connect(m_save, &QPushButton::clicked, &m_assistant, &cImportAssistant::SaveLayout);
    connect(m_load, &QPushButton::clicked, &m_assistant, &cImportAssistant::LoadLayout);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
}

void frmImportAssistent::Connect()
{
    connect(m_account, &QComboBox::editTextChanged, &m_assistant, &cImportAssistant::SetAccount);
    connect(m_bankCode, &QLineEdit::textEdited, &m_assistant, &cImportAssistant::SetBankCode);
    connect(m_header, &QSpinBox::valueChanged, &m_assistant, &cImportAssistant::SetHeaderLine);
    connect(m_duplicates, &QCheckBox::toggled, &m_assistant, &cImportAssistant::SetAvoidsDuplicates);
    connect(m_payee, &QCheckBox::toggled, &m_assistant, &cImportAssistant::SetUsesPayee);
    for (const cField& field : std::as_const(m_fields)) {
        connect(field.Box, &QComboBox::activated, &m_assistant,
                [this, name = field.Field](int item) { m_assistant.Choose(name, item); });
    }
    connect(&m_assistant, &cImportAssistant::Changed, this, &frmImportAssistent::Refresh);
}

void frmImportAssistent::Refresh()
{
    m_file->setText(m_assistant.FileText());
    m_format->setText(m_assistant.FormatText());
    ShowAccount();
    ShowFields();
    m_readings->Refresh();
    m_preview->Refresh();
    ShowOutcome();
}

void frmImportAssistent::ShowAccount()
{
    const bool isAsked = m_assistant.AsksAccount();
    m_automatic->setVisible(!isAsked);
    for (QWidget* widget : {static_cast<QWidget*>(m_accountLabel), static_cast<QWidget*>(m_account),
                            static_cast<QWidget*>(m_bankCodeLabel), static_cast<QWidget*>(m_bankCode)}) {
        widget->setVisible(isAsked);
    }
    const QSignalBlocker blocker(m_account);
    if (m_account->currentText().simplified() != m_assistant.Account()) {
        m_account->setEditText(m_assistant.Account());
    }
    if (m_bankCode->text().simplified() != m_assistant.BankCode()) {
        m_bankCode->setText(m_assistant.BankCode());
    }
    const QString account = m_assistant.BookAccount(m_assistant.Account());
    m_account->setToolTip(account.isEmpty() ? QString() : cText::Tr("gehört zum Konto {0}", {account}));
}

void frmImportAssistent::ShowFields()
{
    for (const cField& field : std::as_const(m_fields)) {
        const bool isOffered = m_assistant.IsOffered(field.Field);
        field.Label->setVisible(isOffered);
        field.Box->setVisible(isOffered);
        if (isOffered) {
            field.Box->clear();
            field.Box->addItems(m_assistant.Items(field.Field));
            field.Box->setCurrentIndex(m_assistant.Current(field.Field));
        }
    }
    const bool isTable = m_assistant.IsTable();
    m_headerLabel->setVisible(isTable);
    m_header->setVisible(isTable);
    m_reset->setVisible(isTable);
    m_load->setVisible(isTable);
    m_save->setVisible(isTable);
    m_save->setEnabled(m_assistant.CanSaveLayout());
    const QSignalBlocker header(m_header);
    m_header->setRange(0, m_assistant.LastHeaderLine());
    m_header->setValue(m_assistant.HeaderLine());
    m_payee->setVisible(m_assistant.OffersPayee());
    const QSignalBlocker duplicates(m_duplicates);
    const QSignalBlocker payee(m_payee);
    m_duplicates->setChecked(m_assistant.AvoidsDuplicates());
    m_payee->setChecked(m_assistant.UsesPayee());
}

void frmImportAssistent::ShowOutcome()
{
    const QString problem = m_assistant.Problem();
    modTone::Use(*m_outcome, problem.isEmpty() ? nullptr : modTone::Expense);
    m_outcome->setText(problem.isEmpty() ? m_assistant.CountText() : problem);
    m_import->setEnabled(problem.isEmpty());
    const QStringList lines = m_assistant.LeftOut();
    m_leftOut->setPlainText(lines.join(u'\n'));
    m_leftOut->setVisible(!lines.isEmpty());
    m_leftOutLabel->setVisible(!lines.isEmpty());
}
