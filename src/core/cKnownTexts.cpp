#include "core/cKnownTexts.h"

#include "base/cText.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <algorithm>
#include <cstring>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

// Must stand outside of all namespaces.
static void LoadResource()
{
    Q_INIT_RESOURCE(texts);
}

namespace {

constexpr qsizetype longestMessage = 4000; // what is said beyond that is a list of the user's own
constexpr qsizetype longestName = 300;     // that a message may begin with
constexpr int deepestValue = 3;
constexpr int systemErrors = 134; // numbers that systems have words for

// What SQLite says of faults that are told in its words.
const QStringList& EngineTexts()
{
    static const QStringList texts{
        u"no such table: {0}"_s,
        u"no such column: {0}"_s,
        u"UNIQUE constraint failed: {0}"_s,
        u"NOT NULL constraint failed: {0}"_s,
        u"CHECK constraint failed: {0}"_s,
        u"near \"{0}\": syntax error"_s,
        u"constraint failed"_s,
        u"database is locked"_s,
        u"database table is locked"_s,
        u"database schema has changed"_s,
        u"database disk image is malformed"_s,
        u"malformed database schema"_s,
        u"disk I/O error"_s,
        u"file is not a database"_s,
        u"unable to open database file"_s,
        u"attempt to write a readonly database"_s,
        u"database or disk is full"_s,
        u"out of memory"_s,
        u"datatype mismatch"_s,
        u"string or blob too big"_s,
        u"bad parameter or other API misuse"_s,
        u"column index out of range"_s,
        u"cannot start a transaction within a transaction"_s,
        u"cannot commit - no transaction is active"_s,
    };
    return texts;
}

QStringList SystemTexts()
{
    QStringList texts = EngineTexts();
    for (int error = 1; error < systemErrors; ++error) {
        texts.append(QString::fromLocal8Bit(std::strerror(error)));
    }
    return texts;
}

// A title or the name of a column may also be what somebody calls an account; a sentence hardly ever.
bool IsSentence(const QString& text)
{
    static const QRegularExpression place(u"\\{\\d+\\}|%n"_s);
    static const QRegularExpression word(u"\\p{L}{2,}"_s);
    const QString own = QString(text).remove(place).trimmed();
    int words = 0;
    for (QRegularExpressionMatchIterator i = word.globalMatch(own); i.hasNext(); i.next()) {
        ++words;
    }
    const QChar last = own.isEmpty() ? QChar() : own.back();
    return words > 2 || (words == 2 && (last == u'.' || last == u':' || last == u'!' || last == u'?'));
}

QStringList ProgramTexts()
{
    LoadResource();
    QStringList texts;
    QFile file(u":/core/texts.ts"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return texts;
    }
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"source") {
            continue;
        }
        const QString german = xml.readElementText();
        texts.append(german);
        texts.append(cText::Tr(german.toUtf8().constData())); // the same where German is spoken
    }
    return texts;
}

bool IsWordAt(QStringView text, qsizetype at)
{
    return at >= 0 && at < text.size() && text.at(at).isLetterOrNumber();
}

// One sign for however much there is to hide.
void Hide(QString& text)
{
    while (text.endsWith(cKnownTexts::Hidden + u' ')) {
        text.chop(1);
    }
    if (!text.endsWith(cKnownTexts::Hidden)) {
        text += cKnownTexts::Hidden;
    }
}

// Where the piece stands. The last one ends its message, so a full stop within a number is not taken for it.
qsizetype Find(QStringView text, const QString& piece, qsizetype from, bool isLast)
{
    const qsizetype first = text.indexOf(piece, from);
    for (qsizetype at = first; isLast && at >= 0; at = text.indexOf(piece, at + 1)) {
        const qsizetype end = at + piece.size();
        if (end == text.size() || text.at(end) == u' ') {
            return at;
        }
    }
    return first;
}

qsizetype Letters(const QStringList& pieces)
{
    return std::accumulate(pieces.begin(), pieces.end(), qsizetype(0),
                           [](qsizetype sum, const QString& piece) { return sum + piece.size(); });
}

} // namespace

cKnownTexts cKnownTexts::OfProgram()
{
    const QStringList titles = ProgramTexts();
    QStringList sentences = titles;
    sentences.removeIf([](const QString& text) { return !IsSentence(text); });
    return cKnownTexts(sentences + SystemTexts(), titles);
}

cKnownTexts::cKnownTexts(const QStringList& sentences, const QStringList& titles)
    : m_titles(titles.begin(), titles.end())
{
    static const QRegularExpression place(u"\\{\\d+\\}|%n"_s);
    for (const QString& sentence : QSet<QString>(sentences.begin(), sentences.end())) {
        const cPieces pieces = sentence.simplified().split(place);
        m_sentences[pieces.constFirst().isEmpty() ? QChar() : pieces.constFirst().front()].append(pieces);
    }
    for (QList<cPieces>& list : m_sentences) {
        std::sort(list.begin(), list.end(), [](const cPieces& a, const cPieces& b) { return Letters(b) < Letters(a); });
    }
}

QString cKnownTexts::WithoutData(const QString& message) const
{
    const QString text = message.left(longestMessage).simplified();
    return Reduced(text, 0).simplified();
}

// Wherever a word begins, a sentence may begin.
QString cKnownTexts::Reduced(QStringView text, int depth) const
{
    QString result;
    qsizetype at = 0;
    while (at < text.size()) {
        if (const std::optional<cMatch> match = MatchAt(text, at, depth)) {
            result += match->Text;
            at = match->End;
        } else if (text.at(at) == u' ') {
            result += u' ';
            ++at;
        } else {
            Hide(result);
            const qsizetype blank = text.indexOf(u' ', at);
            at = blank < 0 ? text.size() : blank;
        }
    }
    return result;
}

std::optional<cKnownTexts::cMatch> cKnownTexts::MatchAt(QStringView text, qsizetype start, int depth) const
{
    if (start > 0 && IsWordAt(text, start) && IsWordAt(text, start - 1)) {
        return std::nullopt;
    }
    for (const cPieces& pieces : m_sentences.value(text.at(start))) {
        if (std::optional<cMatch> match = Match(pieces, text, start, depth)) {
            return match;
        }
    }
    for (const cPieces& pieces : m_sentences.value(QChar())) {
        if (text.sliced(start).left(longestName).contains(pieces.at(1))) {
            if (std::optional<cMatch> match = Match(pieces, text, start, depth)) {
                return match;
            }
        }
    }
    return std::nullopt;
}

// What is filled in at the end may be sentences of its own, so that goes back to the caller.
std::optional<cKnownTexts::cMatch> cKnownTexts::Match(const cPieces& pieces, QStringView text, qsizetype start,
                                                      int depth) const
{
    const QString& first = pieces.constFirst();
    if (!text.sliced(start).startsWith(first)) {
        return std::nullopt;
    }
    cMatch match{first, start + first.size()};
    QList<QStringView> values;
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        const QString& piece = pieces.at(i);
        const qsizetype found = piece.isEmpty() ? match.End : Find(text, piece, match.End, i + 1 == pieces.size());
        if (found < 0) {
            return std::nullopt;
        }
        values.append(text.sliced(match.End, found - match.End));
        match.End = found + piece.size();
    }
    const QString& last = pieces.constLast();
    if (match.End == start || (!last.isEmpty() && IsWordAt(last, last.size() - 1) && IsWordAt(text, match.End))) {
        return std::nullopt;
    }
    for (qsizetype i = 0; i < values.size(); ++i) {
        match.Text += Value(values.at(i), depth) + pieces.at(i + 1);
    }
    return match;
}

QString cKnownTexts::Value(QStringView value, int depth) const
{
    if (value.isEmpty()) {
        return {};
    }
    return depth < deepestValue && value.contains(u' ') ? Reduced(value, depth + 1) : Hidden;
}
