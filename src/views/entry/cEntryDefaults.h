#pragma once

#include "views/entry/cEntryFields.h"

#include <QString>
#include <QStringList>

class cDataAccess;
class cEntrySuggestions;

// What choosing a category or an earlier description fills in.
class cEntryDefaults
{
public:
    explicit cEntryDefaults(cDataAccess& data) : m_data(data) {}

    // The category with its amount, kind and interval; see cEntryEditor::ChooseCategory.
    void TakeCategory(const QString& path, cEntryFields& fields) const;
    void TakePartCategory(qsizetype row, const QString& path, cEntryFields& fields) const;

    // The description with category and account of its latest use; see cEntryEditor::ChooseDescription.
    void TakeDescription(const QString& text, cEntrySuggestions& suggestions, cEntryFields& fields) const;
    void TakePartDescription(qsizetype row, const QString& text, cEntrySuggestions& suggestions,
                             cEntryFields& fields) const;

private:
    void TakeOpen(const QStringList& paths, cEntryFields& fields) const;

    cDataAccess& m_data;
};
