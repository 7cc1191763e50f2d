#include "windows/widget/cCategoryBox.h"

#include "base/cText.h"
#include "views/entry/cEntrySuggestions.h"
#include "windows/widget/cPickList.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QWheelEvent>

namespace {

QList<cPickRow> Rows(cEntrySuggestions& suggestions, const QString& typed)
{
    const QStringList paths = suggestions.Categories(typed);
    const QStringList recent = suggestions.RecentCategories();
    QList<cPickRow> rows;
    for (const QString& path : paths) {
        rows.append({path, recent.contains(path) ? cText::Tr("zuletzt") : QString()});
    }
    return rows;
}

} // namespace

cCategoryBox::cCategoryBox(cEntrySuggestions& suggestions, QWidget* parent)
    : QComboBox(parent),
      m_suggestions(suggestions),
      m_list(nullptr)
{
    setEditable(true);
    setCompleter(nullptr);
    setInsertPolicy(NoInsert);
    lineEdit()->setAccessibleName(cText::Tr("Kategorie"));
    m_list = new cPickList(*lineEdit(), *this, cPickList::eChosen::FirstRow,
                           [this](const QString& typed) { return Rows(m_suggestions, typed); });
    connect(lineEdit(), &QLineEdit::textEdited, this, [this] { m_path.clear(); });
    connect(m_list, &cPickList::Picked, this, &cCategoryBox::Take);
}

void cCategoryBox::SetPath(const QString& path)
{
    m_path = path;
    setEditText(path);
}

QString cCategoryBox::Path() const
{
    const QString typed = currentText().trimmed();
    return m_path.isEmpty() && !typed.isEmpty() ? m_suggestions.CategoryMeant(typed) : m_path;
}

void cCategoryBox::Settle()
{
    const QString path = Path();
    if (path != m_path) {
        Take(path);
    }
}

void cCategoryBox::showPopup()
{
    m_list->Open({});
}

void cCategoryBox::Take(const QString& path)
{
    SetPath(path);
    Q_EMIT PathPicked(path);
}

void cCategoryBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    Settle();
}

void cCategoryBox::wheelEvent(QWheelEvent* event)
{
    event->ignore(); // the box has no rows of its own to turn through
}
