#pragma once

#include "base/modSum.h"
#include "views/entry/cEntryEditor.h"
#include "views/list/cEntryListModel.h"

#include <QString>

#include <optional>

struct cBookTools;

// Category, description and amount as they are typed into a cell of the entry list. What is typed goes through the
// entry editor with its checks and questions; of an occurrence the user is asked how much of the series is meant.
class cCellEdit
{
public:
    enum class eSaved {
        Saved,
        Unchanged, // nothing to store
        Refused    // the user was told why, or has declined
    };

    explicit cCellEdit(const cBookTools& tools);

    [[nodiscard]] static bool IsEditable(int column);
    [[nodiscard]] bool IsReadOnly() const;

    // Whether this entry lets the column be typed: a start balance only its amount.
    [[nodiscard]] bool Takes(const cEntryListModel::cKey& key, int column) const;

    // The text that the field in the cell starts with. Empty, after a message, where nothing can be typed.
    [[nodiscard]] std::optional<QString> Start(const cEntryListModel::cKey& key, int column);

    // Why the text cannot be taken; empty when it can.
    [[nodiscard]] QString Fault(int column, const QString& typed) const;

    // Stores what was typed as one step. A category that is not there yet is offered to be made.
    [[nodiscard]] eSaved Save(const cEntryListModel::cKey& key, int column, const QString& typed);

    // The line that was saved: a series that was changed from here on goes on as another entry.
    [[nodiscard]] const cEntryListModel::cKey& SavedKey() const { return m_saved; }

    [[nodiscard]] cEntrySuggestions& Suggestions() { return *m_suggestions; }
    [[nodiscard]] eDecimal Decimal() const;

private:
    enum class ePart { Nothing, Period, FromHere, Whole };

    [[nodiscard]] std::optional<QString> Text(const cEntryListModel::cKey& key, int column) const;
    [[nodiscard]] ePart AskPart(const cEntryListModel::cKey& key, int column) const;
    [[nodiscard]] bool SavePeriod(const cEntryListModel::cKey& key, const QString& typed) const;
    [[nodiscard]] bool SaveAmount(const cEntryListModel::cKey& key, const QString& typed, ePart part);
    [[nodiscard]] bool FollowCorrection(const cEntryItemFixMod& correction, const QString& typed) const;
    [[nodiscard]] bool Store(const cEntryListModel::cKey& key, int column, const QString& typed, ePart part);
    [[nodiscard]] static int SavedIdOf(int id, const cEntryFields& fields, const cEntryEditor& editor);
    [[nodiscard]] bool Fill(cEntryFields& fields, int column, const QString& typed) const;
    [[nodiscard]] bool FillPart(cEntryFields& fields, int id, int column, const QString& typed) const;

    const cBookTools& m_tools;
    std::optional<cEntrySuggestions>
        m_suggestions; // fresh for each cell, because the last one may have made a category
    cEntryListModel::cKey m_saved;
};
