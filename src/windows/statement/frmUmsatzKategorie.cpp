#include "windows/statement/frmUmsatzKategorie.h"

#include "base/cText.h"
#include "views/statement/cImportReview.h"
#include "windows/look/modWrapped.h"
#include "windows/widget/cCategoryBox.h"
#include "windows/widget/modBadField.h"

#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int letters = 44; // in a line

} // namespace

frmUmsatzKategorie::frmUmsatzKategorie(cImportReview& review, const QList<int>& rowIds, QWidget* parent)
    : QDialog(parent),
      m_review(review),
      m_rowIds(rowIds),
      m_category(new cCategoryBox(review.Suggestions(), this)),
      m_interval(new QComboBox(this)),
      m_description(new QLineEdit(this))
{
    setWindowTitle(m_review.ChoiceTitle(m_rowIds));
    m_interval->addItem(cText::Tr("wie vorgeschlagen"));
    m_interval->addItems(cImportReview::Intervals());
    m_description->setPlaceholderText(cText::Tr("wie vorgeschlagen"));
    m_category->lineEdit()->setPlaceholderText(cText::Tr("wie vorgeschlagen"));
    m_category->SetType(m_review.TypeOf(m_rowIds));
    Build();
    m_category->setFocus();
}

void frmUmsatzKategorie::Build()
{
    auto* form = new QFormLayout;
    form->addRow(cText::Tr("&Kategorie:"), m_category);
    form->addRow(cText::Tr("&Intervall:"), m_interval);
    form->addRow(cText::Tr("B&eschreibung:"), m_description);
    m_category->setMinimumWidth(fontMetrics().averageCharWidth() * letters);
    auto* buttons = new QDialogButtonBox(this);
    buttons->addButton(cText::Tr("Ü&bernehmen"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(cText::Tr("Abbrechen"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmUmsatzKategorie::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(modWrapped::Make(
        cText::Tr("Gilt für die markierten Umsätze, sobald sie gebucht werden. Was leer bleibt, wird nicht geändert."),
        letters, this));
    layout->addLayout(form);
    layout->addStretch();
    layout->addWidget(buttons);
}

void frmUmsatzKategorie::reject()
{
    const bool isTyped = !m_category->currentText().trimmed().isEmpty() || m_interval->currentIndex() > 0
        || !m_description->text().isEmpty();
    const eAnswer answer = isTyped ? m_review.AskToSave() : eAnswer::No;
    if (answer == eAnswer::Yes) {
        accept();
    } else if (answer == eAnswer::No) {
        QDialog::reject();
    }
}

void frmUmsatzKategorie::accept()
{
    if (!m_category->UnknownText().isEmpty() && !m_category->AskNew()) {
        modBadField::Mark(*m_category->lineEdit());
        m_category->setFocus();
        return;
    }
    const QString category = m_category->Path();
    const QString interval =
        m_interval->currentIndex() > 0 ? cImportReview::StoredInterval(m_interval->currentText()) : QString();
    m_review.Choose(m_rowIds, category, interval, m_description->text());
    QDialog::accept();
}
