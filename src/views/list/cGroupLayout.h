#pragma once

#include <QString>
#include <QStringList>

// Which groups of a list are closed, as it is stored: the stored word of the grouping, "!", and the names of the closed
// groups, percent-encoded and joined by ",". Groups that come later are open, and so are all of another grouping.
struct cGroupLayout
{
    QString Grouping;
    QStringList Closed;

    bool operator==(const cGroupLayout&) const = default;

    [[nodiscard]] QString ToText() const;
    [[nodiscard]] static cGroupLayout FromText(const QString& text); // empty for a text that is none
};
