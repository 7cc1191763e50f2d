#pragma once

#include <QList>
#include <QString>

#include <optional>
#include <vector>

// The column layout of a list as it is stored: columns in their visible order with width and visibility, then the
// sorting. Text form: "column,width,shown" joined by "|", then "|sort,column,descending" and "|letter,width". The last
// says how wide an average letter was, so that the columns fit in another type size as well; older texts do not have
// it.
struct cListLayout
{
    struct cColumn
    {
        int Column = 0;
        int Width = 0; // pixels; 0: as wide as by default
        bool IsShown = true;
        bool operator==(const cColumn&) const = default;
    };

    std::vector<cColumn> Columns;
    int SortColumn = 0;
    bool IsDescending = false;
    int Letter = 0; // pixels; 0: not known

    bool operator==(const cListLayout&) const = default;

    [[nodiscard]] QString ToText() const;

    // The same columns for letters of this width.
    [[nodiscard]] cListLayout ForLetter(int letter) const;

    // Empty for a text that is not such a layout of `columnCount` columns with one of them shown. Columns that it does
    // not know yet follow at the end, `hidden` ones of them hidden.
    [[nodiscard]] static std::optional<cListLayout> FromText(const QString& text, int columnCount,
                                                             const QList<int>& hidden = {});
};
