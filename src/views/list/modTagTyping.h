#pragma once

#include <QList>
#include <QString>
#include <QStringList>

// Completing a tag while it is typed.
namespace modTagTyping {

// One tag that may be meant.
struct cOffer
{
    QString Tag;
    QString Line;   // the whole text with the tag in place of what was typed of it
    int Cursor = 0; // in that text, behind the tag
};

// The tags that begin with the one at the cursor, in the order of `known`; the one that is written out already comes
// first. None where no tag is being typed.
[[nodiscard]] QList<cOffer> Offers(const QStringList& known, const QString& text, int cursor);

// The tags of texts, each as it was written first, in their order.
[[nodiscard]] QStringList Known(const QStringList& texts);

} // namespace modTagTyping
