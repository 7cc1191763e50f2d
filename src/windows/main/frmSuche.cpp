#include "windows/main/frmSuche.h"

#include "base/cText.h"
#include "views/list/cSearchModel.h"
#include "windows/look/modIcon.h"
#include "windows/look/modTone.h"
#include "windows/main/cEntryTree.h"
#include "windows/main/cSearchFields.h"
#include "windows/main/cSumBar.h"
#include "windows/receipt/cReceiptDrop.h"
#include "windows/widget/cFlowLayout.h"
#include "windows/widget/modPlace.h"

#include <QAction>
#include <QBoxLayout>
#include <QHideEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTimer>

#include <utility>

using namespace Qt::Literals::StringLiterals;

frmSuche::frmSuche(cSearchModel& model, cCellEdit& cells, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint),
      m_model(model),
      m_fields(new cSearchFields(model, this)),
      m_hint(new QLabel(this)),
      m_tree(new cEntryTree(model.Entries(), cells, this)),
      m_sums(new cSumBar(this)),
      m_edit(new QPushButton(modIcon::Get(u"bearbeiten"_s), cText::Tr("&Eintrag bearbeiten"), this)),
      m_delete(new QPushButton(modIcon::Get(u"loeschen"_s), cText::Tr("&Löschen"), this)),
      m_change(new QPushButton(cText::Tr("Me&hrere ändern…"), this)),
      m_duplicate(new QPushButton(cText::Tr("D&uplizieren"), this)),
      m_clear(new QPushButton(cText::Tr("&Neue Suche"), this)),
      m_close(new QPushButton(cText::Tr("S&chließen"), this))
{
    setWindowTitle(cText::Tr("Suchen"));
    Build();
    BuildMenu();
    Connect();
    ResetLayout();
    if (!m_model.Layout().isEmpty()) {
        m_tree->SetLayoutText(m_model.Layout());
    }
    ShowFound();
    ShowButtons();
}

frmSuche::~frmSuche()
{
    hide(); // the columns are kept also when the program ends with the search still open
}

void frmSuche::Build()
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_fields);
    layout->addWidget(m_hint);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_sums);
    layout->addLayout(BuildButtons());
    m_hint->setWordWrap(true);
    modTone::Use(*m_hint, modTone::Quiet);
    m_tree->setAccessibleName(cText::Tr("Gefundene Einträge"));
    const QSize wanted(fontMetrics().averageCharWidth() * 165, fontMetrics().height() * 40);
    resize(modPlace::Fitting(wanted, screen()->availableGeometry()));
}

QLayout* frmSuche::BuildButtons()
{
    m_edit->setToolTip(cText::Tr("Öffnet den gewählten Eintrag (Eingabetaste)"));
    m_change->setToolTip(
        cText::Tr("Ändert Kategorie, Konto, Beschreibung oder Art aller ausgewählten Einträge (Strg+M)"));
    m_delete->setToolTip(cText::Tr("Löscht die gewählten Einträge (Entf)"));
    auto* row = new cFlowLayout;
    row->addWidget(m_edit);
    row->addWidget(m_delete);
    row->addWidget(m_change);
    row->addWidget(m_duplicate);
    row->AddStretch();
    row->addWidget(m_clear);
    row->addWidget(m_close);
    for (QPushButton* button : {m_edit, m_delete, m_change, m_duplicate, m_clear, m_close}) {
        button->setAutoDefault(false); // Enter belongs to the fields and to the list
    }
    return row;
}

void frmSuche::Connect()
{
    connect(m_fields, &cSearchFields::Typed, this, [this] { m_model.SearchSoon(m_fields->Read()); });
    connect(m_fields, &cSearchFields::Chosen, this, &frmSuche::Search);
    connect(m_fields, &cSearchFields::Left, this, &frmSuche::GoToList);
    connect(&m_model, &cSearchModel::Found, this, &frmSuche::ShowFound);
    connect(m_tree, &cEntryTree::SelectionKeysChanged, this, &frmSuche::ShowButtons);
    connect(m_tree, &cEntryTree::TagClicked, m_fields, &cSearchFields::ShowText);
    connect(m_tree, &QTreeView::doubleClicked, this, &frmSuche::Edit);
    auto* drop = new cReceiptDrop(*m_tree, m_model.Entries());
    connect(drop, &cReceiptDrop::ReceiptsDropped, this, &frmSuche::ReceiptsDropped);
    connect(m_edit, &QPushButton::clicked, this, &frmSuche::Edit);
    connect(m_delete, &QPushButton::clicked, this, &frmSuche::Delete);
    connect(m_clear, &QPushButton::clicked, m_fields, &cSearchFields::Clear);
    connect(m_close, &QPushButton::clicked, this, &QDialog::close);
    connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_B, this), &QShortcut::activated, this, [this] {
        if (const int entry = m_model.Entries().KeyAt(m_tree->currentIndex()).ID; entry > 0) {
            Q_EMIT ReceiptsRequested(entry);
        }
    });
    // What was deleted here is taken back here as well; the keys of the main window do not reach this one.
    connect(new QShortcut(Qt::CTRL | Qt::Key_Z, this), &QShortcut::activated, this, &frmSuche::UndoRequested);
    connect(new QShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_Z, this), &QShortcut::activated, this,
            &frmSuche::RedoRequested);
    connect(m_tree, &cEntryTree::CellWritten, this, &frmSuche::CellWritten);
    connect(m_change, &QPushButton::clicked, this, [this] { Q_EMIT ChangeRequested(m_tree->SelectedKeys()); });
}

// The menu of the list, as the main window's list has one.
void frmSuche::BuildMenu()
{
    m_tree->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* duplicate = new QMenu(m_duplicate->text(), m_duplicate);
    AddAction(*m_tree, m_edit->text(), {Qt::Key_Return, Qt::Key_Enter}, [this] { Edit(); });
    AddAction(*m_tree, cText::Tr("Zeilen k&opieren"), {QKeySequence::Copy}, [this] { m_tree->Copy(); });
    m_writing = {
        AddAction(*m_tree, m_delete->text(), {Qt::Key_Delete}, [this] { Delete(); }),
        AddAction(*m_tree, m_change->text(), {Qt::CTRL | Qt::Key_M},
                  [this] { Q_EMIT ChangeRequested(m_tree->SelectedKeys()); }),
        AddAction(*duplicate, cText::Tr("Für &heute"), {Qt::CTRL | Qt::Key_D},
                  [this] { Q_EMIT DuplicateRequested(m_tree->SelectedKeys()); }),
        AddAction(*duplicate, cText::Tr("Für den nächsten &Monat"), {Qt::CTRL | Qt::SHIFT | Qt::Key_D},
                  [this] { Q_EMIT NextMonthRequested(m_tree->SelectedKeys()); }),
        duplicate->menuAction(),
    };
    m_duplicate->setMenu(duplicate);
    m_tree->addAction(duplicate->menuAction());
}

QAction* frmSuche::AddAction(QWidget& menu, const QString& text, const QList<QKeySequence>& keys,
                             const std::function<void()>& action)
{
    auto* made = new QAction(text, &menu);
    made->setShortcuts(keys);
    made->setShortcutContext(Qt::WidgetShortcut);
    connect(made, &QAction::triggered, this, [this, action] {
        if (!m_tree->SelectedKeys().isEmpty()) {
            action();
        }
    });
    menu.addAction(made);
    return made;
}

void frmSuche::Search()
{
    m_model.Search(m_fields->Read());
}

void frmSuche::ShowFound()
{
    const QString hint = m_model.Hint();
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
    m_tree->SetEmptyText(m_model.EmptyTitle(), m_model.EmptyHint());
    m_sums->ShowSums(m_model.SumTexts());
}

void frmSuche::ShowButtons()
{
    const bool hasAny = !m_tree->SelectedKeys().isEmpty();
    const bool canWrite = hasAny && !m_model.IsReadOnly();
    m_edit->setEnabled(hasAny);
    for (QPushButton* button : {m_delete, m_change, m_duplicate}) {
        button->setEnabled(canWrite);
    }
    for (QAction* action : std::as_const(m_writing)) {
        action->setEnabled(canWrite);
    }
}

void frmSuche::GoToList()
{
    Search();
    if (m_tree->SelectedKeys().isEmpty()) {
        m_tree->setCurrentIndex(m_model.Entries().index(0, 0)); // Enter and Del have something to act on
    }
    m_tree->setFocus();
}

void frmSuche::Edit()
{
    const cEntryListModel::cKey key = m_model.Entries().KeyAt(m_tree->currentIndex());
    if (key.ID != 0) {
        Q_EMIT EditRequested(key);
    }
}

void frmSuche::Delete()
{
    const QList<cEntryListModel::cKey> keys = m_tree->SelectedKeys();
    if (!keys.isEmpty()) {
        Q_EMIT DeleteRequested(keys);
    }
}

void frmSuche::Present()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
    m_fields->StartTyping();
}

void frmSuche::Refresh()
{
    if (isVisible()) {
        m_fields->Offer();
        m_model.Refresh();
    }
}

void frmSuche::ResetLayout()
{
    m_tree->SetLayoutText({});
    m_tree->sortByColumn(cEntryListModel::Date, Qt::DescendingOrder); // what is looked for is mostly not long ago
}

void frmSuche::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!event->spontaneous()) {
        m_fields->Offer();
        // The window stands there before a large book is read.
        QTimer::singleShot(0, this, [this] { m_model.Open(); });
    }
}

void frmSuche::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (!event->spontaneous()) {
        m_model.SaveLayout(m_tree->LayoutText());
        m_model.Close();
    }
}
