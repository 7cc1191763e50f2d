#include "windows/bank/cBankAccountsPage.h"

#include "base/cText.h"
#include "views/bank/cBankSetup.h"
#include "windows/widget/cDayEdit.h"
#include "windows/widget/cFormScroll.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

enum eColumn { Choice, BookAccount };

constexpr int letters = 20; // of a name of an account, in sight

} // namespace

cBankAccountsPage::cBankAccountsPage(cBankSetup& setup, QDate today, QWidget* parent)
    : cBankPage(parent),
      m_setup(setup),
      m_list(new QWidget(this)),
      m_first(new cDayEdit(today, this)),
      m_note(new QLabel(this))
{
    auto* text = new QLabel(cText::Tr("Welche Konten sollen abgerufen werden, und zu welchen Konten im Buch gehören "
                                      "sie? Ein neuer Name legt ein Konto an."),
                            this);
    for (QLabel* label : {text, m_note}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    auto* form = new QFormLayout;
    form->addRow(cText::Tr("Erste Umsätze ab de&m:"), m_first);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(text);
    layout->addWidget(m_list);
    layout->addLayout(form);
    layout->addWidget(m_note);
    layout->addStretch();
    connect(m_first, &cDayEdit::DayChosen, this, [this] {
        m_setup.SetFirstDay(m_first->Chosen());
        m_first->SetDay(m_setup.FirstDay());
        m_note->setText(m_setup.FirstDayNote());
    });
}

void cBankAccountsPage::Enter()
{
    m_rows.clear();
    qDeleteAll(m_list->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    delete m_list->layout();
    m_grid = new QGridLayout(m_list);
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setColumnStretch(BookAccount, 1);
    for (int line = 0; line < m_setup.Accounts().Lines().size(); ++line) {
        AddRow(line);
    }
    m_first->SetDay(m_setup.FirstDay());
    m_note->setText(m_setup.FirstDayNote());
}

void cBankAccountsPage::AddRow(int line)
{
    const cBankAccountChoice::cLine& account = m_setup.Accounts().Lines().at(line);
    const QString name = cText::Tr("{0}, {1}", {account.Product, account.Number});
    const QString lines = account.Product + u'\n' + account.Number;
    const cRow row{new QCheckBox(QString(lines).replace(u'&', u"&&"_s), m_list), new QComboBox(m_list),
                   new QLabel(m_list)};
    row.Account->setEditable(true);
    row.Account->setInsertPolicy(QComboBox::NoInsert);
    row.Account->addItems(m_setup.Accounts().BookAccounts());
    row.Account->setMinimumContentsLength(letters);
    row.Account->setEditText(account.BookAccount);
    row.Account->lineEdit()->setCursorPosition(0); // a long name is shown from its beginning
    row.Account->setAccessibleName(cText::Tr("Konto im Buch für {0}", {name}));
    row.Note->setTextFormat(Qt::PlainText);
    row.IsChosen->setChecked(account.IsChosen);
    m_grid->addWidget(row.IsChosen, 2 * line, Choice);
    m_grid->addWidget(row.Account, 2 * line, BookAccount);
    m_grid->addWidget(row.Note, 2 * line + 1, BookAccount); // beside the field it would widen the window
    m_rows.append(row);
    if (!account.Reason.isEmpty()) {
        row.IsChosen->setEnabled(false);
        row.Account->hide();
        row.Note->setWordWrap(true);
        row.Note->setText(account.Reason);
        row.IsChosen->setAccessibleDescription(account.Reason);
        m_grid->addWidget(row.Note, 2 * line, BookAccount);
        return;
    }
    connect(row.IsChosen, &QCheckBox::toggled, this, [this, line](bool isChosen) {
        m_setup.Accounts().Choose(line, isChosen);
        ShowRow(line);
    });
    connect(row.Account, &QComboBox::editTextChanged, this, [this, line](const QString& text) {
        m_setup.Accounts().SetBookAccount(line, text);
        ShowRow(line);
    });
    ShowRow(line);
}

void cBankAccountsPage::ShowRow(int line)
{
    const cRow& row = m_rows.at(line);
    row.Account->setEnabled(row.IsChosen->isChecked());
    const QString note = row.IsChosen->isChecked() ? m_setup.Accounts().Note(line) : QString();
    row.Note->setText(note);
    row.Note->setVisible(!note.isEmpty());
}

void cBankAccountsPage::Leave()
{
    if (m_first->IsReadable()) {
        m_setup.SetFirstDay(m_first->Day());
    }
}

QWidget* cBankAccountsPage::First()
{
    return m_rows.isEmpty() ? static_cast<QWidget*>(m_first) : m_rows.constFirst().IsChosen;
}
