#include "import/table/modCell.h"

#include <QList>

#include <algorithm>

namespace {

// A class of characters as it stands between the brackets: letters and ranges such as "A-Z".
bool IsInClass(QChar c, QStringView list)
{
    const bool isTurned = list.startsWith(u'!');
    if (isTurned) {
        list = list.mid(1);
    }
    bool isIn = false;
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (i + 2 < list.size() && list[i + 1] == u'-') {
            isIn = isIn || (c >= list[i] && c <= list[i + 2]);
            i += 2;
        } else {
            isIn = isIn || c == list[i];
        }
    }
    return isIn != isTurned;
}

// The length of the pattern's first piece when it stands for the character; 0 when it does not.
qsizetype PieceFor(QChar c, QStringView pattern)
{
    if (pattern.isEmpty() || pattern.front() == u'*') {
        return 0;
    }
    const QChar piece = pattern.front();
    if (const qsizetype end = pattern.indexOf(u']'); piece == u'[' && end > 0) {
        return IsInClass(c, pattern.mid(1, end - 1)) ? end + 1 : 0;
    }
    const bool isFit = piece == u'?' || (piece == u'#' ? c >= u'0' && c <= u'9' : piece == c);
    return isFit ? 1 : 0;
}

bool Matches(QStringView text, QStringView pattern)
{
    QStringView retryText;
    QStringView retryPattern;
    bool hasStar = false;
    while (!text.isEmpty()) {
        if (pattern.startsWith(u'*')) {
            pattern = pattern.mid(1);
            retryText = text;
            retryPattern = pattern;
            hasStar = true;
        } else if (const qsizetype size = PieceFor(text.front(), pattern); size > 0) {
            text = text.mid(1);
            pattern = pattern.mid(size);
        } else if (hasStar) {
            retryText = retryText.mid(1); // the star takes one character more
            text = retryText;
            pattern = retryPattern;
        } else {
            return false;
        }
    }
    return std::all_of(pattern.begin(), pattern.end(), [](QChar c) { return c == u'*'; });
}

// False where already the first letters differ: most of what is compared is no match.
bool MayMatch(QStringView upperName, QStringView pattern)
{
    return upperName.isEmpty() || pattern.isEmpty() || !pattern.front().isLetter()
        || pattern.front().toUpper() == upperName.front();
}

} // namespace

QString modCell::Clean(QStringView text)
{
    text = text.trimmed();
    if (text.size() >= 2 && text.startsWith(u'"') && text.endsWith(u'"')) {
        text = text.mid(1, text.size() - 2).trimmed();
    }
    QString cleaned;
    cleaned.reserve(text.size());
    for (const QChar c : text) {
        if (c != u'\r' && c != u'\n') {
            cleaned.append(c == u'\t' ? QChar(u' ') : c);
        }
    }
    return cleaned;
}

bool modCell::NeedsCleaning(QStringView trimmed)
{
    return trimmed.startsWith(u'"') || std::any_of(trimmed.begin(), trimmed.end(), [](QChar c) {
               return c < u' ' && (c == u'\t' || c == u'\r' || c == u'\n');
           });
}

bool modCell::MatchesList(QStringView name, QStringView alternatives)
{
    const QString upperName = name.toString().toUpper();
    qsizetype end = -1;
    for (qsizetype start = 0; start <= alternatives.size(); start = end + 1) {
        end = alternatives.indexOf(u'|', start);
        end = end < 0 ? alternatives.size() : end;
        const QStringView pattern = alternatives.mid(start, end - start);
        if (MayMatch(upperName, pattern) && Matches(upperName, pattern.toString().toUpper())) {
            return true;
        }
    }
    return false;
}
