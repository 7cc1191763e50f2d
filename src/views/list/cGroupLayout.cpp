#include "views/list/cGroupLayout.h"

#include "views/list/cTreeLayout.h"

// The form is that of a tree's open branches, with the closed ones in their place.
QString cGroupLayout::ToText() const
{
    return cTreeLayout{Grouping, Closed}.ToText();
}

cGroupLayout cGroupLayout::FromText(const QString& text)
{
    const cTreeLayout layout = cTreeLayout::FromText(text);
    return {layout.Columns, layout.Open};
}
