#include "windows/receipt/cReceiptField.h"

#include "base/cText.h"
#include "windows/receipt/modReceiptMime.h"

#include <QBoxLayout>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

cReceiptField::cReceiptField(QWidget* parent)
    : QWidget(parent),
      m_text(new QLabel(this)),
      m_button(new QPushButton(cText::Tr("Bele&g hinzufügen"), this))
{
    auto* menu = new QMenu(m_button);
    connect(menu->addAction(cText::Tr("&Datei wählen…")), &QAction::triggered, this, &cReceiptField::ChooseRequested);
    connect(menu->addAction(cText::Tr("Aus der &Zwischenablage")), &QAction::triggered, this,
            [this] { Add(modReceiptMime::Clipboard()); });
    m_clear = menu->addAction(cText::Tr("&Neue doch nicht"));
    connect(m_clear, &QAction::triggered, this, &cReceiptField::ClearRequested);
    m_button->setMenu(menu);
    m_button->setAutoDefault(false);
    m_button->setToolTip(cText::Tr("Dateien können auch hierher gezogen werden."));
    m_button->setObjectName(u"cmdBeleg"_s);
    m_button->setAccessibleName(cText::Tr("Belege:") + u' ' + m_button->text().remove(u'&'));
    m_text->setObjectName(u"lblBelege"_s);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(m_text);
    row->addWidget(m_button);
    row->addStretch(1);
    setAcceptDrops(true);
    setFocusProxy(m_button);
    SetNewCount(0);
}

void cReceiptField::ShowText(const QString& text)
{
    m_text->setText(text);
    m_button->setAccessibleDescription(text);
}

void cReceiptField::SetNewCount(qsizetype count)
{
    m_clear->setEnabled(count > 0);
}

void cReceiptField::Add(const QList<cReceiptSource>& sources)
{
    if (!sources.isEmpty()) {
        Q_EMIT Added(sources);
    }
}

void cReceiptField::dragEnterEvent(QDragEnterEvent* event)
{
    if (modReceiptMime::HasReceipts(*event->mimeData())) {
        event->acceptProposedAction();
    }
}

void cReceiptField::dropEvent(QDropEvent* event)
{
    Add(modReceiptMime::Receipts(*event->mimeData()));
}
