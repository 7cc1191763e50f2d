#include "import/cell/modCell.h"

#include "import/read/modWildcard.h"

#include <algorithm>

namespace {

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
        if (MayMatch(upperName, pattern) && modWildcard::Matches(upperName, pattern.toString().toUpper())) {
            return true;
        }
    }
    return false;
}
