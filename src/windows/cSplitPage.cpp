#include "windows/cSplitPage.h"

#include "base/cText.h"
#include "windows/cSplitTable.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

cSplitPage::cSplitPage(cEntrySuggestions& suggestions, QWidget* parent)
    : QWidget(parent),
      m_table(new cSplitTable(suggestions, this)),
      m_rest(new QLabel(this)),
      m_fill(new QPushButton(cText::Tr("&Rest einsetzen"), this)),
      m_remove(new QPushButton(cText::Tr("&Zeile entfernen"), this))
{
    m_rest->setObjectName(QStringLiteral("lblRest"));
    QFont font = m_rest->font();
    font.setBold(true);
    m_rest->setFont(font);
    m_rest->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_fill->setToolTip(cText::Tr("Setzt den Rest in die gewählte Zeile ein"));
    m_fill->setAutoDefault(false);
    m_remove->setAutoDefault(false);
    m_remove->setToolTip(cText::Tr("Entfernt die gewählte Zeile (Entf)"));
    auto* row = new QHBoxLayout;
    row->addWidget(m_fill);
    row->addWidget(m_remove);
    row->addStretch(1);
    row->addWidget(m_rest);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table, 1);
    layout->addLayout(row);
    setTabOrder(m_table, m_fill);
    setTabOrder(m_fill, m_remove);
    connect(m_fill, &QPushButton::clicked, this, &cSplitPage::RequestRest);
    connect(m_remove, &QPushButton::clicked, m_table, [this] {
        m_table->Commit();
        m_table->RemoveLine();
    });
}

void cSplitPage::ShowRest(const QString& text)
{
    m_rest->setText(text);
}

void cSplitPage::RequestRest()
{
    m_table->Commit();
    Q_EMIT RestRequested(m_table->currentRow());
    m_table->setFocus();
}
