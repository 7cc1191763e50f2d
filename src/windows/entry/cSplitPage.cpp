#include "windows/entry/cSplitPage.h"

#include "base/cText.h"
#include "views/entry/cEntryEditor.h"
#include "views/entry/modSplitParts.h"
#include "windows/entry/cSplitTable.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

cSplitPage::cSplitPage(cEntryEditor& editor, fnFields fields, QWidget* parent)
    : QWidget(parent),
      m_editor(editor),
      m_fields(std::move(fields)),
      m_table(new cSplitTable(editor.Suggestions(), editor.Decimal(), this)),
      m_rest(new QLabel(this)),
      m_fill(new QPushButton(cText::Tr("&Rest einsetzen"), this)),
      m_remove(new QPushButton(cText::Tr("&Zeile entfernen"), this))
{
    Build();
    connect(m_fill, &QPushButton::clicked, this, &cSplitPage::FillRest);
    connect(m_remove, &QPushButton::clicked, this, &cSplitPage::RemoveLine);
    connect(m_table, &cSplitTable::PartsEdited, this, [this] { ShowRest(m_fields()); });
    connect(m_table, &cSplitTable::CategoryPicked, this, &cSplitPage::ChooseCategory);
    connect(m_table, &cSplitTable::DescriptionPicked, this, &cSplitPage::ChooseDescription);
    connect(m_table, &cSplitTable::NewCategoryWanted, this, &cSplitPage::OfferCategory);
}

void cSplitPage::Build()
{
    m_rest->setObjectName(QStringLiteral("lblRest"));
    QFont font = m_rest->font();
    font.setBold(true);
    m_rest->setFont(font);
    m_fill->setToolTip(cText::Tr("Setzt den Rest in die gewählte Zeile ein"));
    m_fill->setAutoDefault(false);
    m_remove->setToolTip(cText::Tr("Entfernt die gewählte Zeile (Entf)"));
    m_remove->setAutoDefault(false);
    auto* row = new QHBoxLayout;
    row->addWidget(m_fill);
    row->addWidget(m_remove);
    row->addStretch(1);
    row->addWidget(m_rest);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table, 1);
    layout->addLayout(row);
}

void cSplitPage::ShowParts(const cEntryFields& fields)
{
    m_table->ShowParts(fields.Parts);
    ShowRest(fields);
}

void cSplitPage::ShowRest(const cEntryFields& fields)
{
    m_rest->setText(modSplitParts::RestText(fields));
}

void cSplitPage::ShowBadPart()
{
    m_table->MarkAmount(m_editor.FailedPart());
    m_table->ChooseCell(m_editor.FailedPart(), cSplitTable::Amount);
    m_table->clearSelection(); // its colour would hide the mark
}

void cSplitPage::ChooseCategory(int line, const QString& path)
{
    cEntryFields fields = m_fields();
    m_editor.ChoosePartCategory(line, path, fields);
    ShowParts(fields);
    Q_EMIT DefaultsTaken(fields);
}

void cSplitPage::ChooseDescription(int line, const QString& text)
{
    cEntryFields fields = m_fields();
    m_editor.ChoosePartDescription(line, text, fields);
    ShowParts(fields);
    Q_EMIT DefaultsTaken(fields);
}

void cSplitPage::OfferCategory(int line, const QString& typed)
{
    cEntryFields fields = m_fields();
    m_editor.OfferPartCategory(line, typed, fields);
    ShowParts(fields);
    m_table->setFocus();
    Q_EMIT DefaultsTaken(fields);
}

void cSplitPage::FillRest()
{
    m_table->Commit();
    cEntryFields fields = m_fields();
    if (modSplitParts::FillRest(m_table->currentRow(), fields)) {
        ShowParts(fields);
    }
    m_table->setFocus();
}

void cSplitPage::RemoveLine()
{
    m_table->Commit();
    m_table->RemoveLine();
    m_table->setFocus();
}
