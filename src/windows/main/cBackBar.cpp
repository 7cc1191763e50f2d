#include "windows/main/cBackBar.h"

#include "base/cText.h"
#include "windows/widget/modIcon.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

cBackBar::cBackBar(QWidget* parent) : QWidget(parent), m_text(new QLabel(this))
{
    auto* back = new QPushButton(modIcon::Get(QStringLiteral("zurueck")), cText::Tr("Zurück zur Auswertung"), this);
    back->setToolTip(cText::Tr("Alt+Links"));
    auto* close = new QPushButton(cText::Tr("Auswahl aufheben"), this);
    close->setToolTip(cText::Tr("Zeigt wieder die Einträge von vorher"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(back);
    layout->addWidget(m_text, 1);
    layout->addWidget(close);
    m_text->setTextFormat(Qt::PlainText);
    QFont bold = m_text->font();
    bold.setBold(true);
    m_text->setFont(bold);
    connect(back, &QPushButton::clicked, this, &cBackBar::BackRequested);
    connect(close, &QPushButton::clicked, this, &cBackBar::CloseRequested);
    hide();
}

void cBackBar::ShowText(const QString& text)
{
    m_text->setText(text);
    setVisible(!text.isEmpty());
}
