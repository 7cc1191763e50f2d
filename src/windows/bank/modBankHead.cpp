#include "windows/bank/modBankHead.h"

#include <QLabel>
#include <QVBoxLayout>

QWidget* modBankHead::Make(const QString& bank, const QString& line, QWidget* parent)
{
    auto* head = new QWidget(parent);
    auto* layout = new QVBoxLayout(head);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    QLabel* name = Text(bank, head);
    QFont bold = name->font();
    bold.setBold(true);
    name->setFont(bold);
    layout->addWidget(name);
    QLabel* below = Text(line, head);
    below->setVisible(!line.isEmpty());
    layout->addWidget(below);
    return head;
}

QLabel* modBankHead::Text(const QString& text, QWidget* parent, int columns)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setText(text);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * columns);
    label->setMinimumHeight(qMax(0, label->heightForWidth(label->minimumWidth()))); // an empty text has none
    return label;
}
