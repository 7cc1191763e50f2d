#include "windows/main/frmMain.h"

#include "base/cText.h"
#include "model/modSettingKey.h"
#include "views/main/cMainModel.h"
#include "views/main/modCommand.h"
#include "views/sheet/modRowDrag.h"
#include "windows/look/modIcon.h"
#include "windows/main/cAccountPanel.h"
#include "windows/main/cBackBar.h"
#include "windows/main/cCategoryDrop.h"
#include "windows/main/cDayJump.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/cReminderBar.h"
#include "windows/main/cSumBar.h"
#include "windows/main/cViewBar.h"
#include "windows/receipt/cReceiptDrop.h"
#include "windows/widget/modDrop.h"
#include "windows/widget/modPlace.h"

#include <QAction>
#include <QActionGroup>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenuBar>
#include <QScreen>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int accountLetters = 42; // width of the accounts
constexpr int tellTime = 8000;     // milliseconds for which the status bar says what was done
constexpr int crampedLetters = 80; // width of a window that is too small for list and accounts

} // namespace

frmMain::frmMain(cMainModel& model, QWidget* parent)
    : QMainWindow(parent),
      m_model(model),
      m_splitter(new QSplitter(this)),
      m_tabs(new QTabWidget(this)),
      m_overview(new QWidget(this)),
      m_statements(new QWidget(this)),
      m_statistics(new QWidget(this)),
      m_accounts(new cAccountPanel(model.AccountList(), this)),
      m_backBar(new cBackBar(this)),
      m_viewBar(new cViewBar(model, this)),
      m_hint(new QLabel(this)),
      m_tree(new cEntryTree(model.Entries(), model.Cells(), this)),
      m_sums(new cSumBar(this)),
      m_database(new QLabel(this)),
      m_reminder(new cReminderBar(this)),
      m_failureMark(new QToolButton(this)),
      m_dayJump(new cDayJump(model, this))
{
    setAcceptDrops(true);
    setWindowIcon(modIcon::Program());
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    BuildCommands();
    BuildPages();
    Connect();
}

void frmMain::BuildCommands()
{
    QHash<QString, QMenu*> menus;
    auto* toolBar = addToolBar(cText::Tr("Werkzeugleiste"));
    toolBar->setObjectName(u"toolBar"_s);
    toolBar->setMovable(false);
    toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    for (const modCommand::cCommand& command : modCommand::All()) {
        QMenu& menu = MenuOf(command, menus);
        QAction* action = menu.addAction(m_model.MenuText(command.Id));
        QList<QKeySequence> keys;
        const QStringList keyTexts = modCommand::Keys(command);
        for (const QString& key : keyTexts) {
            keys.append(QKeySequence(key, QKeySequence::PortableText));
        }
        action->setShortcuts(keys);
        action->setIconText(modCommand::PlainText(command));
        action->setIcon(modIcon::Get(QString::fromUtf8(command.Icon)));
        action->setStatusTip(cText::Tr(command.Hint));
        action->setCheckable(command.Setting != nullptr || modCommand::Has(command, modCommand::OneOf));
        action->setIconVisibleInMenu(!action->isCheckable()); // the picture would stand in the place of the tick
        if (modCommand::Has(command, modCommand::OneOf)) {
            action->setActionGroup(menu.findChild<QActionGroup*>());
        }
        action->setData(command.Id);
        connect(action, &QAction::triggered, this, [this, id = command.Id] { m_model.Execute(id); });
        m_actions.insert(command.Id, action);
        if (modCommand::Has(command, modCommand::InToolBar)) {
            toolBar->addAction(action);
        }
        if (modCommand::Has(command, modCommand::NeedsEntry) || modCommand::Has(command, modCommand::NeedsOccurrence)) {
            // Of a submenu the whole: "Für heute" alone would not say what.
            m_tree->addAction(command.Submenu == nullptr ? action : menu.menuAction());
        }
    }
    m_view = menus.value(cText::Tr(modCommand::Find(modCommand::ResetView)->Menu));
}

// The menu or submenu of a command, made when it is the first one there, with the line above it.
QMenu& frmMain::MenuOf(const modCommand::cCommand& command, QHash<QString, QMenu*>& menus)
{
    const QString title = cText::Tr(command.Menu);
    QMenu*& menu = menus[title];
    if (menu == nullptr) {
        menu = menuBar()->addMenu(title.contains(u'&') ? title : QString(u'&' + title));
    }
    if (modCommand::Has(command, modCommand::StartsGroup)) {
        menu->addSeparator();
    }
    if (command.Submenu == nullptr) {
        return *menu;
    }
    QMenu*& submenu = menus[title % u'|' % cText::Tr(command.Submenu)];
    if (submenu == nullptr) {
        submenu = menus.value(title)->addMenu(cText::Tr(command.Submenu));
        new QActionGroup(submenu);
    }
    return *submenu;
}

void frmMain::BuildPages()
{
    m_tabs->setDocumentMode(true);
    m_entries = BuildEntryPage();
    for (QWidget* page : {m_overview, m_statements, m_statistics}) {
        (new QVBoxLayout(page))->setContentsMargins(0, 0, 0, 0);
    }
    m_tabs->addTab(m_overview, cText::Tr("&Übersicht"));
    m_tabs->addTab(m_entries, cText::Tr("Bu&chungen"));
    m_tabs->addTab(m_statements, cText::Tr("Kont&oauszüge"));
    m_tabs->addTab(m_statistics, cText::Tr("Aus&wertung"));
    m_tabs->setCurrentWidget(m_entries);
    m_splitter->addWidget(m_accounts);
    m_splitter->addWidget(m_tabs);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setCollapsible(1, false);
    connect(m_splitter, &QSplitter::splitterMoved, this, [this] { m_isSplitByHand = true; });
    setCentralWidget(m_splitter);
    BuildStatusBar();
    TakeUsualSize();
}

void frmMain::BuildStatusBar()
{
    m_failureMark->setObjectName(u"cmdFehlerprotokoll"_s);
    m_failureMark->setAutoRaise(true);
    m_failureMark->setIcon(modIcon::Get(u"warnung"_s));
    m_failureMark->setText(cText::Tr("Fehlerprotokoll"));
    m_failureMark->setToolTip(cText::Tr("Etwas ist schiefgegangen. Ein Klick zeigt das Fehlerprotokoll."));
    m_failureMark->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_failureMark->setFocusPolicy(Qt::StrongFocus);
    connect(m_failureMark, &QToolButton::clicked, this, [this] { m_model.Execute(modCommand::ErrorLog); });
    connect(m_reminder, &QToolButton::clicked, this, &frmMain::ReminderClicked);
    statusBar()->addWidget(m_reminder, 1);
    statusBar()->addPermanentWidget(m_dayJump);
    statusBar()->addPermanentWidget(m_failureMark);
    statusBar()->addPermanentWidget(m_database);
    m_failureMark->hide();
    connect(statusBar(), &QStatusBar::messageChanged, this, [this] { ShowReminder(m_reminderText); });
}

void frmMain::ShowReminder(const QString& text)
{
    m_reminderText = text;
    if (statusBar()->currentMessage().isEmpty()) { // the message stands in its place for a while
        m_reminder->ShowText(text);
    }
}

void frmMain::ShowFailureMark(bool isShown)
{
    m_failureMark->setVisible(isShown);
}

QWidget* frmMain::BuildEntryPage()
{
    auto* page = new QWidget(this);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(8, 8, 8, 4);
    layout->addWidget(m_backBar);
    layout->addWidget(m_viewBar);
    layout->addWidget(m_hint);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_sums);
    m_hint->setWordWrap(true);
    m_hint->setTextInteractionFlags(Qt::TextBrowserInteraction);
    return page;
}

void frmMain::Connect()
{
    connect(&m_model, &cMainModel::ViewChanged, this, &frmMain::ShowView);
    connect(&m_model, &cMainModel::EntriesChanged, this, &frmMain::ShowEntries);
    connect(&m_model, &cMainModel::SelectionChanged, this, &frmMain::ShowCommands);
    connect(&m_model, &cMainModel::LayoutReset, this, &frmMain::ResetLayout);
    connect(m_tree, &cEntryTree::SelectionKeysChanged, &m_model, &cMainModel::SetSelection);
    connect(m_tree, &cEntryTree::TagClicked, &m_model, &cMainModel::FilterByTag);
    const auto edit = [this] { m_model.Execute(modCommand::EditEntry); };
    connect(m_tree, &QTreeView::doubleClicked, this, edit);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        connect(new QShortcut(key, m_tree, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated, this, edit);
    }
    connect(m_tree, &cEntryTree::CellWritten, &m_model, &cMainModel::CellWritten);
    connect(&m_model, &cMainModel::RowsMade, m_tree, &cEntryTree::Select);
    connect(&m_model, &cMainModel::Told, this, &frmMain::Tell);
    connect(m_dayJump, &cDayJump::RowFound, m_tree, &cEntryTree::GoTo);
    connect(m_dayJump, &cDayJump::Told, this, &frmMain::Tell);
    connect(m_dayJump, &cDayJump::Closed, m_tree, qOverload<>(&QWidget::setFocus));
    auto* drop = new cReceiptDrop(*m_tree, m_model.Entries());
    // The other program waits until the drop is over; questions come after that.
    connect(drop, &cReceiptDrop::ReceiptsDropped, this, &frmMain::ReceiptsDropped, Qt::QueuedConnection);
    connect(drop, &cReceiptDrop::OthersDropped, this, &frmMain::FilesDropped, Qt::QueuedConnection);
    connect(m_accounts, &cAccountPanel::AccountChosen, &m_model, &cMainModel::ChooseAccount);
    connect(m_accounts, &cAccountPanel::RowsDropped, this, &frmMain::RowsDropped);
    auto* regroup = new cCategoryDrop(*m_tree, modRowDrag::Format,
                                      [this](const QModelIndex& line) { return m_model.DropCategory(line); });
    connect(regroup, &cCategoryDrop::Dropped, this, [this](const QByteArray& lines, const QString& category) {
        Q_EMIT RowsRegrouped(modRowDrag::FromBytes(lines), category);
    });
    connect(m_accounts, &cAccountPanel::RenameRequested, &m_model, &cMainModel::RenameAccount);
    connect(m_tabs, &QTabWidget::currentChanged, this, &frmMain::PageChanged);
    connect(m_backBar, &cBackBar::BackRequested, this, &frmMain::GoBack);
    connect(m_backBar, &cBackBar::CloseRequested, &m_model, &cMainModel::GoBack);
    connect(new QShortcut(QKeySequence(u"Alt+Left"_s), this), &QShortcut::activated, this, &frmMain::GoBack);
    connect(m_hint, &QLabel::linkActivated, this, [this] { m_model.Execute(modCommand::ViewFuture); });
}

void frmMain::RestoreLayout()
{
    const cWindowMemory& memory = m_model.Memory();
    const cWindowMemory::cPlacement placement = memory.Placement();
    if (placement.Width > 0) {
        const QRect place(placement.Left, placement.Top, placement.Width, placement.Height);
        setGeometry(modPlace::Visible(place, modPlace::FreeAreas(*screen())));
    }
    if (placement.State == cWindowMemory::eWindow::Maximised) {
        setWindowState(Qt::WindowMaximized);
    }
    m_tree->SetLayoutText(memory.Layout(modSettingKey::MainList));
    m_tree->SetGroupText(memory.Layout(modSettingKey::ClosedGroups));
    ShowCommands();
}

QList<int> frmMain::EntryColumns() const
{
    return m_tree->ShownColumns();
}

QWidget* frmMain::StartPage() const
{
    const bool isOverview = m_model.IsChecked(modSettingKey::StartWithOverview);
    const auto left = static_cast<ePage>(m_model.Memory().Layout(modSettingKey::MainPage).toInt());
    return WidgetOf(isOverview ? ePage::Overview : left);
}

void frmMain::TakeStartPage()
{
    const QSignalBlocker blocker(m_tabs);
    m_tabs->setCurrentWidget(StartPage());
}

void frmMain::ShowToday()
{
    TakeStartPage();
    PageChanged();
    if (!m_model.IsPutOff()) {
        m_tree->ScrollTo(m_model.Today());
    }
    if (Page() == ePage::Entries) {
        m_tree->setFocus();
    }
}

// The keys of some commands belong to the list in front; another page has its own.
void frmMain::PageChanged()
{
    m_model.ShowToday(Page() == ePage::Overview);
    ReadList();
    Q_EMIT PageShown(Page());
    m_model.SetSelection(Page() == ePage::Entries ? m_tree->SelectedKeys() : QList<cEntryListModel::cKey>{});
}

// Of a list that nobody has seen yet, once it comes in sight.
void frmMain::ReadList()
{
    if (Page() == ePage::Entries && m_model.ReadList()) {
        m_tree->ScrollTo(m_model.Today());
    }
}

void frmMain::ShowView()
{
    m_backBar->ShowText(m_model.SelectionText());
    m_viewBar->ShowView();
    m_accounts->SetTitle(m_model.BalancesTitle());
    m_accounts->TakeRows(!m_model.IsReadOnly());
    for (const modCommand::cCommand& command : modCommand::All()) {
        if (QAction* action = m_actions.value(command.Id); action->isCheckable()) {
            action->setChecked(m_model.IsChecked(command));
        }
    }
    const QString hint = m_model.Hint();
    m_hint->setVisible(!hint.isEmpty());
    m_hint->clear(); // a link keeps the colour that it had when its text was new
    m_hint->setText(
        u"%1 <a href=\"#\">%2</a>"_s.arg(hint.toHtmlEscaped(), cText::Tr("Zukünftige ausblenden").toHtmlEscaped()));
    m_database->setText(m_model.DatabaseText());
    setWindowTitle(m_model.WindowTitle());
    ShowCommands(); // what can be undone may have changed
}

void frmMain::ShowEntries()
{
    m_sums->ShowSums(m_model.SumTexts());
    if (m_model.Entries().rowCount() == 0) {
        m_tree->SetEmptyText(m_model.EmptyTitle(), m_model.EmptyHint());
    }
}

void frmMain::ShowCommands()
{
    for (auto action = m_actions.begin(); action != m_actions.end(); ++action) {
        action.value()->setEnabled(m_model.IsEnabled(action.key()));
        action.value()->setText(m_model.MenuText(action.key()));
    }
}

void frmMain::ResetLayout()
{
    m_tree->SetLayoutText({});
    m_tree->SetGroupText({});
    setWindowState(Qt::WindowNoState);
    TakeUsualSize();
}

void frmMain::TakeUsualSize()
{
    const int character = fontMetrics().averageCharWidth();
    resize(modPlace::Fitting({character * 205, fontMetrics().height() * 50}, screen()->availableGeometry()));
}

void frmMain::ShowEntry(const cEntryListModel::cKey& key)
{
    (void)m_model.ReadList();
    m_tree->Select({key});
    m_tree->setFocus(); // Ctrl+Z in the filter would take back what was typed there
}

void frmMain::CopyRows()
{
    m_tree->Copy();
}

void frmMain::AskDay()
{
    ShowPage(ePage::Entries);
    m_dayJump->Start();
}

void frmMain::Tell(const QString& text)
{
    statusBar()->showMessage(text, tellTime);
}

QString frmMain::ColumnText() const
{
    return m_tree->LayoutText();
}

void frmMain::SetColumnText(const QString& text)
{
    m_tree->SetLayoutText(text);
}

QMenu& frmMain::MenuOf(modCommand::eId command) const
{
    return *qobject_cast<QMenu*>(m_actions.value(command)->associatedObjects().value(0));
}

void frmMain::ShowPage(ePage page)
{
    m_tabs->setCurrentWidget(WidgetOf(page));
    if (page == ePage::Entries) {
        m_tree->setFocus();
    }
    if (m_model.IsSelection()) {
        m_tree->scrollToTop();
    }
}

QWidget* frmMain::WidgetOf(ePage page) const
{
    switch (page) {
    case ePage::Overview: return m_overview;
    case ePage::Statements: return m_statements;
    case ePage::Statistics: return m_statistics;
    case ePage::Entries: break;
    }
    return m_entries;
}

frmMain::ePage frmMain::Page() const
{
    for (const ePage page : {ePage::Overview, ePage::Statements, ePage::Statistics}) {
        if (m_tabs->currentWidget() == WidgetOf(page)) {
            return page;
        }
    }
    return ePage::Entries;
}

void frmMain::GoBack()
{
    if (m_model.IsSelection()) {
        m_model.GoBack();
        ShowPage(ePage::Statistics);
    }
}

void frmMain::ShowColumnMenu()
{
    ShowPage(ePage::Entries);
    m_tree->ShowColumnMenu();
}

void frmMain::AddToView(QMenu* menu)
{
    m_view->addMenu(menu);
}

void frmMain::Raise()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void frmMain::SaveLayout()
{
    const QRect place = isMaximized() || isMinimized() ? normalGeometry() : geometry();
    using eWindow = cWindowMemory::eWindow;
    const eWindow state = isMaximized() ? eWindow::Maximised : isMinimized() ? eWindow::Minimised : eWindow::Normal;
    m_model.SaveView();
    cWindowMemory& memory = m_model.Memory();
    memory.SavePlacement({place.left(), place.top(), place.width(), place.height(), state});
    memory.SaveLayout(modSettingKey::MainList, m_tree->LayoutText());
    memory.SaveLayout(modSettingKey::ClosedGroups, m_tree->GroupText());
    memory.SaveLayout(modSettingKey::MainPage, QString::number(static_cast<int>(Page())));
}

// The accounts have room for long names in a wide window and leave most of a narrow one to the list; where it has
// hardly room for itself, they wait at the edge, from where they can be drawn.
void frmMain::ShareWidth()
{
    if (!m_isSplitByHand) {
        const int character = fontMetrics().averageCharWidth();
        const bool hasRoom = width() > character * crampedLetters;
        const int accounts = hasRoom ? qMin(character * accountLetters, width() / 4) : 0;
        m_splitter->setSizes({accounts, width() - accounts});
    }
}

void frmMain::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    ShareWidth();
}

void frmMain::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && isVisible()) {
        QMetaObject::invokeMethod(this, &frmMain::ShowView, Qt::QueuedConnection); // when the link has its palette, too
    }
}

void frmMain::closeEvent(QCloseEvent* event)
{
    SaveLayout();
    Q_EMIT Closing();
    QMainWindow::closeEvent(event);
}

void frmMain::dragEnterEvent(QDragEnterEvent* event)
{
    if (!modDrop::Files(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void frmMain::dropEvent(QDropEvent* event)
{
    QMetaObject::invokeMethod(
        this, [this, paths = modDrop::Files(*event->mimeData())] { Q_EMIT FilesDropped(paths); }, Qt::QueuedConnection);
}
