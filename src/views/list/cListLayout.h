#pragma once

#include <QString>

#include <optional>
#include <vector>

// The column layout of a list as it is stored: columns in their visible order with width and visibility, then the
// sorting. Text form: "column,width,shown" joined by "|", then "|sort,column,descending".
struct cListLayout
{
    struct cColumn
    {
        int Column = 0;
        int Width = 0; // pixels
        bool IsShown = true;
        bool operator==(const cColumn&) const = default;
    };

    std::vector<cColumn> Columns;
    int SortColumn = 0;
    bool IsDescending = false;

    bool operator==(const cListLayout&) const = default;

    [[nodiscard]] QString ToText() const;

    // Empty for a text that is not such a layout of exactly `columnCount` columns with one of them shown.
    [[nodiscard]] static std::optional<cListLayout> FromText(const QString& text, int columnCount);
};
