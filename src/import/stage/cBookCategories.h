#pragma once

#include "model/cTemplateItem.h"

#include <QHash>
#include <QString>

// The categories of this book by the names that another one gives them.
class cBookCategories
{
public:
    explicit cBookCategories(const cTemplateItemList& items);

    // The category that is meant; empty when the book has none. Letter case and signs do not count, because formats
    // replace those that mean something to them.
    [[nodiscard]] QString Find(const QString& path) const;

private:
    QHash<QString, QString> m_paths;
};
