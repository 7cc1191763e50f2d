#include "import/read/modWildcard.h"

#include "base/modChar.h"

#include <algorithm>

namespace {

// A class of characters as it stands between the brackets: letters and ranges such as "A-Z".
bool IsInClass(QChar c, QStringView list)
{
    const bool isTurned = list.size() > 1 && list.startsWith(u'!');
    bool isIn = false;
    for (qsizetype i = isTurned ? 1 : 0; i < list.size(); ++i) {
        const bool isRange = i + 2 < list.size() && list[i + 1] == u'-';
        isIn = isIn || (isRange ? c >= list[i] && c <= list[i + 2] : c == list[i]);
        i += isRange ? 2 : 0;
    }
    return isIn != isTurned;
}

// The length of the piece at this place of the pattern when it stands for the character; 0 when it does not.
qsizetype PieceFor(QChar c, QStringView pattern, qsizetype at)
{
    switch (pattern[at].unicode()) {
    case u'?': return 1;
    case u'#': return modChar::IsDigit(c) ? 1 : 0;
    case u'[':
        if (const qsizetype end = pattern.indexOf(u']', at); end > 0) {
            return IsInClass(c, pattern.sliced(at + 1, end - at - 1)) ? end - at + 1 : 0;
        }
        break;
    default: break;
    }
    return pattern[at] == c ? 1 : 0;
}

} // namespace

bool modWildcard::Matches(QStringView text, QStringView pattern)
{
    qsizetype at = 0;
    qsizetype piece = 0;
    qsizetype run = -1; // behind the last "*" passed, and where that was tried to end
    qsizetype runEnd = 0;
    while (at < text.size()) {
        if (piece < pattern.size() && pattern[piece] == u'*') {
            run = ++piece;
            runEnd = at;
        } else if (const qsizetype size = piece < pattern.size() ? PieceFor(text[at], pattern, piece) : 0; size > 0) {
            piece += size;
            ++at;
        } else if (run >= 0) {
            piece = run;
            at = ++runEnd;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin() + piece, pattern.end(), [](QChar c) { return c == u'*'; });
}

bool modWildcard::IsPattern(QStringView text)
{
    return text.contains(u'*') || text.contains(u'?') || text.contains(u'#') || text.contains(u'[');
}
