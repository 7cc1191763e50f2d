#include "views/list/modTagTyping.h"

#include "model/modTag.h"

#include <QSet>

QList<modTagTyping::cOffer> modTagTyping::Offers(const QStringList& known, const QString& text, int cursor)
{
    const modTag::cPlace typed = modTag::Typed(text, cursor);
    if (typed.Length == 0) {
        return {};
    }
    const QString start = modTag::Key(text.sliced(typed.Start, typed.Length));
    QList<cOffer> offers;
    for (const QString& tag : known) {
        const QString key = modTag::Key(tag);
        if (!key.startsWith(start)) {
            continue;
        }
        const QString line = QString(text).replace(typed.Start, typed.Length, tag);
        const cOffer offer{tag, line, static_cast<int>(typed.Start + tag.size())};
        offers.insert(key == start ? 0 : offers.size(), offer);
    }
    return offers;
}

QStringList modTagTyping::Known(const QStringList& texts)
{
    QStringList known;
    QSet<QString> keys;
    for (const QString& text : texts) {
        const QStringList tags = modTag::Of(text);
        for (const QString& tag : tags) {
            if (const QString key = modTag::Key(tag); !keys.contains(key)) {
                keys.insert(key);
                known.append(tag);
            }
        }
    }
    return known;
}
