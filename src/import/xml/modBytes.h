#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <algorithm>
#include <initializer_list>

namespace modBytes {

// Appends the pieces in one step. The toolkit's own way costs several times as much for a few bytes, and readers of
// large files do this millions of times.
inline void Put(QByteArray& out, std::initializer_list<QByteArrayView> pieces)
{
    qsizetype size = out.size();
    for (const QByteArrayView piece : pieces) {
        size += piece.size();
    }
    const qsizetype before = out.size();
    out.resize(size);
    char* place = out.data() + before;
    for (const QByteArrayView piece : pieces) {
        place = std::copy(piece.begin(), piece.end(), place);
    }
}

} // namespace modBytes
