#include "windows/chart/cChartBox.h"

#include "base/cText.h"
#include "views/chart/modChartTable.h"
#include "windows/chart/cChartTable.h"
#include "windows/chart/cChartView.h"
#include "windows/chart/modChartPainter.h"
#include "windows/look/modIcon.h"
#include "windows/widget/cFlowLayout.h"

#include <QBoxLayout>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

cChartBox::cChartBox(QWidget* parent)
    : QWidget(parent),
      m_back(new QPushButton(this)),
      m_pages(new QStackedWidget(this)),
      m_view(new cChartView(this)),
      m_table(new cChartTable(this))
{
    m_pages->addWidget(m_view);
    m_pages->addWidget(m_table);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addLayout(BuildBar());
    layout->addWidget(m_pages, 1);
    connect(m_view, &cChartView::PartClicked, this, &cChartBox::PartClicked);
    connect(m_view, &cChartView::BackRequested, this, &cChartBox::BackRequested);
    connect(m_view, &cChartView::SeriesSwitched, this, &cChartBox::ShowFigures);
    connect(m_table, &cChartTable::PartClicked, this, &cChartBox::ClickFigure);
}

QLayout* cChartBox::BuildBar()
{
    m_back->setFlat(true);
    m_back->setAutoDefault(false);
    m_back->setIcon(modIcon::Get(u"zurueck"_s));
    m_back->setToolTip(cText::Tr("Rücktaste"));
    m_back->setVisible(false);
    m_switch = AddButton(cText::Tr("Tabelle"), cText::Tr("Zeigt dieselben Zahlen als Tabelle"));
    m_switch->setCheckable(true);
    QToolButton* copy = AddButton(cText::Tr("Kopieren"), cText::Tr("Kopiert das Diagramm in die Zwischenablage"));
    copy->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(copy);
    menu->addAction(cText::Tr("&Bild kopieren"), this, &cChartBox::CopyPicture);
    menu->addAction(cText::Tr("&Zahlen kopieren"), this, &cChartBox::CopyFigures);
    copy->setMenu(menu);
    QToolButton* save =
        AddButton(cText::Tr("Speichern…"), cText::Tr("Speichert das Diagramm als Bild oder als Zahlen"));
    connect(m_back, &QPushButton::clicked, this, &cChartBox::BackRequested);
    connect(m_switch, &QToolButton::toggled, this, &cChartBox::ShowTable);
    connect(save, &QToolButton::clicked, this, &cChartBox::SaveRequested);
    auto* bar = new cFlowLayout;
    bar->setSpacing(2);
    bar->addWidget(m_back);
    bar->AddStretch();
    QWidget* before = m_back;
    for (QToolButton* button : {m_switch, copy, save}) {
        bar->addWidget(button);
        setTabOrder(before, button);
        before = button;
    }
    setTabOrder(before, m_view);
    setTabOrder(m_view, m_table);
    return bar;
}

QToolButton* cChartBox::AddButton(const QString& text, const QString& hint)
{
    auto* button = new QToolButton(this);
    button->setText(text);
    button->setToolTip(hint);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

void cChartBox::SetData(const cChartData& chart)
{
    m_view->SetData(chart);
    m_back->setText(chart.BackText);
    m_back->setVisible(!chart.BackText.isEmpty());
    ShowFigures();
}

cChartData cChartBox::ShownData() const
{
    return m_view->ShownData();
}

void cChartBox::ShowTable(bool isTable)
{
    m_switch->setChecked(isTable);
    m_pages->setCurrentWidget(isTable ? static_cast<QWidget*>(m_table) : m_view);
    ShowFigures();
}

// The table is filled when somebody looks at it.
void cChartBox::ShowFigures()
{
    if (m_pages->currentWidget() == m_table) {
        m_table->SetData(ShownData());
    }
}

void cChartBox::ClickFigure(int series, int index)
{
    Q_EMIT PartClicked(m_view->SeriesAt(series), index);
}

void cChartBox::CopyPicture()
{
    QGuiApplication::clipboard()->setImage(modChartPainter::Image(ShownData(), m_view->size()));
}

void cChartBox::CopyFigures() const
{
    QGuiApplication::clipboard()->setText(modChartTable::TabText(ShownData()));
}
