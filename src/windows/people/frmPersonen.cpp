#include "windows/people/frmPersonen.h"

#include "base/cText.h"
#include "views/people/cPeople.h"
#include "windows/look/modTone.h"
#include "windows/people/cShareTable.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>

frmPersonen::frmPersonen(cPeople& people, QWidget* parent)
    : QDialog(parent),
      m_people(people),
      m_list(new QListWidget(this)),
      m_name(new QLineEdit(this)),
      m_shares(new cShareTable(people, this)),
      m_explanation(new QLabel(this))
{
    setWindowTitle(cText::Tr("Personen"));
    auto* sharesTitle = new QLabel(cText::Tr("An&teile in Prozent:"), this);
    sharesTitle->setBuddy(m_shares);
    m_explanation->setText(cText::Tr(
        "Eine leere Zeile gilt wie „Gemeinsames“, und ist auch das leer, haben alle gleiche Anteile. Was jemand "
        "von einem Konto bezahlt, das ihm allein gehört, tragen alle wie „Gemeinsames“."));
    m_explanation->setWordWrap(true);
    modTone::Use(*m_explanation, modTone::Quiet);
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(close);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildPeople());
    layout->addWidget(sharesTitle);
    layout->addWidget(m_shares, 1);
    layout->addWidget(m_explanation);
    layout->addLayout(buttons);
    Connect();
    ShowPeople();
    m_name->setFocus();
    const QSize wanted(fontMetrics().averageCharWidth() * 90, fontMetrics().height() * 28);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
}

QPushButton* frmPersonen::AddButton(QLayout& layout, const QString& text)
{
    auto* button = new QPushButton(text, this);
    button->setAutoDefault(false);
    layout.addWidget(button);
    return button;
}

QLayout* frmPersonen::BuildPeople()
{
    auto* label = new QLabel(cText::Tr("&Name:"), this);
    label->setBuddy(m_name);
    m_list->setAccessibleName(cText::Tr("Personen des Haushalts"));
    m_list->setMaximumHeight(fontMetrics().height() * 7);
    auto* line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(m_name, 1);
    auto* left = new QVBoxLayout;
    left->addLayout(line);
    left->addWidget(m_list, 1);
    auto* right = new QVBoxLayout;
    m_add = AddButton(*right, cText::Tr("&Hinzufügen"));
    m_rename = AddButton(*right, cText::Tr("&Umbenennen"));
    m_remove = AddButton(*right, cText::Tr("&Löschen…"));
    right->addStretch();
    auto* row = new QHBoxLayout;
    row->addLayout(left, 1);
    row->addLayout(right);
    setTabOrder(m_name, m_list);
    setTabOrder(m_list, m_add);
    setTabOrder(m_add, m_rename);
    setTabOrder(m_rename, m_remove);
    setTabOrder(m_remove, m_shares);
    return row;
}

void frmPersonen::Connect()
{
    connect(m_add, &QPushButton::clicked, this, [this] { Did(m_people.Add(m_name->text())); });
    connect(m_rename, &QPushButton::clicked, this, [this] { Did(m_people.Rename(Chosen(), m_name->text())); });
    connect(m_remove, &QPushButton::clicked, this, [this] { Did(m_people.Remove(Chosen())); });
    connect(m_list, &QListWidget::currentTextChanged, this, [this](const QString& name) {
        m_name->setText(name);
        ShowButtons();
    });
    connect(m_name, &QLineEdit::textChanged, this, &frmPersonen::ShowButtons);
    connect(m_name, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_add->setDefault(!text.isEmpty() && text != Chosen()); // Enter adds what was typed
    });
    connect(m_shares, &cShareTable::Stored, this, &frmPersonen::PeopleChanged);
}

void frmPersonen::Did(bool isDone)
{
    if (isDone) {
        ShowPeople();
        m_shares->Show();
        Q_EMIT PeopleChanged();
    }
    m_name->setFocus();
}

void frmPersonen::ShowPeople()
{
    m_list->clear();
    m_list->addItems(m_people.Names());
    m_name->clear();
    m_shares->setEnabled(m_people.HasAny());
    ShowButtons();
}

void frmPersonen::ShowButtons()
{
    const bool isTyped = !m_name->text().trimmed().isEmpty();
    const bool isOther = m_name->text().trimmed() != Chosen();
    m_add->setEnabled(isTyped && isOther);
    m_rename->setEnabled(isTyped && isOther && !Chosen().isEmpty());
    m_remove->setEnabled(!Chosen().isEmpty());
}

QString frmPersonen::Chosen() const
{
    return m_list->currentItem() == nullptr ? QString() : m_list->currentItem()->text();
}

void frmPersonen::reject()
{
    const QStringList wrong = m_shares->Wrong();
    const bool isTyped = m_add->isEnabled();
    const eAnswer answer = isTyped || !wrong.isEmpty() ? m_people.AskToSave() : eAnswer::No;
    const bool isMeant = answer == eAnswer::Yes && m_people.AreStored(wrong);
    if (isMeant && isTyped && m_people.IsClear(m_name->text(), Chosen())) {
        m_add->click(); // as Enter does; a name that is refused stays in its field
    }
    const bool isSaved = answer == eAnswer::Yes && m_shares->Wrong().isEmpty() && !m_add->isEnabled();
    if (answer == eAnswer::No || isSaved) {
        QDialog::reject();
    }
}
