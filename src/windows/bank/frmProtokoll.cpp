#include "windows/bank/frmProtokoll.h"

#include "base/cText.h"
#include "views/bank/cBankLogView.h"
#include "windows/bank/modBankHead.h"
#include "windows/widget/modPlace.h"

#include <QBoxLayout>
#include <QFontDatabase>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>

frmProtokoll::frmProtokoll(const cBankLogView& log, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(cText::Tr("Protokoll der Bankabfrage"));
    auto* text = new QPlainTextEdit(log.Text(), this);
    text->setReadOnly(true);
    text->setTabChangesFocus(true);
    text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    text->setAccessibleName(cText::Tr("Nachrichten"));

    auto* save = new QPushButton(cText::Tr("&Speichern…"), this);
    auto* send = new QPushButton(cText::Tr("Per &E-Mail senden…"), this);
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    for (QPushButton* button : {save, send}) {
        button->setAutoDefault(false);
        button->setEnabled(!log.IsEmpty());
    }
    close->setDefault(true);
    connect(save, &QPushButton::clicked, this, [&log] { log.Save(); });
    connect(send, &QPushButton::clicked, this, [&log] { log.Send(); });
    connect(close, &QPushButton::clicked, this, &QDialog::close);

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(modBankHead::Text(log.Note(), this, 65));
    layout->addWidget(text, 1);
    auto* row = new QHBoxLayout;
    row->addWidget(save);
    row->addWidget(send);
    row->addStretch();
    row->addWidget(close);
    layout->addLayout(row);
    const QSize wanted(fontMetrics().averageCharWidth() * 110, fontMetrics().height() * 34);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
}
