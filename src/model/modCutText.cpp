#include "model/modCutText.h"

#include "model/cImportEntry.h"

#include <QList>
#include <QStringView>

#include <algorithm>
#include <array>

namespace {

constexpr qsizetype pieceSize = 27;
constexpr qsizetype keywordSize = 5; // "SVWZ+", "ABWA+"

// Words that people write behind a capitalised one. A cut whose rest looks like one of them may be a word's end.
constexpr std::array<QStringView, 78> ordinaryWords = {
    u"ab",    u"abzgl", u"als",   u"am",   u"an",    u"auf",   u"aus",  u"bar",   u"bei",  u"beim",  u"bis",   u"bzw",
    u"co",    u"da",    u"dank",  u"das",  u"de",    u"dem",   u"den",  u"der",   u"des",  u"die",   u"dt",    u"durch",
    u"e",     u"eg",    u"ein",   u"eine", u"einer", u"fuer",  u"für",  u"gegen", u"gem",  u"ggf",   u"haben", u"hat",
    u"ihr",   u"ihre",  u"im",    u"in",   u"inkl",  u"ist",   u"je",   u"lt",    u"laut", u"mbh",   u"mit",   u"nach",
    u"nicht", u"nr",    u"ob",    u"oder", u"ohne",  u"per",   u"plus", u"pro",   u"sagt", u"siehe", u"sowie", u"statt",
    u"to",    u"u",     u"ueber", u"um",   u"und",   u"unter", u"v",    u"van",   u"vom",  u"von",   u"vor",   u"wegen",
    u"wie",   u"wir",   u"zu",    u"zum",  u"zur",   u"zzgl",
};

bool IsOrdinaryWord(QStringView word)
{
    return std::find(ordinaryWords.begin(), ordinaryWords.end(), word) != ordinaryWords.end();
}

// The letters around the blank at the place.
QStringView WordBefore(QStringView text, qsizetype blank)
{
    qsizetype from = blank;
    while (from > 0 && text[from - 1].isLetter()) {
        --from;
    }
    return text.sliced(from, blank - from);
}

QStringView WordBehind(QStringView text, qsizetype blank)
{
    qsizetype end = blank + 1;
    while (end < text.size() && text[end].isLetter()) {
        ++end;
    }
    return text.sliced(blank + 1, end - blank - 1);
}

bool IsEndOfWord(QStringView text, qsizetype blank)
{
    const QChar c = text[blank + 1];
    const QChar next = blank + 2 < text.size() ? text[blank + 2] : QChar();
    return QStringView(u",;!)").contains(c) || (c == u':' && !next.isDigit()) || (c == u'.' && !next.isSpace());
}

// Nouns and names are capitalised, so a small letter behind the first half of one goes on with it. "REWE sagt" are two
// words; a single capital is none.
bool IsHalfOfName(QStringView word)
{
    const auto capitals = std::count_if(word.begin(), word.end(), [](QChar c) { return c.isUpper(); });
    return capitals > 0 && (capitals < word.size() || word.size() == 1);
}

// How sure it is that a text consists of pieces.
enum class eEvidence { None, One, Several };

bool IsCut(QStringView text, qsizetype blank, eEvidence evidence)
{
    if (blank == 0 || blank + 1 >= text.size() || !text[blank - 1].isLetterOrNumber()) {
        return false;
    }
    if (IsEndOfWord(text, blank)) {
        return true;
    }
    const QStringView before = WordBefore(text, blank);
    const QStringView behind = WordBehind(text, blank);
    if (before.isEmpty() || behind.isEmpty() || !behind.front().isLower() || IsOrdinaryWord(behind)) {
        return false;
    }
    return evidence == eEvidence::Several || IsHalfOfName(before);
}

// A part of a text, as far as blanks stand where pieces would end.
struct cPieces
{
    QList<qsizetype> Blanks; // behind pieces of full size
    bool IsWhole = true;     // no piece is longer

    [[nodiscard]] eEvidence Evidence() const
    {
        return !IsWhole || Blanks.isEmpty() ? eEvidence::None
            : Blanks.size() == 1            ? eEvidence::One
                                            : eEvidence::Several;
    }
};

cPieces Cut(QStringView text, qsizetype firstSize)
{
    cPieces pieces;
    for (qsizetype at = firstSize; at < text.size();) {
        if (text[at] == u' ') {
            pieces.Blanks.append(at);
            at += pieceSize + 1;
        } else if (at > 0 && text[at - 1] == u' ') { // the blank at the end of its piece was taken off
            at += pieceSize;
        } else {
            pieces.IsWhole = false;
            break;
        }
    }
    return pieces;
}

// Adds the blanks of the part that begins at the place.
void Collect(QStringView part, qsizetype place, const cPieces& pieces, QList<qsizetype>& cuts)
{
    const eEvidence evidence = pieces.Evidence();
    for (const qsizetype blank : pieces.Blanks) {
        if (evidence != eEvidence::None && IsCut(part, blank, evidence)) {
            cuts.append(place + blank);
        }
    }
}

QString Without(const QString& text, const QList<qsizetype>& cuts)
{
    QString closed = text;
    for (auto cut = cuts.crbegin(); cut != cuts.crend(); ++cut) {
        closed.remove(*cut, 1);
    }
    return closed;
}

// "EREF+", "BIC+", "MTLG:" at the place.
bool IsKeyword(QStringView text, qsizetype at)
{
    qsizetype end = at;
    while (end < text.size() && end < at + 4 && text[end] >= u'A' && text[end] <= u'Z') {
        ++end;
    }
    const bool isMessage = end < text.size() && text[end] == u':' && text.sliced(at, end - at) == u"MTLG";
    return isMessage || (end - at >= 3 && end < text.size() && text[end] == u'+');
}

// Where a part begins whose first piece is new: at a keyword, or at the originator in brackets.
bool IsNewPiece(QStringView text, qsizetype at)
{
    return at > 0 && text[at - 1] == u' ' && (IsKeyword(text, at) || (text[at] == u'(' && text.endsWith(u')')));
}

qsizetype EndOfPart(QStringView text, qsizetype from)
{
    qsizetype end = from + 1;
    while (end < text.size() && !IsNewPiece(text, end)) {
        ++end;
    }
    return end;
}

// The first part may have lost its keyword. Where both are equally likely nothing is certain.
cPieces CutFirst(QStringView part)
{
    const cPieces bare = Cut(part, pieceSize);
    const cPieces shortened = Cut(part, pieceSize - keywordSize);
    if (IsKeyword(part, 0) || bare.Evidence() > shortened.Evidence()) {
        return bare;
    }
    return shortened.Evidence() > bare.Evidence() ? shortened : cPieces();
}

} // namespace

QString modCutText::Name(const QString& name)
{
    if (name.size() <= pieceSize || name[pieceSize] != u' ') {
        return name;
    }
    QList<qsizetype> cuts;
    Collect(name, 0, Cut(name, pieceSize), cuts);
    return Without(name, cuts);
}

QString modCutText::Purpose(const QString& purpose)
{
    const QStringView text = purpose;
    QList<qsizetype> cuts;
    for (qsizetype from = 0; text.size() - from > pieceSize - keywordSize;) {
        const qsizetype end = EndOfPart(text, from);
        QStringView part = text.sliced(from, end - from);
        while (part.endsWith(u' ')) {
            part.chop(1); // before the next part
        }
        const bool isOriginator = from > 0 && part.startsWith(u'(');
        Collect(part, from,
                from == 0 ? CutFirst(part) : Cut(part, isOriginator ? pieceSize - keywordSize + 1 : pieceSize), cuts);
        from = end;
    }
    return cuts.isEmpty() ? purpose : Without(purpose, cuts);
}

cImportEntry modCutText::WholeWords(const cImportEntry& row)
{
    cImportEntry whole = row;
    whole.ImportBeneficiary = Name(row.ImportBeneficiary);
    whole.ImportPurpose = Purpose(row.ImportPurpose);
    return whole;
}
