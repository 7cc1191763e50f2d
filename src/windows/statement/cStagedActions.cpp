#include "windows/statement/cStagedActions.h"

#include "base/cText.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/rule/cRuleEditor.h"
#include "views/sheet/cManyChange.h"
#include "views/statement/cAssignListModel.h"
#include "views/statement/cImportReview.h"
#include "windows/look/modIcon.h"
#include "windows/main/frmMehrere.h"
#include "windows/statement/cStagedTree.h"
#include "windows/statement/frmRegeln.h"
#include "windows/statement/frmUmsatzKategorie.h"
#include "windows/statement/frmZuordnung.h"
#include "windows/widget/cProgressBox.h"

#include <QAction>
#include <QMenu>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

using cCan = cImportReview::cActions;

struct cLine
{
    const char* Text;
    const char16_t* Icon;
    int Key; // with Ctrl; 0: none
    bool cCan::*Can;
    const char* Tip;
};

// In the order of eId.
constexpr std::array<cLine, cStagedActions::Count> lines{{
    {QT_TRANSLATE_NOOP("cText", "B&uchen"), u"buchen", Qt::Key_Return, &cCan::Book,
     QT_TRANSLATE_NOOP("cText", "Bucht die markierten Umsätze (Eingabetaste)")},
    {QT_TRANSLATE_NOOP("cText", "&Vorschläge annehmen"), u"", 0, &cCan::Accept,
     QT_TRANSLATE_NOOP("cText",
                       "Ordnet zu, was schon im Haushaltsbuch steht, und bucht, was einen sicheren Vorschlag hat")},
    {QT_TRANSLATE_NOOP("cText", "Bearbeiten und buchen…"), u"", Qt::Key_B, &cCan::Edit,
     QT_TRANSLATE_NOOP("cText",
                       "Öffnet den markierten Umsatz als Eintrag, auch zum Aufteilen; gespeichert ist er "
                       "gebucht (Strg+B)")},
    {QT_TRANSLATE_NOOP("cText", "&Kategorie…"), u"", Qt::Key_K, &cCan::Choose,
     QT_TRANSLATE_NOOP("cText",
                       "Wählt Kategorie, Intervall und Beschreibung für die markierten Umsätze; sind alle gebucht, "
                       "ändert es deren Einträge (Strg+K)")},
    {QT_TRANSLATE_NOOP("cText", "Ab&gleichen"), u"zusammen", Qt::Key_G, &cCan::Match,
     QT_TRANSLATE_NOOP("cText",
                       "Findet zu den markierten oder allen gezeigten offenen Umsätzen die Einträge, die schon im "
                       "Haushaltsbuch stehen (Strg+G)")},
    {QT_TRANSLATE_NOOP("cText", "Zuo&rdnen…"), u"", Qt::Key_R, &cCan::Assign,
     QT_TRANSLATE_NOOP("cText", "Zeigt die Einträge, zu denen der markierte Umsatz gehören kann (Strg+R)")},
    {QT_TRANSLATE_NOOP("cText", "L&ösen"), u"", Qt::Key_L, &cCan::Release,
     QT_TRANSLATE_NOOP("cText", "Macht die markierten gebuchten Umsätze wieder offen; die Einträge bleiben")},
    {QT_TRANSLATE_NOOP("cText", "&Löschen"), u"loeschen", 0, &cCan::Change,
     QT_TRANSLATE_NOOP("cText", "Löscht die markierten Umsätze (Entf); gebuchte Einträge bleiben")},
    {QT_TRANSLATE_NOOP("cText", "R&egel aus Umsatz…"), u"", 0, &cCan::Rule,
     QT_TRANSLATE_NOOP("cText", "Legt eine eigene Regel an, die Umsätze wie diesen erkennt")},
    {QT_TRANSLATE_NOOP("cText", "Nur Umsätze dieses &Imports"), u"", 0, &cCan::Import,
     QT_TRANSLATE_NOOP("cText", "Zeigt die Umsätze, die mit dem markierten eingelesen wurden, in einem Fenster")},
    {QT_TRANSLATE_NOOP("cText", "Alle &gezeigten buchen…"), u"", 0, &cCan::Accept,
     QT_TRANSLATE_NOOP("cText",
                       "Bucht alles, was die Liste zeigt; vorher nennt eine Frage, was davon nicht sicher ist")},
}};

} // namespace

cStagedActions::cStagedActions(cImportReview& review, cStagedTree& tree, QWidget& page)
    : QObject(&page),
      m_review(review),
      m_tree(tree),
      m_page(page)
{
    for (int id = 0; id < Count; ++id) {
        const cLine& line = lines.at(static_cast<std::size_t>(id));
        auto* action = new QAction(modIcon::Get(QString::fromUtf16(line.Icon)), cText::Tr(line.Text), this);
        action->setToolTip(cText::Tr(line.Tip));
        if (line.Key != 0) {
            action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(line.Key)));
            action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
            page.addAction(action);
        }
        connect(action, &QAction::triggered, this, [this, id] { Run(static_cast<eId>(id)); });
        m_actions.at(static_cast<std::size_t>(id)) = action;
    }
    Get(Book)->setShortcuts({Qt::CTRL | Qt::Key_Return, Qt::CTRL | Qt::Key_Enter});
    connect(&m_tree, &cStagedTree::BookRequested, this, [this] { Run(Book); });
    connect(&m_tree, &cStagedTree::CategoryEntered, this, &cStagedActions::BookSoon);
    connect(&m_tree, &cStagedTree::DeleteRequested, this, [this] { Run(Delete); });
    connect(&m_tree, &cStagedTree::MenuRequested, this, &cStagedActions::OpenMenu);
}

void cStagedActions::Run(eId id)
{
    const QList<int> ids = m_tree.SelectedIds(); // with the category of its field a row may leave the list
    // The proposal was deleted, and nothing put in its place.
    const bool isUnsaid = (id == Book || id == Accept || id == All) && m_tree.IsFieldEmpty();
    if (!Get(id)->isEnabled() || isUnsaid || !m_tree.LeaveField(id == Book)) {
        return;
    }
    switch (id) {
    case Book: BookRows(ids); break;
    case Accept: AcceptProposals(); break;
    case Edit: m_review.EditAndBook(ids); break;
    case Choose: ChooseCategory(ids); break;
    case Match: MatchRows(ids); break;
    case Assign: AssignRow(ids); break;
    case Release: m_review.Release(ids); break;
    case Delete: m_review.Delete(ids); break;
    case Rule: StartRule(ids); break;
    case Import: Q_EMIT ImportRequested(ids.value(0)); break;
    case All: BookRows(m_review.Rows().OpenIds()); break;
    case Count: break;
    }
}

void cStagedActions::BookRows(const QList<int>& ids)
{
    Carry(ids, [&](cProgress& progress) { return m_review.Book(ids, progress); });
}

void cStagedActions::AcceptProposals()
{
    Carry(m_review.Rows().OpenIds(), [this](cProgress& progress) { return m_review.AcceptProposals(progress); });
}

void cStagedActions::Carry(const QList<int>& ids, const std::function<bool(cProgress&)>& work)
{
    const cStagedGuide::cBefore before = m_review.Guide().Before(ids);
    bool isDone = false;
    {
        cProgressBox progress(&m_page, cText::Tr("Die Umsätze werden gebucht …"));
        isDone = work(progress);
    }
    if (isDone) {
        GoTo(m_review.Guide().After(before, m_tree.SelectedIds()));
    }
}

void cStagedActions::GoTo(const cStagedGuide::cStop& stop)
{
    if (stop.IsField) {
        m_tree.OpenCategory(stop.Rows.value(0));
    } else if (!stop.Rows.isEmpty()) {
        m_tree.SelectIds(stop.Rows);
    }
}

void cStagedActions::GoSoon(const cStagedGuide::cStop& stop)
{
    m_tree.SelectIds(stop.Rows);
    if (!stop.IsField) {
        return;
    }
    QMetaObject::invokeMethod(
        this,
        [this, stop] {
            if (m_page.isVisible() && m_tree.SelectedIds() == stop.Rows) {
                GoTo(stop);
            }
        },
        Qt::QueuedConnection);
}

void cStagedActions::ChooseCategory(const QList<int>& ids)
{
    const std::unique_ptr<cManyChange> change = m_review.StartChange(ids);
    if (change == nullptr) {
        frmUmsatzKategorie(m_review, ids, &m_page).exec();
    } else if (change->HasAny() && frmMehrere(*change, &m_page).exec() == QDialog::Accepted) {
        m_review.FollowEntries();
    }
}

void cStagedActions::MatchRows(const QList<int>& ids)
{
    cProgressBox progress(&m_page, cText::Tr("Die Umsätze werden abgeglichen …"));
    m_review.Match(ids, progress);
}

void cStagedActions::AssignRow(const QList<int>& ids)
{
    if (const std::unique_ptr<cAssignListModel> list = m_review.StartAssign(ids)) {
        frmZuordnung(*list, &m_page).exec();
    }
}

void cStagedActions::StartRule(const QList<int>& ids)
{
    if (const std::unique_ptr<cRuleEditor> rules = m_review.StartRule(ids)) {
        frmRegeln(*rules, &m_page).exec();
    }
}

QList<int> cStagedActions::RowsOf(const QModelIndex& index) const
{
    const bool isSelected = m_tree.selectionModel()->isSelected(index);
    return isSelected ? m_tree.SelectedIds() : QList<int>{m_review.Rows().IdAt(index)};
}

void cStagedActions::TakeChoice(const QModelIndex& index, const QString& text)
{
    const QList<int> ids = RowsOf(index);
    if (index.column() == cStagedListModel::Interval) {
        m_review.Choose(ids, {}, cImportReview::StoredInterval(text));
    } else {
        (void)TakeCategory(ids, text);
    }
}

bool cStagedActions::TakeCategory(const QList<int>& ids, const QString& category)
{
    const bool isTaken = m_review.Choose(ids, category, {});
    if (isTaken && ids.size() == 1) {
        // A field may still be being closed, and a question would take the focus from it.
        QMetaObject::invokeMethod(
            this, [this, id = ids.constFirst(), category] { OfferAlike(id, category); }, Qt::QueuedConnection);
    }
    return isTaken;
}

void cStagedActions::OfferAlike(int id, const QString& category)
{
    m_isAsking = true;
    m_review.OfferAlike(id, category);
    m_isAsking = false;
    BookEntered();
}

void cStagedActions::BookSoon(int id)
{
    m_entered = id;
    QMetaObject::invokeMethod(this, &cStagedActions::BookEntered, Qt::QueuedConnection);
}

// The row waits until the question about others like it is answered.
void cStagedActions::BookEntered()
{
    if (const int id = m_isAsking ? 0 : std::exchange(m_entered, 0); id != 0) {
        BookRows({id});
    }
}

bool cStagedActions::TakeNewCategory(const QModelIndex& index, const QString& typed, bool isEntered)
{
    const int id = m_review.Rows().IdAt(index); // the list may be another one after the question
    const QList<int> ids = RowsOf(index);
    const QString path = m_review.Suggestions().OfferNew(typed, m_review.TypeOf({id}));
    if (path.isEmpty()) {
        return false;
    }
    const bool isTaken = TakeCategory(ids, path);
    if (isTaken && isEntered) {
        BookSoon(id);
    }
    return isTaken || !isEntered;
}

void cStagedActions::ShowState()
{
    const QList<int> ids = m_tree.SelectedIds();
    const cCan can = m_review.ActionsFor(ids);
    for (int id = 0; id < Count; ++id) {
        Get(static_cast<eId>(id))->setEnabled(can.*lines.at(static_cast<std::size_t>(id)).Can);
    }
    Get(Import)->setVisible(!m_review.View().IsOfOneImport());
}

void cStagedActions::OpenMenu(const QPoint& globalPosition)
{
    QMenu menu(&m_page);
    menu.setToolTipsVisible(true);
    for (const eId id : {Book, Edit, Choose, Assign, Match, Release, Delete}) {
        menu.addAction(Get(id));
    }
    menu.addSeparator();
    menu.addAction(Get(Rule));
    menu.addAction(Get(Import));
    AddGroupLines(menu);
    // Here there is room for what the action is about.
    const QString text = Get(Choose)->text();
    if (Get(Choose)->isEnabled()) {
        Get(Choose)->setText(m_review.ChoiceTitle(m_tree.SelectedIds()) + u'…');
    }
    menu.exec(globalPosition);
    Get(Choose)->setText(text);
}

void cStagedActions::AddGroupLines(QMenu& menu)
{
    if (m_review.View().Grouping() == 0) {
        return;
    }
    menu.addSeparator();
    connect(menu.addAction(cText::Tr("Gruppen &aufklappen")), &QAction::triggered, &m_tree, &cStagedTree::ExpandGroups);
    connect(menu.addAction(cText::Tr("Gruppen &zuklappen")), &QAction::triggered, &m_tree,
            &cStagedTree::CollapseGroups);
}
