#include "windows/report/cReportPane.h"

#include "base/cText.h"
#include "windows/report/cReportView.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

cReportPane::cReportPane(QWidget* parent)
    : QWidget(parent),
      m_view(new cReportView(this)),
      m_bar(new QWidget(this)),
      m_text(new QLineEdit(m_bar)),
      m_count(new QLabel(m_bar))
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_bar);
    setFocusProxy(m_view);
    BuildBar();
    m_bar->hide();
    connect(m_view, &cReportView::FindRequested, this, &cReportPane::ShowFind);
}

void cReportPane::BuildBar()
{
    auto* layout = new QHBoxLayout(m_bar);
    layout->setContentsMargins(4, 0, 4, 2);
    m_text->setClearButtonEnabled(true);
    m_text->setPlaceholderText(cText::Tr("Im Bericht suchen"));
    m_text->setAccessibleName(cText::Tr("Im Bericht suchen"));
    m_text->setMaximumWidth(fontMetrics().averageCharWidth() * 40);
    m_text->installEventFilter(this);
    layout->addWidget(m_text, 1);
    using enum cReportView::eDirection;
    connect(AddButton(u"▲"_s, cText::Tr("Voriger Fund")), &QToolButton::clicked, this, [this] {
        m_view->FindNext(Backward);
        ShowCount();
    });
    connect(AddButton(u"▼"_s, cText::Tr("Nächster Fund")), &QToolButton::clicked, this, [this] {
        m_view->FindNext(Forward);
        ShowCount();
    });
    layout->addWidget(m_count);
    layout->addStretch();
    connect(AddButton(u"✕"_s, cText::Tr("Suche schließen (Esc)")), &QToolButton::clicked, this, &cReportPane::HideFind);
    connect(m_text, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_view->SetFindText(text);
        ShowCount();
    });
}

QToolButton* cReportPane::AddButton(const QString& text, const QString& name)
{
    auto* button = new QToolButton(m_bar);
    button->setText(text);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    m_bar->layout()->addWidget(button);
    return button;
}

void cReportPane::ShowFind()
{
    m_bar->show();
    const QString selected = m_view->SelectedText();
    if (!selected.isEmpty() && !selected.contains(u'\n')) {
        m_text->setText(selected);
    }
    m_text->selectAll();
    m_text->setFocus();
    ShowCount();
}

void cReportPane::HideFind()
{
    m_bar->hide();
    m_text->clear();
    m_view->setFocus();
}

void cReportPane::ShowCount()
{
    const QStringList numbers{QString::number(m_view->FoundNumber()), QString::number(m_view->FoundCount())};
    const bool isFound = m_view->FoundCount() > 0;
    m_count->setText(m_text->text().isEmpty() ? QString()
                         : isFound            ? cText::Tr("{0} von {1}", numbers)
                                              : cText::Tr("Nicht gefunden"));
}

bool cReportPane::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_text || event->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(watched, event);
    }
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() == Qt::Key_Escape) {
        HideFind();
        return true;
    }
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        const bool isBack = key->modifiers().testFlag(Qt::ShiftModifier);
        m_view->FindNext(isBack ? cReportView::eDirection::Backward : cReportView::eDirection::Forward);
        ShowCount();
        return true;
    }
    return false;
}
