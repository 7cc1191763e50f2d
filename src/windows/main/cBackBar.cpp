#include "windows/main/cBackBar.h"

#include "base/cText.h"
#include "windows/look/modIcon.h"
#include "windows/widget/cElidedText.h"
#include "windows/widget/cFlowLayout.h"

#include <QPushButton>

cBackBar::cBackBar(QWidget* parent) : QWidget(parent), m_text(new cElidedText(this))
{
    auto* back = new QPushButton(modIcon::Get(QStringLiteral("zurueck")), cText::Tr("Zu&rück zur Auswertung"), this);
    back->setToolTip(cText::Tr("Alt+Links"));
    auto* close = new QPushButton(cText::Tr("Auswah&l aufheben"), this);
    close->setToolTip(cText::Tr("Zeigt wieder die Einträge von vorher"));
    auto* layout = new cFlowLayout(this);
    layout->addWidget(back);
    layout->addWidget(m_text);
    layout->addWidget(close);
    QFont bold = m_text->font();
    bold.setBold(true);
    m_text->setFont(bold);
    connect(back, &QPushButton::clicked, this, &cBackBar::BackRequested);
    connect(close, &QPushButton::clicked, this, &cBackBar::CloseRequested);
    hide();
}

void cBackBar::ShowText(const QString& text)
{
    m_text->SetText(text);
    setVisible(!text.isEmpty());
}
