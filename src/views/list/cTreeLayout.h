#pragma once

#include <QString>
#include <QStringList>

// Columns and open branches of a tree as they are stored: the text of the columns, "!", and the names of the branches,
// percent-encoded and joined by ",".
struct cTreeLayout
{
    QString Columns; // see cListLayout
    QStringList Open;

    bool operator==(const cTreeLayout&) const = default;

    [[nodiscard]] QString ToText() const;
    [[nodiscard]] static cTreeLayout FromText(const QString& text); // empty parts for a text that is none
};
