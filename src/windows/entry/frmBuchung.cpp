#include "windows/entry/frmBuchung.h"

#include "base/cText.h"
#include "windows/entry/cCorrectionsPage.h"
#include "windows/entry/cEntryForm.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int savedLines = 5;
constexpr int correctionsPage = 1;

} // namespace

frmBuchung::frmBuchung(cEntryEditor& editor, const cEntryFields& fields, QWidget* parent)
    : QDialog(parent),
      m_editor(editor),
      m_pages(new QTabWidget(this)),
      m_form(new cEntryForm(editor, fields, m_pages)),
      m_corrections(new cCorrectionsPage(
          editor.Today(), [this] { return m_form->Read(); }, [this] { return m_editor.AskToSave(); }, m_pages)),
      chkCloseDialog(new QCheckBox(cText::Tr("Nach dem Speichern s&chließen"), this)),
      m_savedBox(new QWidget(this)),
      m_saved(new QListWidget(m_savedBox)),
      m_buttons(new QDialogButtonBox(this))
{
    Build();
    Connect();
    ShowFace();
    m_shown = m_form->Read();
    m_form->FocusFirst();
}

void frmBuchung::Build()
{
    chkCloseDialog->setObjectName(u"chkCloseDialog"_s);
    chkCloseDialog->setChecked(true);
    chkCloseDialog->setVisible(m_editor.IsNew());
    m_pages->setDocumentMode(true);
    m_pages->tabBar()->setAccessibleName(cText::Tr("Seiten"));
    m_pages->addTab(m_form, cText::Tr("Eintrag"));
    m_pages->addTab(m_corrections, cText::Tr("Korrekturen"));
    BuildSaved();
    BuildButtons();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_pages, 1);
    layout->addWidget(m_savedBox);
    layout->addWidget(chkCloseDialog);
    layout->addWidget(m_buttons);
}

void frmBuchung::BuildSaved()
{
    auto* label = new QLabel(cText::Tr("Gerade gespeichert:"), m_savedBox);
    label->setBuddy(m_saved);
    m_saved->setObjectName(u"lstGespeichert"_s);
    m_saved->setFocusPolicy(Qt::NoFocus); // nothing to do there
    m_saved->setUniformItemSizes(true);
    m_saved->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_saved->setFixedHeight((fontMetrics().height() + 2) * savedLines + 2 * m_saved->frameWidth());
    auto* layout = new QVBoxLayout(m_savedBox);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(label);
    layout->addWidget(m_saved);
    m_savedBox->hide();
}

void frmBuchung::BuildButtons()
{
    QPushButton* save = m_buttons->addButton(cText::Tr("&Speichern"), QDialogButtonBox::AcceptRole);
    QPushButton* cancel = m_buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    cancel->setAutoDefault(false);
    m_split = m_buttons->addButton(QString(), QDialogButtonBox::ResetRole);
    m_split->setObjectName(u"cmdAufteilen"_s);
    m_split->setAutoDefault(false);
    save->setDefault(true);
    setTabOrder(chkCloseDialog, save);
    setTabOrder(save, cancel);
    setTabOrder(cancel, m_split);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &frmBuchung::Save);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &frmBuchung::reject);
}

void frmBuchung::Connect()
{
    connect(m_split, &QPushButton::clicked, this, &frmBuchung::ToggleSplit);
    connect(m_form, &cEntryForm::CalculatorRequested, this, &frmBuchung::CalculatorRequested);
    connect(m_form, &cEntryForm::CorrectionsChanged, this, &frmBuchung::ShowCorrections);
    connect(m_corrections, &cCorrectionsPage::CorrectionsEdited, m_form, &cEntryForm::SetCorrections);
    for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(key)), this);
        connect(shortcut, &QShortcut::activated, this, &frmBuchung::Save);
    }
}

void frmBuchung::ShowFace()
{
    const cEntryFields fields = m_form->Read();
    setWindowTitle(m_editor.Title(fields));
    m_split->setVisible(fields.Face != eEntryFace::StartBalance);
    m_split->setText(fields.Face == eEntryFace::Split ? cText::Tr("Nicht auf&teilen") : cText::Tr("Auf&teilen"));
    ShowCorrections();
}

void frmBuchung::ShowCorrections()
{
    const cEntryFields fields = m_form->Read();
    const bool hasPage = m_editor.ShowsCorrections(fields);
    m_pages->setTabVisible(correctionsPage, hasPage);
    m_pages->tabBar()->setVisible(hasPage);                                  // one page alone needs no tab
    m_pages->tabBar()->setFocusPolicy(hasPage ? Qt::TabFocus : Qt::NoFocus); // hidden, it would end the way of Tab
    m_pages->setTabText(correctionsPage, cText::Tr("Korrekturen ({0})", {QString::number(fields.Corrections.size())}));
    m_corrections->ShowLines();
}

void frmBuchung::ToggleSplit()
{
    m_form->Settle();
    cEntryFields fields = m_form->Read();
    if (fields.Face != eEntryFace::Split) {
        m_editor.UseSplit(fields);
    } else if (!m_editor.UseNormal(fields)) {
        return;
    }
    m_form->Show(fields);
    ShowFace();
    m_form->FocusNext();
}

void frmBuchung::Save()
{
    m_form->Settle();
    const bool isNew = m_editor.IsNew();
    const cEntryFields fields = m_form->Read();
    if (!Store(fields)) {
        return;
    }
    if (chkCloseDialog->isChecked() || !isNew) {
        accept();
        return;
    }
    GoOn(fields);
}

bool frmBuchung::Store(const cEntryFields& fields)
{
    const cEntryEditor::eSaved saved = m_editor.Save(fields);
    if (saved != cEntryEditor::eSaved::Saved) {
        m_pages->setCurrentWidget(m_form);
        m_form->ShowFailure(saved);
        return false;
    }
    Q_EMIT EntrySaved();
    return true;
}

// The window stays for the next entry.
void frmBuchung::GoOn(const cEntryFields& saved)
{
    m_form->Show(m_editor.Next(saved));
    m_shown = m_form->Read();
    m_saved->clear();
    m_saved->addItems(m_editor.LastSaved());
    m_savedBox->show();
    m_form->FocusFirst();
}

void frmBuchung::reject()
{
    const std::optional<cEntryFields> typed = Unsaved();
    const eAnswer answer = typed ? m_editor.AskToSave() : eAnswer::No;
    if (answer == eAnswer::No) {
        QDialog::reject();
    } else if (answer == eAnswer::Yes && Store(*typed)) {
        accept();
    }
}

void frmBuchung::ShowTyped(const cEntryFields& fields)
{
    m_form->Show(fields);
    ShowFace();
    m_form->FocusFirst();
}

std::optional<cEntryFields> frmBuchung::Unsaved()
{
    m_form->Settle();
    const cEntryFields fields = m_form->Read();
    return cEntryEditor::IsTyped(m_shown, fields) ? std::optional(fields) : std::nullopt;
}
