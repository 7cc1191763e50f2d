#include "windows/template/frmKategorie.h"

#include "base/cText.h"
#include "windows/look/modIcon.h"
#include "windows/template/cTemplatePanel.h"
#include "windows/template/cTemplateTree.h"
#include "windows/widget/cActionButton.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/cFormScroll.h"
#include "windows/widget/cTurningSplitter.h"
#include "windows/widget/modPlace.h"

#include <QAction>
#include <QBoxLayout>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int windowWidth = 190; // in average characters
constexpr int treeWidth = 110;
constexpr int panelWidth = 80;
constexpr int besideLetters = 110; // below that the fields stand under the tree
constexpr int windowHeight = 40;   // in lines

} // namespace

frmKategorie::frmKategorie(cTemplateManager& manager, QWidget* parent)
    : QDialog(parent),
      m_manager(manager),
      m_tabs(new QTabWidget(this)),
      m_categories(new cTemplateTree(manager.Categories(), this)),
      m_accounts(new cTemplateTree(manager.Accounts(), this)),
      m_panel(new cTemplatePanel(manager.Today(), this))
{
    setWindowTitle(cText::Tr("Kategorien und Konten"));
    m_categories->setAccessibleName(cText::Tr("Kategorien"));
    m_accounts->setAccessibleName(cText::Tr("Konten"));
    BuildActions();
    BuildLayout();
    m_categories->SetLayout(m_manager.CategoryLayout());
    m_accounts->expandAll();
    m_accounts->SetLayout(m_manager.AccountLayout());
    m_panel->SetReadOnly(m_manager.IsReadOnly());
    Connect();
    m_accounts->SelectFirst();
    m_categories->SelectFirst();
    ShowLine();
    m_categories->setFocus();
    const QSize wanted(fontMetrics().averageCharWidth() * windowWidth, fontMetrics().lineSpacing() * windowHeight);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
}

QAction* frmKategorie::MakeAction(const QString& icon, const QString& text, const QKeySequence& key,
                                  const std::function<void()>& run)
{
    auto* action = new QAction(modIcon::Get(icon), text, this);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    m_categories->addAction(action);
    m_accounts->addAction(action);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void frmKategorie::BuildActions()
{
    using eDirection = cTemplateManager::eDirection;
    m_add = MakeAction(u"neu"_s, cText::Tr("&Neu…"), Qt::Key_Insert, [this] { Add(); });
    m_addMain =
        MakeAction(u"neu"_s, cText::Tr("Neue &Hauptkategorie…"), Qt::SHIFT | Qt::Key_Insert, [this] { AddMain(); });
    m_rename = MakeAction(u"bearbeiten"_s, cText::Tr("Umbenennen"), Qt::Key_F2, [this] { Rename(); });
    m_merge =
        MakeAction(u"zusammen"_s, cText::Tr("&Zusammenführen…"), {}, [this] { Run(&cTemplateManager::AskMerge); });
    m_delete = MakeAction(u"loeschen"_s, cText::Tr("&Löschen…"), QKeySequence::Delete,
                          [this] { Run(&cTemplateManager::Delete); });
    m_up = MakeAction(u"hoch"_s, cText::Tr("Nach &oben"), Qt::ALT | Qt::Key_Up, [this] { Move(eDirection::Up); });
    m_down =
        MakeAction(u"runter"_s, cText::Tr("Nach &unten"), Qt::ALT | Qt::Key_Down, [this] { Move(eDirection::Down); });
}

QLayout* frmKategorie::BuildBar()
{
    auto* bar = new cFlowLayout;
    for (QAction* action : {m_add, m_addMain, m_merge, m_delete, m_up, m_down}) {
        bar->addWidget(new cActionButton(action, this));
    }
    return bar;
}

void frmKategorie::BuildLayout()
{
    m_tabs->addTab(m_categories, cText::Tr("&Kategorien"));
    m_tabs->addTab(m_accounts, cText::Tr("Kon&ten"));
    m_tabs->setDocumentMode(true);
    const int character = fontMetrics().averageCharWidth();
    auto* splitter = new cTurningSplitter(besideLetters, this);
    splitter->addWidget(m_tabs);
    splitter->addWidget(new cFormScroll(m_panel, this));
    splitter->setStretchFactor(0, treeWidth);
    splitter->setStretchFactor(1, panelWidth);
    splitter->setSizes({character * treeWidth, character * panelWidth});
    auto* buttons = new QDialogButtonBox(this);
    QPushButton* close = buttons->addButton(cText::Tr("S&chließen"), QDialogButtonBox::RejectRole);
    close->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildBar());
    layout->addWidget(splitter, 1);
    layout->addWidget(buttons);
}

void frmKategorie::Connect()
{
    connect(m_categories, &cTemplateTree::Chosen, this, &frmKategorie::ChooseLine);
    connect(m_accounts, &cTemplateTree::Chosen, this, &frmKategorie::ChooseLine);
    connect(m_tabs, &QTabWidget::currentChanged, this, &frmKategorie::ChooseLine);
    connect(m_panel, &cTemplatePanel::SaveRequested, this, &frmKategorie::Save);
    connect(m_panel, &cTemplatePanel::DiscardRequested, this, &frmKategorie::Discard);
    connect(m_panel, &cTemplatePanel::LeaveRequested, this, &frmKategorie::AskToSave);
    connect(m_panel, &cTemplatePanel::AddRequested, this, &frmKategorie::Add);
    connect(m_panel, &cTemplatePanel::MergeRequested, m_merge, &QAction::trigger);
    connect(m_panel, &cTemplatePanel::RenameRequested, this, &frmKategorie::Rename);
    connect(&m_manager.Accounts(), &QAbstractItemModel::modelReset, this, &frmKategorie::ShowLine); // built last
}

cTemplateTree& frmKategorie::Tree() const
{
    return m_tabs->currentWidget() == m_accounts ? *m_accounts : *m_categories;
}

bool frmKategorie::Select(const QString& path)
{
    if (!Leave()) {
        return false;
    }
    m_tabs->setCurrentWidget(m_categories);
    if (m_categories->Select(path)) {
        return true;
    }
    if (m_accounts->Select(path)) {
        m_tabs->setCurrentWidget(m_accounts);
        return true;
    }
    return m_categories->Select(path.section(u';', 0, 0).trimmed()); // its main category
}

// The user goes elsewhere. What was typed is saved first, but only once the tree is done with the key or the click.
void frmKategorie::ChooseLine()
{
    if (m_isWaiting) {
        return;
    }
    if (!m_panel->IsChanged()) {
        ShowLine();
        return;
    }
    m_isWaiting = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            const cTemplateNode* current = Tree().Current();
            const std::optional<cTemplateNode> target = current ? std::optional(*current) : std::nullopt;
            const std::optional<cTemplateNode> left = m_shown;
            const bool isSaved = Leave();
            const std::optional<cTemplateNode>& next = isSaved ? target : left;
            if (next) {
                m_tabs->setCurrentWidget(next->IsOfAccounts() ? m_accounts : m_categories);
                Tree().Select(*next);
            }
            m_isWaiting = false;
            if (isSaved) {
                ShowLine();
            }
        },
        Qt::QueuedConnection);
}

bool frmKategorie::Leave()
{
    if (!m_panel->IsChanged() || !m_shown) {
        return true;
    }
    const cTemplateNode node = *m_shown;
    const std::optional<QString> name = m_manager.Save(node, m_panel->Loaded(), m_panel->Fields());
    if (!name) {
        return false;
    }
    m_panel->TakeAsLoaded();
    // A main category without a definition of its own is found by its name only, which may be another one now.
    Go(*name);
    return true;
}

void frmKategorie::Go(const QString& path)
{
    if (!path.isEmpty()) {
        m_shown.reset(); // what the panel shows is stored
        Tree().Select(path);
        ShowLine();
    }
}

void frmKategorie::ShowLine()
{
    const cTemplateNode* node = Tree().Current();
    const bool isSame = m_shown && node != nullptr && m_shown->IsSame(*node);
    if (m_isWaiting || (isSame && m_panel->IsChanged())) {
        return; // the book was read again while somebody types
    }
    m_shown = node == nullptr ? std::nullopt : std::optional(*node);
    ShowActions();
    m_panel->ShowLine(m_manager, node);
}

void frmKategorie::ShowActions()
{
    const bool isWritable = !m_manager.IsReadOnly();
    m_add->setEnabled(isWritable);
    m_addMain->setEnabled(isWritable);
    m_addMain->setVisible(&Tree() == m_categories);
    m_rename->setEnabled(m_shown && isWritable && !m_shown->IsUnknown());
    m_delete->setEnabled(m_shown && m_manager.CanDelete(*m_shown));
    m_merge->setEnabled(m_shown && m_manager.CanMerge(*m_shown));
    m_up->setEnabled(m_shown && m_manager.CanMove(*m_shown));
    m_down->setEnabled(m_up->isEnabled());
}

void frmKategorie::Save()
{
    if (Leave()) {
        Tree().setFocus();
    }
}

void frmKategorie::AskToSave()
{
    const eAnswer answer = m_manager.AskToSave();
    if (answer == eAnswer::Yes) {
        Save();
    } else if (answer == eAnswer::No) {
        Discard();
    }
}

void frmKategorie::Discard()
{
    m_shown.reset();
    ShowLine();
    Tree().setFocus();
}

void frmKategorie::Add()
{
    if (!Leave()) {
        return;
    }
    const std::optional<cTemplateNode> near = m_shown;
    const bool isFirstAccount = !near && &Tree() == m_accounts;
    Go(isFirstAccount ? m_manager.AskAddAccount(nullptr) : m_manager.AskAdd(near ? &*near : nullptr));
}

void frmKategorie::AddMain()
{
    if (Leave()) {
        Go(m_manager.AskAddMain());
    }
}

void frmKategorie::Rename()
{
    if (!m_shown || m_shown->Kind != eTemplateNode::Group) {
        m_panel->EditName();
        return;
    }
    cTemplateNode group = *m_shown;
    const QString name = m_manager.AskRenameGroup(group);
    if (!name.isEmpty()) {
        group.Path = name;
        Tree().Select(group);
    }
}

// The manager gets a copy of the line: what the panel shows changes while it works.
void frmKategorie::Run(fnAction action)
{
    if (Leave() && m_shown) {
        const cTemplateNode node = *m_shown;
        (m_manager.*action)(node);
    }
}

void frmKategorie::Move(cTemplateManager::eDirection direction)
{
    if (Leave() && m_shown) {
        const cTemplateNode node = *m_shown;
        m_manager.Move(node, direction);
    }
}

void frmKategorie::done(int result)
{
    if (!Leave()) {
        return;
    }
    m_manager.SaveLayout(m_categories->Layout(), m_accounts->Layout());
    QDialog::done(result);
}
