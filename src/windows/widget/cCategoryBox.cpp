#include "windows/widget/cCategoryBox.h"

#include "base/cText.h"
#include "views/entry/cEntrySuggestions.h"
#include "windows/widget/cPickList.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QWheelEvent>

namespace {

QList<cPickRow> Rows(cEntrySuggestions& suggestions, const QString& typed, const QString& type)
{
    const QStringList paths = suggestions.Categories(typed, type);
    const QStringList recent = suggestions.RecentCategories();
    QList<cPickRow> rows;
    for (const QString& path : paths) {
        rows.append({path, recent.contains(path) ? cText::Tr("zuletzt") : QString()});
    }
    if (!typed.trimmed().isEmpty() && !suggestions.IsCategory(typed)) {
        rows.append({cText::Tr("'{0}' neu anlegen…", {typed.simplified()}), {}, true});
    }
    return rows;
}

} // namespace

cCategoryBox::cCategoryBox(cEntrySuggestions& suggestions, QWidget* parent, eNew whoAsks)
    : QComboBox(parent),
      m_suggestions(suggestions),
      m_whoAsks(whoAsks)
{
    setEditable(true);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    lineEdit()->setAccessibleName(cText::Tr("Kategorie"));
    m_list = new cPickList(*lineEdit(), *this, cPickList::eChosen::FirstRow,
                           [this](const QString& typed) { return Rows(m_suggestions, typed, m_type); });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_path.clear(); });
    connect(m_list, &cPickList::Picked, this, &cCategoryBox::Take);
    connect(m_list, &cPickList::Offered, this, &cCategoryBox::WantNew);
}

void cCategoryBox::SetPath(const QString& path, const QString& typed)
{
    m_path = m_told = path;
    setEditText(path.isEmpty() ? typed : path);
    ShowBeginning();
}

// A long path is seen from its beginning while nobody types in it. A text that names no category yet will be typed on.
void cCategoryBox::ShowBeginning()
{
    if (!hasFocus() && !m_path.isEmpty()) {
        lineEdit()->setCursorPosition(0);
    }
}

QString cCategoryBox::Path() const
{
    const QString typed = currentText().trimmed();
    return m_path.isEmpty() && !typed.isEmpty() ? m_suggestions.CategoryMeant(typed, m_type) : m_path;
}

QString cCategoryBox::UnknownText() const
{
    return Path().isEmpty() ? currentText().trimmed() : QString();
}

void cCategoryBox::Settle()
{
    const QString path = Path();
    if (path.isEmpty() && !m_told.isEmpty()) {
        m_told.clear(); // what stands there stays
        Q_EMIT PathPicked({});
    } else if (path != m_path) {
        Take(path);
    }
}

void cCategoryBox::WantNew()
{
    if (m_whoAsks == eNew::IsTold) {
        Q_EMIT NewWanted(currentText().trimmed());
        return;
    }
    (void)AskNew();
}

bool cCategoryBox::AskNew()
{
    m_isAsking = true;
    const QString path = m_suggestions.OfferNew(currentText(), m_type);
    m_isAsking = false;
    if (!path.isEmpty()) {
        Take(path);
    }
    return !path.isEmpty();
}

void cCategoryBox::showPopup()
{
    m_list->Open({});
}

void cCategoryBox::Take(const QString& path)
{
    SetPath(path);
    lineEdit()->setModified(true);
    Q_EMIT PathPicked(path);
}

void cCategoryBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (!m_isAsking && event->reason() != Qt::PopupFocusReason) { // behind a menu the input goes on
        Settle();
        ShowBeginning();
    }
}

void cCategoryBox::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // the box has no rows of its own to turn through
}
