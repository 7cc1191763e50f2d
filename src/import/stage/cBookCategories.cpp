#include "import/stage/cBookCategories.h"

#include "model/modWord.h"

#include <QStringList>

using namespace Qt::Literals::StringLiterals;

namespace {

// Letters and digits of each level.
QString KeyOf(const QString& path)
{
    QStringList levels = path.toCaseFolded().split(u"; "_s, Qt::SkipEmptyParts);
    for (QString& level : levels) {
        level.removeIf([](QChar c) { return !c.isLetterOrNumber(); });
    }
    levels.removeAll(QString());
    return levels.join(u';');
}

} // namespace

cBookCategories::cBookCategories(const cTemplateItemList& items)
{
    m_paths.insert(KeyOf(modWord::Startguthaben), modWord::Startguthaben); // entries have it without a template
    const QStringList paths = modTemplate::WithMains(modTemplate::Paths(items));
    for (const QString& path : paths) {
        m_paths.insert(path, path); // first of all itself
        if (const QString key = KeyOf(path); !key.isEmpty() && !m_paths.contains(key)) {
            m_paths.insert(key, path);
        }
    }
}

QString cBookCategories::Find(const QString& path) const
{
    const QString exact = m_paths.value(path);
    return exact.isEmpty() ? m_paths.value(KeyOf(path)) : exact;
}
