#include "windows/template/cTemplatePanel.h"

#include "base/cText.h"
#include "model/modWord.h"
#include "views/template/cTemplateManager.h"
#include "windows/look/modTone.h"
#include "windows/template/cLookBox.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cElidedText.h"
#include "windows/widget/modChoice.h"
#include "windows/widget/modEmptyField.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include <algorithm>

namespace {

constexpr int numberLines = 3;

QString WithoutMnemonic(QString text)
{
    return text.remove(u'&');
}

} // namespace

cTemplatePanel::cTemplatePanel(QDate today, QWidget* parent)
    : QWidget(parent),
      m_title(new QLabel(this)),
      m_hint(new QLabel(this)),
      m_form(new QFormLayout),
      m_group(new QComboBox(this)),
      m_name(new QLineEdit(this)),
      m_look(new cLookBox(this)),
      m_bookable(new QCheckBox(this)),
      m_type(new QComboBox(this)),
      m_interval(new QComboBox(this)),
      m_limit(new QLineEdit(this)),
      m_limitHint(new cElidedText(this)),
      m_vat(new QLineEdit(this)),
      m_start(new QLineEdit(this)),
      m_date(new cDayEdit(today, this)),
      m_startRow(new QWidget(this)),
      m_numbers(new QPlainTextEdit(this)),
      m_numbersHint(new QLabel(this)),
      m_comment(new QLineEdit(this)),
      m_visible(new QCheckBox(this)),
      m_save(new QPushButton(cText::Tr("&Speichern"), this)),
      m_discard(new QPushButton(cText::Tr("&Verwerfen"), this)),
      m_add(new QPushButton(this)),
      m_merge(new QPushButton(this)),
      m_rename(new QPushButton(this))
{
    Build();
    BuildFields();
    BuildButtons();
    Connect();
    ShowRows(nullptr);
}

void cTemplatePanel::Build()
{
    QFont font = m_title->font();
    font.setBold(true);
    font.setPointSizeF(font.pointSizeF() * 1.25);
    m_title->setFont(font);
    m_title->setWordWrap(true);
    m_title->setTextFormat(Qt::PlainText);
    for (QLabel* label : {m_hint, m_numbersHint}) {
        label->setWordWrap(true);
        label->setTextFormat(Qt::PlainText);
        modTone::Use(*label, modTone::Quiet);
    }
    modTone::Use(*m_limitHint, modTone::Quiet);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_title);
    layout->addWidget(m_hint);
    layout->addSpacing(fontMetrics().height() / 2);
    auto* notes = new QHBoxLayout;
    for (QPushButton* button : {m_add, m_merge, m_rename}) {
        button->setAutoDefault(false);
        notes->addWidget(button);
    }
    notes->addStretch();
    layout->addLayout(notes);
    layout->addLayout(m_form);
    layout->addStretch();
    m_form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void cTemplatePanel::AddRow(const QString& text, QWidget* field)
{
    auto* label = new QLabel(text, this);
    m_form->addRow(label, field);
    label->setBuddy(field == m_startRow ? m_start : field == m_look ? m_look->focusProxy() : field);
    m_rows.push_back({label, field, text});
}

void cTemplatePanel::BuildFields()
{
    auto* start = new QHBoxLayout(m_startRow);
    start->setContentsMargins(0, 0, 0, 0);
    m_start->setAccessibleName(cText::Tr("Startguthaben")); // its label names the row around it
    start->addWidget(m_start, 1);
    start->addWidget(new QLabel(cText::Tr("am"), m_startRow));
    start->addWidget(m_date);
    m_date->setAccessibleName(cText::Tr("Tag des Startguthabens"));
    m_group->setEditable(true);
    m_group->setInsertPolicy(QComboBox::NoInsert);
    for (QComboBox* box : {m_group, m_type, m_interval}) {
        box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }
    for (QComboBox* box : {m_type, m_interval}) {
        box->addItem(cText::Tr("(keine Vorgabe)"), QString());
    }
    modChoice::AddWords(*m_type, modWord::EntryTypes());
    modChoice::AddWords(*m_interval, modWord::Intervals());
    for (QLineEdit* amount : {m_limit, m_vat, m_start}) {
        amount->setAlignment(Qt::AlignRight);
        modEmptyField::Tell(*amount);
    }
    m_vat->setPlaceholderText(cText::Tr("keine"));
    m_vat->setToolTip(cText::Tr("Der Eintrag zeigt damit, wie viel Mehrwertsteuer in seinem Betrag steckt."));
    m_start->setPlaceholderText(cText::Tr("keines"));
    m_numbers->setTabChangesFocus(true);
    m_numbers->setPlaceholderText(cText::Tr("IBAN oder Kontonummer, eine je Zeile"));
    m_numbers->setFixedHeight(fontMetrics().lineSpacing() * numberLines + fontMetrics().height());

    AddRow(cText::Tr("Nam&e:"), m_name);
    AddRow(cText::Tr("H&auptkategorie:"), m_group);
    AddRow(cText::Tr("&Farbe und Symbol:"), m_look);
    AddRow({}, m_bookable);
    AddRow(cText::Tr("&Buchungsart:"), m_type);
    AddRow(cText::Tr("&Intervall:"), m_interval);
    AddRow(cText::Tr("&Monatslimit:"), m_limit);
    AddRow({}, m_limitHint);
    AddRow(cText::Tr("MwSt. in &Prozent:"), m_vat);
    AddRow(cText::Tr("Start&guthaben:"), m_startRow);
    AddRow(cText::Tr("Kontonummern &für Import:"), m_numbers);
    AddRow({}, m_numbersHint);
    AddRow(cText::Tr("Beme&rkung:"), m_comment);
    AddRow({}, m_visible);
}

void cTemplatePanel::BuildButtons()
{
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {m_save, m_discard}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    buttons->addStretch();
    m_form->addRow(QString(), buttons);
    m_discard->setToolTip(cText::Tr("Stellt die Zeile wieder her, wie sie gespeichert ist"));
    m_save->setToolTip(cText::Tr("Änderungen werden auch beim Verlassen der Zeile gespeichert"));
}

void cTemplatePanel::Connect()
{
    for (QLineEdit* edit : {m_name, m_limit, m_vat, m_start, m_comment}) {
        connect(edit, &QLineEdit::textChanged, this, &cTemplatePanel::ShowChanged);
    }
    for (QComboBox* box : {m_group, m_type, m_interval}) {
        connect(box, &QComboBox::currentTextChanged, this, &cTemplatePanel::ShowChanged);
    }
    for (QCheckBox* box : {m_bookable, m_visible}) {
        connect(box, &QCheckBox::toggled, this, &cTemplatePanel::ShowChanged);
    }
    connect(m_look, &cLookBox::Changed, this, &cTemplatePanel::ShowChanged);
    connect(m_bookable, &QCheckBox::toggled, this, &cTemplatePanel::ShowBookable);
    connect(m_limit, &QLineEdit::textChanged, this, &cTemplatePanel::ShowAmountHint);
    for (QComboBox* box : {m_type, m_interval}) {
        connect(box, &QComboBox::currentIndexChanged, this, &cTemplatePanel::ShowAmountHint);
    }
    connect(m_date, &QLineEdit::textChanged, this, &cTemplatePanel::ShowChanged);
    connect(m_numbers, &QPlainTextEdit::textChanged, this, &cTemplatePanel::ShowChanged);
    connect(m_save, &QPushButton::clicked, this, &cTemplatePanel::SaveRequested);
    connect(m_discard, &QPushButton::clicked, this, &cTemplatePanel::DiscardRequested);
    connect(m_add, &QPushButton::clicked, this, &cTemplatePanel::AddRequested);
    connect(m_merge, &QPushButton::clicked, this, &cTemplatePanel::MergeRequested);
    connect(m_rename, &QPushButton::clicked, this, &cTemplatePanel::RenameRequested);
}

void cTemplatePanel::ShowRow(const QWidget* field, bool isShown)
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [field](const cRow& each) { return each.Field == field; });
    row->Label->setText(isShown ? row->Text : WithoutMnemonic(row->Text));
    m_form->setRowVisible(row->Field, isShown);
}

void cTemplatePanel::SetText(const QWidget* field, const QString& text)
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [field](const cRow& each) { return each.Field == field; });
    row->Text = text;
}

// Which fields a line has; null for a line without any.
void cTemplatePanel::ShowRows(const cTemplateNode* node)
{
    const bool isMain = node != nullptr && node->Kind == eTemplateNode::Main;
    const bool isAccount = node != nullptr && node->Kind == eTemplateNode::Account;
    const bool isCategory = node != nullptr && !isAccount;
    SetText(m_limit, isAccount ? cText::Tr("Kontoli&mit:") : cText::Tr("&Monatslimit:"));
    m_limit->setToolTip(
        isAccount ? cText::Tr("Fällt der Kontostand in den nächsten 60 Tagen darunter, warnt die Kontenliste.")
                  : QString());
    SetText(m_group, isAccount ? cText::Tr("Gru&ppe:") : cText::Tr("H&auptkategorie:"));
    ShowRow(m_name, node != nullptr);
    ShowRow(m_group, node != nullptr && !isMain);
    ShowRow(m_look, isMain);
    ShowRow(m_bookable, isMain);
    ShowRow(m_type, isCategory);
    ShowRow(m_interval, isCategory);
    ShowRow(m_limit, node != nullptr);
    ShowRow(m_limitHint, false);
    ShowRow(m_vat, isCategory);
    ShowRow(m_startRow, isAccount);
    ShowRow(m_numbers, isAccount);
    ShowRow(m_numbersHint, isAccount && !m_numbersHint->text().isEmpty());
    ShowRow(m_comment, node != nullptr);
    ShowRow(m_visible, node != nullptr);
    m_bookable->setText(isMain ? cText::Tr("&Direkt bebuchbar, ohne Unterkategorie") : QString());
    const QString visible =
        isAccount ? cText::Tr("Offenes Konto, &wird angeboten") : cText::Tr("In Aus&wahllisten anbieten");
    m_visible->setText(node == nullptr ? QString() : visible);
    m_save->setVisible(node != nullptr && !m_isReadOnly);
    m_discard->setVisible(node != nullptr && !m_isReadOnly);
    m_hasFields = node != nullptr;
    for (QPushButton* button : {m_add, m_merge, m_rename}) {
        button->setVisible(false);
        button->setText(QString());
    }
}

void cTemplatePanel::Fill(const cTemplateFields& fields, const QStringList& groups)
{
    const bool isAccount = m_kind == eTemplateNode::Account;
    m_name->setText(fields.Name);
    m_group->clear();
    m_group->addItems(groups);
    m_group->setCurrentText(fields.Group);
    m_look->SetLook(fields.Look);
    m_bookable->setChecked(fields.IsBookable);
    modChoice::Choose(*m_type, fields.Type);
    modChoice::Choose(*m_interval, fields.Interval);
    m_limit->setText(isAccount ? fields.Limit : fields.Amount);
    m_vat->setText(fields.Vat);
    m_start->setText(isAccount ? fields.Amount : QString());
    m_date->SetDay(fields.Date);
    m_numbers->setPlainText(fields.Numbers);
    m_comment->setText(fields.Comment);
    m_comment->setCursorPosition(0);
    m_visible->setChecked(fields.IsVisible);
}

void cTemplatePanel::ShowLine(const cTemplateManager& manager, const cTemplateNode* node)
{
    if (node == nullptr) {
        m_title->clear();
        m_hint->setText(cText::Tr("Hier ist noch nichts angelegt."));
        ShowRows(nullptr);
        return;
    }
    m_manager = &manager;
    m_kind = node->Kind;
    m_title->setText(manager.Title(*node));
    m_hint->setText(manager.Hint(*node));
    const bool isOfAccounts = node->IsOfAccounts();
    m_numbersHint->setText(isOfAccounts ? manager.NumbersHint() : QString());
    // A form cuts wrapped lines. A label that never had a text says -1.
    m_numbersHint->setMinimumHeight(qMax(0, m_numbersHint->heightForWidth(m_numbers->width())));
    if (const std::optional<cTemplateFields> fields = manager.Load(*node)) {
        ShowFields(*node, *fields, isOfAccounts ? manager.Groups() : manager.Mains());
        m_name->setEnabled(!manager.IsNameFixed(*node));
        m_group->setEnabled(!manager.IsNameFixed(*node) && !m_isReadOnly);
    } else {
        ShowNote(*node);
    }
}

void cTemplatePanel::ShowFields(const cTemplateNode& node, const cTemplateFields& fields, const QStringList& groups)
{
    m_hasFields = false; // what changes now is nobody's change
    Fill(fields, groups);
    ShowRows(&node);
    ShowBookable();
    ShowAmountHint();
    TakeAsLoaded();
}

void cTemplatePanel::ShowNote(const cTemplateNode& node)
{
    ShowRows(nullptr);
    const auto show = [this](QPushButton* button, bool isShown, const QString& text) {
        button->setVisible(isShown && !m_isReadOnly);
        button->setText(isShown ? text : QString());
    };
    show(m_add, node.IsUnknown(), cText::Tr("&Anlegen"));
    show(m_merge, node.IsUnknown(), cText::Tr("&Buchungen verschieben…"));
    show(m_rename, node.Kind == eTemplateNode::Group, cText::Tr("Gruppe umb&enennen…"));
}

void cTemplatePanel::SetReadOnly(bool isReadOnly)
{
    m_isReadOnly = isReadOnly;
    for (QWidget* field : QWidgetList{m_look, m_bookable, m_type, m_interval, m_visible, m_group}) {
        field->setEnabled(!isReadOnly);
    }
    for (QLineEdit* edit : {m_name, m_limit, m_vat, m_start, m_comment}) {
        edit->setReadOnly(isReadOnly);
    }
    m_date->SetReadOnly(isReadOnly);
    m_numbers->setReadOnly(isReadOnly);
}

// The defaults belong to the main category itself; without it there is nothing that could have them.
void cTemplatePanel::ShowBookable()
{
    const bool hasDefaults = m_kind != eTemplateNode::Main || m_bookable->isChecked();
    for (QWidget* field : QWidgetList{m_type, m_interval, m_limit, m_vat, m_comment}) {
        const bool isEdit = qobject_cast<QLineEdit*>(field) != nullptr;
        field->setEnabled(hasDefaults && (!m_isReadOnly || isEdit));
    }
}

// The amount of a category is another thing with another interval.
void cTemplatePanel::ShowAmountHint()
{
    if (!m_hasFields || m_kind == eTemplateNode::Account) {
        return;
    }
    const cTemplateFields fields = Fields();
    const QString hint = m_manager->AmountHint(fields);
    m_limitHint->SetText(hint);
    SetText(m_limit, m_manager->AmountLabel(fields));
    m_limit->setPlaceholderText(m_manager->NoAmountText(fields));
    ShowRow(m_limit, true);
    ShowRow(m_limitHint, !hint.isEmpty());
}

cTemplateFields cTemplatePanel::Fields() const
{
    cTemplateFields fields;
    const bool isAccount = m_kind == eTemplateNode::Account;
    fields.Name = m_name->text();
    fields.Group = m_group->currentText();
    fields.Type = m_type->currentData().toString();
    fields.Interval = m_interval->currentData().toString();
    fields.Amount = isAccount ? m_start->text() : m_limit->text();
    fields.Limit = isAccount ? m_limit->text() : QString();
    fields.Vat = isAccount ? QString() : m_vat->text();
    fields.Date = m_date->Day();
    fields.Numbers = m_numbers->toPlainText();
    fields.Comment = m_comment->text();
    fields.Look = m_kind == eTemplateNode::Main ? m_look->Look() : cCategoryLook{};
    fields.IsVisible = m_visible->isChecked();
    fields.IsBookable = m_bookable->isChecked();
    return fields;
}

// Escape is about what was typed before it closes the window.
void cTemplatePanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && IsChanged()) {
        Q_EMIT LeaveRequested();
        return;
    }
    QWidget::keyPressEvent(event);
}

bool cTemplatePanel::IsChanged() const
{
    return m_hasFields && !m_isReadOnly && Fields() != m_loaded;
}

void cTemplatePanel::TakeAsLoaded()
{
    m_loaded = Fields();
    ShowChanged();
}

void cTemplatePanel::ShowChanged()
{
    const bool isChanged = IsChanged();
    m_save->setEnabled(isChanged);
    m_save->setDefault(isChanged);
    m_discard->setEnabled(isChanged);
}

void cTemplatePanel::EditName()
{
    m_name->setFocus(Qt::ShortcutFocusReason);
    m_name->selectAll();
}
