#include "windows/help/frmHandbuch.h"

#include "base/cText.h"
#include "views/help/cManualBrowser.h"
#include "views/help/modManual.h"
#include "windows/look/modIcon.h"
#include "windows/report/cReportView.h"
#include "windows/widget/modPlace.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QSplitter>
#include <QStackedWidget>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int placeRole = Qt::UserRole;

QTreeWidget* NewTree(const QString& name, QWidget* parent)
{
    auto* tree = new QTreeWidget(parent);
    tree->setHeaderHidden(true);
    tree->setAccessibleName(name);
    tree->setTextElideMode(Qt::ElideRight);
    return tree;
}

QTreeWidgetItem* NewItem(const QString& text, const QString& place)
{
    auto* item = new QTreeWidgetItem({text});
    item->setData(0, placeRole, place);
    item->setToolTip(0, text);
    return item;
}

} // namespace

frmHandbuch::frmHandbuch(cManualBrowser& browser)
    : QDialog(nullptr, Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_browser(browser),
      m_back(new QPushButton(cText::Tr("&Zurück"), this)),
      m_forward(new QPushButton(cText::Tr("&Vor"), this)),
      m_search(new QLineEdit(this)),
      m_found(new QLabel(this)),
      m_sides(new QSplitter(this)),
      m_side(new QStackedWidget(m_sides)),
      m_contents(NewTree(cText::Tr("Inhalt"), m_side)),
      m_hits(NewTree(cText::Tr("Gefundene Stellen"), m_side)),
      m_page(new cReportView(this))
{
    setWindowTitle(cText::Tr("Handbuch"));
    setWindowIcon(modIcon::Program());
    setAttribute(Qt::WA_QuitOnClose, false); // the program ends with its main window
    Build();
    Connect();
    FillContents();
    ShowPlace();
}

void frmHandbuch::Build()
{
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildBar());
    if (const QString text = modManual::LanguageNote(); !text.isEmpty()) {
        auto* note = new QLabel(text, this);
        note->setWordWrap(true);
        layout->addWidget(note);
    }
    layout->addWidget(BuildSides(), 1);
    auto* close = new QPushButton(cText::Tr("S&chließen"), this);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    layout->addWidget(close, 0, Qt::AlignRight);
    const QSize wanted(fontMetrics().averageCharWidth() * 130, fontMetrics().height() * 44);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
    m_page->setFocus();
}

QLayout* frmHandbuch::BuildBar()
{
    m_back->setToolTip(cText::Tr("Zurück zur Stelle davor (Alt+Pfeil links)"));
    m_forward->setToolTip(cText::Tr("Wieder vor (Alt+Pfeil rechts)"));
    for (QPushButton* button : {m_back, m_forward}) {
        button->setAutoDefault(false); // Enter belongs to the search
    }
    auto* label = new QLabel(cText::Tr("&Suchen:"), this);
    label->setBuddy(m_search);
    m_search->setClearButtonEnabled(true);
    m_search->setPlaceholderText(cText::Tr("im ganzen Handbuch"));
    m_search->setMinimumWidth(fontMetrics().averageCharWidth() * 24);
    auto* row = new QHBoxLayout;
    row->addWidget(m_back);
    row->addWidget(m_forward);
    row->addSpacing(fontMetrics().averageCharWidth() * 2);
    row->addWidget(label);
    row->addWidget(m_search, 1);
    row->addWidget(m_found, 1);
    return row;
}

QWidget* frmHandbuch::BuildSides()
{
    m_page->setAccessibleName(cText::Tr("Seite des Handbuchs"));
    m_hits->setRootIsDecorated(false);
    m_hits->setAlternatingRowColors(true);
    m_side->addWidget(m_contents);
    m_side->addWidget(m_hits);
    m_sides->addWidget(m_side);
    m_sides->addWidget(m_page);
    m_sides->setStretchFactor(1, 1);
    m_sides->setChildrenCollapsible(false);
    m_sides->setSizes({fontMetrics().averageCharWidth() * 40, fontMetrics().averageCharWidth() * 90});
    return m_sides;
}

void frmHandbuch::Connect()
{
    connect(&m_browser, &cManualBrowser::Opened, this, &frmHandbuch::ShowPlace);
    connect(m_back, &QPushButton::clicked, this, [this] { Leave(&cManualBrowser::GoBack); });
    connect(m_forward, &QPushButton::clicked, this, [this] { Leave(&cManualBrowser::GoForward); });
    connect(new QShortcut(QKeySequence::Back, this), &QShortcut::activated, m_back, &QPushButton::click);
    connect(new QShortcut(QKeySequence::Forward, this), &QShortcut::activated, m_forward, &QPushButton::click);
    connect(m_page, &cReportView::LinkClicked, this, [this](const QString& address) { OpenPlace(address); });
    connect(m_page, &cReportView::FindRequested, m_search, [this] {
        m_search->selectAll();
        m_search->setFocus(Qt::ShortcutFocusReason);
    });
    connect(m_search, &QLineEdit::textChanged, this, &frmHandbuch::Search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] { OpenHit(m_hits->currentItem()); });
    connect(m_contents, &QTreeWidget::itemClicked, this, &frmHandbuch::OpenItem);
    connect(m_contents, &QTreeWidget::itemActivated, this, &frmHandbuch::OpenItem);
    connect(m_hits, &QTreeWidget::itemClicked, this, &frmHandbuch::OpenHit);
    connect(m_hits, &QTreeWidget::itemActivated, this, &frmHandbuch::OpenHit);
}

void frmHandbuch::FillContents()
{
    QTreeWidgetItem* chapter = nullptr;
    QTreeWidgetItem* section = nullptr;
    for (const cManual::cSection& each : m_browser.Manual().Sections()) {
        QTreeWidgetItem* item = NewItem(each.Title, each.Place());
        if (each.Level == 1 || chapter == nullptr) {
            m_contents->addTopLevelItem(item);
            chapter = section = item;
        } else if (each.Level == 2) {
            chapter->addChild(item);
            section = item;
        } else {
            section->addChild(item);
        }
    }
}

void frmHandbuch::Search()
{
    const QString text = m_search->text().simplified();
    const QList<cManual::cHit> hits = m_browser.Manual().Find(text);
    m_hits->clear();
    for (const cManual::cHit& hit : hits) {
        m_hits->addTopLevelItem(NewItem(hit.Title + u'\n' + hit.Excerpt, hit.Place));
    }
    m_hits->setCurrentItem(m_hits->topLevelItem(0));
    ShowSide(*(text.isEmpty() ? m_contents : m_hits));
    m_found->setText(text.isEmpty() ? QString() : cText::Tr("Gefundene Stellen: {0}", {QString::number(hits.size())}));
    m_page->SetFindText(Word());
}

// Places that were found need more room than titles.
void frmHandbuch::ShowSide(QTreeWidget& side)
{
    if (m_side->currentWidget() != &side) {
        m_side->setCurrentWidget(&side);
        const int width = fontMetrics().averageCharWidth() * (&side == m_hits ? 60 : 40);
        m_sides->setSizes({width, std::max(width, m_sides->width() - width)});
    }
}

QString frmHandbuch::Word() const
{
    return m_search->text().simplified().section(u' ', 0, 0);
}

void frmHandbuch::OpenItem(const QTreeWidgetItem* item)
{
    if (item != nullptr) {
        OpenPlace(item->data(0, placeRole).toString());
    }
}

// The word may stand far below the headline of its section.
void frmHandbuch::OpenHit(const QTreeWidgetItem* hit)
{
    OpenItem(hit);
    const cManual::cSection section = m_browser.Manual().Sections().value(m_browser.SectionNow());
    if (section.Text.contains(Word(), Qt::CaseInsensitive)) {
        m_page->FindBelow(section.Anchor);
    }
}

void frmHandbuch::OpenPlace(const QString& address)
{
    m_browser.Leave(m_page->verticalScrollBar()->value());
    m_browser.Open(address);
}

void frmHandbuch::Leave(void (cManualBrowser::*way)())
{
    m_browser.Leave(m_page->verticalScrollBar()->value());
    (m_browser.*way)();
}

void frmHandbuch::ShowPlace()
{
    const cManualBrowser::cPlace& place = m_browser.Place();
    if (std::exchange(m_shown, place.Page) != place.Page) {
        m_page->SetReport(m_browser.Html(), m_browser.Manual().Folder());
    }
    if (place.Position >= 0) {
        m_page->verticalScrollBar()->setValue(place.Position);
    } else {
        m_page->GoToAnchor(place.Anchor);
    }
    MarkContents();
    ShowButtons();
}

// The contents show where the page is from, without asking for it again.
void frmHandbuch::MarkContents()
{
    int row = m_browser.SectionNow();
    for (QTreeWidgetItemIterator each(m_contents); *each != nullptr; ++each, --row) {
        if (row == 0) {
            m_contents->setCurrentItem(*each);
            m_contents->expandItem((*each)->parent() == nullptr ? *each : (*each)->parent());
        }
    }
}

void frmHandbuch::ShowButtons()
{
    m_back->setEnabled(m_browser.CanGoBack());
    m_forward->setEnabled(m_browser.CanGoForward());
}

void frmHandbuch::Present()
{
    StayUsable();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && frameGeometry().intersects(modal->window()->frameGeometry())) {
        const QRect area = screen()->availableGeometry();
        move(modPlace::Beside(frameGeometry(), modal->window()->frameGeometry(), area));
    }
}

bool frmHandbuch::event(QEvent* event)
{
    if (event->type() == QEvent::WindowBlocked) {
        QTimer::singleShot(0, this, &frmHandbuch::StayUsable); // once the dialog stands
    }
    return QDialog::event(event);
}

// A dialog blocks every window but those that belong to it.
void frmHandbuch::StayUsable()
{
    const QWidget* modal = QApplication::activeModalWidget();
    (void)winId(); // so that there is a window to hang on
    windowHandle()->setTransientParent(modal == nullptr ? nullptr : modal->window()->windowHandle());
}
