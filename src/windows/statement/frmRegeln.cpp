#include "windows/statement/frmRegeln.h"

#include "base/cText.h"
#include "base/cVocabulary.h"
#include "model/modWord.h"
#include "views/rule/cRuleEditor.h"
#include "windows/statement/cRuleTree.h"
#include "windows/widget/cCategoryBox.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/cFormScroll.h"
#include "windows/widget/cRowDelegate.h"
#include "windows/widget/cTurningSplitter.h"
#include "windows/widget/modChoice.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QScreen>

namespace {

constexpr int typingPause = 150; // milliseconds without typing
constexpr int shownExamples = 5;
constexpr int besideLetters = 110; // width from which list and form stand side by side
constexpr int margin = 4;          // beside the line that parts list and form

// Asks for its few lines, and takes what is left.
class cExampleList final : public QListWidget
{
public:
    using QListWidget::QListWidget;

    [[nodiscard]] QSize sizeHint() const override { return {QListWidget::sizeHint().width(), minimumHeight()}; }
};

} // namespace

frmRegeln::frmRegeln(cRuleEditor& rules, QWidget* parent)
    : QDialog(parent),
      m_rules(rules),
      m_tree(new cRuleTree(rules.List(), this)),
      m_text(new QLineEdit(this)),
      m_counterparty(new QLineEdit(this)),
      m_sign(new QComboBox(this)),
      m_account(new QComboBox(this)),
      m_category(new cCategoryBox(rules.Suggestions(), this)),
      m_interval(new QComboBox(this)),
      m_description(new QLineEdit(this)),
      m_trial(new QLabel(this)),
      m_examples(new cExampleList(this))
{
    setWindowTitle(cText::Tr("Regeln für Umsätze"));
    m_text->setObjectName(QStringLiteral("txtText"));
    m_counterparty->setObjectName(QStringLiteral("txtEmpfaenger"));
    m_description->setObjectName(QStringLiteral("txtBeschreibung"));
    m_trial->setObjectName(QStringLiteral("trial"));
    auto* layout = new QVBoxLayout(this);
    auto* halves = new cTurningSplitter(besideLetters, this);
    auto* list = new QWidget(this);
    auto* form = new QWidget(this);
    halves->addWidget(list);
    halves->addWidget(new cFormScroll(form, this));
    halves->setStretchFactor(0, 3);
    halves->setStretchFactor(1, 2);
    layout->addWidget(halves, 1);
    BuildList(*new QVBoxLayout(list));
    BuildForm(*new QVBoxLayout(form));
    list->layout()->setContentsMargins(0, 0, margin, 0);
    form->layout()->setContentsMargins(margin, 0, 0, 0);
    BuildButtons(*layout);
    Connect();
    const QSize wanted(fontMetrics().averageCharWidth() * 165, fontMetrics().height() * 38);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    ShowDraft();
    m_text->setFocus();
    if (m_rules.IsNew() && !(m_text->text().isEmpty() && m_counterparty->text().isEmpty())) {
        m_category->setFocus(); // made from a transaction: what it is known by stands there already
        m_category->lineEdit()->selectAll();
    }
}

void frmRegeln::BuildList(QLayout& layout)
{
    auto* label = new QLabel(cText::Tr("&Regeln; es gilt die oberste, die passt:"), this);
    label->setBuddy(m_tree);
    layout.addWidget(label);
    layout.addWidget(m_tree);
    BuildListButtons(layout);
}

QPushButton* frmRegeln::AddButton(QLayout& layout, const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setAutoDefault(false);
    layout.addWidget(button);
    return button;
}

void frmRegeln::BuildListButtons(QLayout& layout)
{
    auto* row = new cFlowLayout;
    connect(AddButton(*row, cText::Tr("&Neu")), &QPushButton::clicked, this, [this] {
        if (m_rules.Leave()) {
            m_rules.StartNew();
            m_text->setFocus();
        }
    });
    m_delete = AddButton(*row, cText::Tr("&Löschen"));
    row->AddStretch();
    m_up = AddButton(*row, cText::Tr("Nach &oben"));
    m_down = AddButton(*row, cText::Tr("Nach &unten"));
    connect(m_delete, &QPushButton::clicked, this, [this] { m_rules.Delete(); });
    connect(m_up, &QPushButton::clicked, this, [this] { m_rules.Move(cRuleEditor::eMove::Up); });
    connect(m_down, &QPushButton::clicked, this, [this] { m_rules.Move(cRuleEditor::eMove::Down); });
    static_cast<QBoxLayout&>(layout).addLayout(row);
}

QGroupBox* frmRegeln::BuildConditions()
{
    auto* group = new QGroupBox(cText::Tr("Wenn alles zutrifft, was angegeben ist"), this);
    auto* form = new QFormLayout(group);
    m_text->setPlaceholderText(cText::Tr("rewe|edeka oder miete*garten"));
    m_text->setToolTip(cText::Tr("Gesucht wird in Empfänger, Verwendungszweck und Buchungstext, ohne auf Groß- und "
                                 "Kleinschreibung zu achten.\n| trennt mehrere Möglichkeiten. * steht für beliebig "
                                 "viele Zeichen, ? für eines, # für eine Ziffer."));
    form->addRow(cText::Tr("&Text enthält:"), m_text);
    m_counterparty->setPlaceholderText(cText::Tr("Name oder Kontonummer"));
    form->addRow(cText::Tr("&Empfänger ist:"), m_counterparty);
    m_sign->addItem(cText::Tr("Einnahme oder Ausgabe"), static_cast<int>(eRuleSign::Any));
    m_sign->addItem(cText::Tr("nur Einnahmen"), static_cast<int>(eRuleSign::In));
    m_sign->addItem(cText::Tr("nur Ausgaben"), static_cast<int>(eRuleSign::Out));
    form->addRow(cText::Tr("&Betrag ist:"), m_sign);
    m_account->addItem(cText::Tr("jedes Konto"), QString());
    const QStringList accounts = m_rules.Accounts();
    for (const QString& account : accounts) {
        m_account->addItem(account, account);
    }
    form->addRow(cText::Tr("Ei&genes Konto:"), m_account);
    return group;
}

QGroupBox* frmRegeln::BuildResult()
{
    auto* group = new QGroupBox(cText::Tr("Dann schlage vor"), this);
    auto* form = new QFormLayout(group);
    m_category->setMinimumContentsLength(20);
    m_category->lineEdit()->setPlaceholderText(cText::Tr("wie ohne Regel"));
    form->addRow(cText::Tr("&Kategorie:"), m_category);
    m_interval->addItem(cText::Tr("wie ohne Regel"), QString());
    modChoice::AddWords(*m_interval, modWord::Intervals());
    form->addRow(cText::Tr("&Intervall:"), m_interval);
    m_description->setPlaceholderText(cText::Tr("Empfänger und Verwendungszweck"));
    form->addRow(cText::Tr("Be&schreibung:"), m_description);
    return group;
}

// The two groups have fields of one left edge.
void frmRegeln::AlignFields()
{
    int widest = 0;
    const QList<QLabel*> labels = m_conditions->findChildren<QLabel*>() + m_result->findChildren<QLabel*>();
    for (const QLabel* label : labels) {
        widest = qMax(widest, label->sizeHint().width());
    }
    for (QLabel* label : labels) {
        label->setMinimumWidth(widest);
    }
}

void frmRegeln::BuildForm(QLayout& layout)
{
    m_conditions = BuildConditions();
    m_result = BuildResult();
    AlignFields();
    layout.addWidget(m_conditions);
    layout.addWidget(m_result);
    m_trial->setTextFormat(Qt::PlainText);
    m_trial->setWordWrap(true);
    m_trial->setMinimumHeight(fontMetrics().lineSpacing() * 3);
    m_trial->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    layout.addWidget(m_trial);
    m_examples->setAccessibleName(cText::Tr("Beispiele"));
    m_examples->setSelectionMode(QAbstractItemView::NoSelection);
    m_examples->setMinimumHeight(cRowDelegate::RowHeight(fontMetrics()) * shownExamples + 2 * m_examples->frameWidth());
    layout.addWidget(m_examples);
}

void frmRegeln::BuildButtons(QLayout& layout)
{
    auto* buttons = new QDialogButtonBox(this);
    m_save = buttons->addButton(cText::Tr("Regel s&peichern"), QDialogButtonBox::ApplyRole);
    m_save->setDefault(true);
    QPushButton* close = buttons->addButton(cText::Tr("S&chließen"), QDialogButtonBox::RejectRole);
    close->setAutoDefault(false);
    connect(m_save, &QPushButton::clicked, this, [this] {
        m_category->Settle();
        m_rules.Save();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &frmRegeln::reject);
    layout.addWidget(buttons);
}

void frmRegeln::Connect()
{
    m_typing.setSingleShot(true);
    m_typing.setInterval(typingPause);
    connect(&m_typing, &QTimer::timeout, this, &frmRegeln::ShowTrial);
    for (QLineEdit* edit : {m_text, m_counterparty, m_description, m_category->lineEdit()}) {
        connect(edit, &QLineEdit::textChanged, this, &frmRegeln::ReadDraft);
    }
    for (QComboBox* combo : {m_sign, m_account, m_interval}) {
        connect(combo, &QComboBox::currentIndexChanged, this, &frmRegeln::ReadDraft);
    }
    connect(m_category, &cCategoryBox::PathPicked, this, &frmRegeln::ReadDraft);
    connect(m_tree->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &frmRegeln::ChooseRow);
    connect(&m_rules, &cRuleEditor::DraftChanged, this, &frmRegeln::ShowDraft);
    connect(&m_rules.List(), &cRuleListModel::RulesChanged, this, &frmRegeln::ShowTrial);
}

void frmRegeln::ChooseRow()
{
    if (m_isShowing || !m_tree->currentIndex().isValid()) {
        return;
    }
    if (!m_rules.Choose(m_tree->currentIndex().row())) {
        ShowDraft();
    }
}

void frmRegeln::ShowDraft()
{
    const QScopedValueRollback guard(m_isShowing, true);
    const cOwnRule rule = m_rules.Draft();
    m_text->setText(rule.Text);
    m_counterparty->setText(rule.Counterparty);
    m_sign->setCurrentIndex(m_sign->findData(static_cast<int>(rule.Sign)));
    modChoice::Choose(*m_account, rule.Account);
    m_category->SetPath(rule.Category);
    modChoice::Choose(*m_interval, rule.Interval);
    m_description->setText(rule.Description);
    m_tree->setCurrentIndex(m_rules.IsNew() ? QModelIndex() : m_rules.List().index(m_rules.Place(), 0));
    ShowTrial();
}

void frmRegeln::ReadDraft()
{
    if (m_isShowing) {
        return;
    }
    cOwnRule rule = m_rules.Draft();
    rule.Text = m_text->text().trimmed();
    rule.Counterparty = m_counterparty->text().trimmed();
    rule.Sign = static_cast<eRuleSign>(m_sign->currentData().toInt());
    m_category->SetType(cRuleEditor::TypeOf(rule));
    rule.Account = m_account->currentData().toString();
    const QString path = m_category->Path();
    rule.Category = path.isEmpty() ? m_category->currentText().trimmed() : path;
    rule.Interval = m_interval->currentData().toString();
    rule.Description = m_description->text().trimmed();
    m_rules.SetDraft(rule);
    m_typing.start();
}

void frmRegeln::ShowTrial()
{
    m_typing.stop();
    m_trial->setText(m_rules.TrialText());
    m_examples->clear();
    const QStringList examples = m_rules.Examples();
    for (const QString& example : examples) {
        auto* item = new QListWidgetItem(example, m_examples);
        item->setToolTip(example);
        item->setSizeHint({0, cRowDelegate::RowHeight(fontMetrics())}); // cut with dots at the edge of the list
    }
    m_conditions->setEnabled(m_rules.CanEdit());
    m_result->setEnabled(m_rules.CanEdit());
    m_save->setEnabled(m_rules.CanEdit());
    m_delete->setEnabled(!m_rules.IsNew());
    m_up->setEnabled(m_rules.CanMove(cRuleEditor::eMove::Up));
    m_down->setEnabled(m_rules.CanMove(cRuleEditor::eMove::Down));
}

void frmRegeln::reject()
{
    if (m_rules.Leave()) {
        QDialog::reject();
    }
}
