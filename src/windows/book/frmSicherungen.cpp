#include "windows/book/frmSicherungen.h"

#include "base/cText.h"
#include "windows/look/modWrapped.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>

namespace {

constexpr int shownCopies = 7; // more of them scroll

} // namespace

frmSicherungen::frmSicherungen(cBackupSettings& settings, QWidget* parent)
    : QDialog(parent),
      m_settings(settings),
      m_count(new QSpinBox(this)),
      m_folder(new QLineEdit(this)),
      m_receipts(new QCheckBox(cText::Tr("&Belege mitsichern"), this))
{
    setWindowTitle(cText::Tr("Automatische Datensicherung"));
    auto* form = new QFormLayout(this);
    BuildFields(*form);

    auto* copies = new QListWidget(this);
    copies->addItems(m_settings.Copies());
    copies->setFixedHeight((copies->fontMetrics().height() + 2) * shownCopies + 2 * copies->frameWidth());
    copies->setSelectionMode(QAbstractItemView::NoSelection);
    copies->setAccessibleName(cText::Tr("Vorhandene Sicherungen"));
    form->addRow(cText::Tr("&Vorhanden:"), copies);

    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(cText::Tr("Speichern"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    form->addRow(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmSicherungen::Save);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void frmSicherungen::BuildFields(QFormLayout& form)
{
    constexpr int columns = 60;
    form.addRow(modWrapped::Make(cText::Tr("Kontorelle sichert die Datenbank beim ersten Start an einem Tag, vor jedem "
                                           "Import, alle vier Stunden und beim Beenden, wenn sich etwas geändert hat. "
                                           "Neben den letzten Tagen bleibt die letzte Sicherung jedes Monats "
                                           "erhalten."),
                                 columns, this));

    const cBackupSettings::cFields fields = m_settings.Current();
    m_count->setRange(0, cBackupSettings::MostCount);
    m_count->setSpecialValueText(cText::Tr("keine"));
    m_count->setValue(fields.Count);
    form.addRow(cText::Tr("&Letzte Tage:"), m_count);

    m_folder->setText(fields.Folder);
    auto* choose = new QPushButton(cText::Tr("&Wählen…"), this);
    choose->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(m_folder, 1);
    row->addWidget(choose);
    auto* label = new QLabel(cText::Tr("&Ordner:"), this);
    label->setBuddy(m_folder);
    form.addRow(label, row);
    connect(choose, &QPushButton::clicked, this, &frmSicherungen::ChooseFolder);

    m_receipts->setChecked(fields.HasReceipts);
    m_receipts->setToolTip(cText::Tr("Kopiert neue Dateien aus dem Ordner \"Belege\" neben die Sicherungen, jede nur "
                                     "einmal. Gilt auch für Sicherungen, die Sie selbst erstellen."));
    form.addRow(QString(), m_receipts);
}

void frmSicherungen::ChooseFolder()
{
    m_folder->setText(m_settings.ChooseFolder(m_folder->text()));
}

cBackupSettings::cFields frmSicherungen::Read() const
{
    return {m_count->value(), m_folder->text(), m_receipts->isChecked()};
}

void frmSicherungen::reject()
{
    const eAnswer answer = Read() == m_settings.Current() ? eAnswer::No : m_settings.AskToSave();
    if (answer == eAnswer::Yes) {
        Save();
    } else if (answer == eAnswer::No) {
        QDialog::reject();
    }
}

void frmSicherungen::Save()
{
    if (m_settings.Save(Read())) {
        accept();
    }
}
