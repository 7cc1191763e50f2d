#include "import/propose/modPayeeList.h"

#include "model/modWord.h"

#include <QFile>
#include <QHash>
#include <QStringList>

#include <algorithm>
#include <bitset>
#include <cstddef>

using namespace Qt::Literals::StringLiterals;

// Must stand outside of all namespaces.
static void LoadResource()
{
    Q_INIT_RESOURCE(payees);
}

namespace {

using modPayeeList::cHit;
using modTextWords::cWord;

// Letters by which the words with an open end are found.
constexpr qsizetype keyLength = 3;

// One word of the list, which may be several words of a text: "dm drogerie*"
struct cPhrase
{
    QString Shown;
    QStringList Words; // folded
    bool IsOpenStart = false;
    bool IsOpenEnd = false;
    bool IsSure = true;
    bool IsPurpose = false;
    bool IsIncome = false;
    QString Category;
    QString Interval;

    [[nodiscard]] bool IsAt(const QList<cWord>& words, qsizetype at) const
    {
        if (at + Words.size() > words.size()) {
            return false;
        }
        for (qsizetype i = 0; i < Words.size(); ++i) {
            const QString& word = words.at(at + i).Folded;
            const bool isFirst = i == 0 && IsOpenStart;
            const bool isLast = i + 1 == Words.size() && IsOpenEnd;
            const QString& wanted = Words.at(i);
            if (isFirst ? !word.endsWith(wanted) : isLast ? !word.startsWith(wanted) : word != wanted) {
                return false;
            }
        }
        return true;
    }
};

cPhrase PhraseOf(QString text)
{
    cPhrase phrase;
    phrase.IsSure = !text.endsWith(u'?');
    phrase.IsPurpose = text.endsWith(u'!');
    text.chop(!phrase.IsSure || phrase.IsPurpose ? 1 : 0);
    phrase.IsOpenStart = text.startsWith(u'*');
    phrase.IsOpenEnd = text.endsWith(u'*');
    phrase.Shown = text.remove(u'*');
    const QList<cWord> words = modTextWords::Of(text);
    for (const cWord& word : words) {
        phrase.Words.append(QString(word.Folded.constData(), word.Folded.size())); // outlives the text
    }
    return phrase;
}

class cBook
{
public:
    cBook()
    {
        LoadResource();
        QFile file(u":/import/empfaenger.tsv"_s);
        if (!file.open(QIODevice::ReadOnly)) {
            return; // then nothing is known, which is no reason to fail
        }
        const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
        for (const QString& line : lines) {
            if (const QStringList fields = line.split(u'\t'); !line.startsWith(u'#') && fields.size() == 4) {
                Add(fields);
            }
        }
    }

    [[nodiscard]] QList<cHit> Find(const QList<cWord>& words, qint64 cents) const
    {
        QList<cHit> hits;
        for (qsizetype at = 0; at < words.size(); ++at) {
            const QStringView word = words.at(at).Folded;
            if (word.size() < keyLength) {
                Note(m_whole, word, words, at, cents, hits);
                continue;
            }
            if (m_heads.test(PlaceOf(word.first(keyLength)))) {
                Note(m_whole, word, words, at, cents, hits);
                Note(m_starts, word.first(keyLength), words, at, cents, hits);
            }
            if (m_tails.test(PlaceOf(word.last(keyLength)))) {
                Note(m_ends, word.last(keyLength), words, at, cents, hits);
            }
        }
        return hits;
    }

    [[nodiscard]] const QList<cPhrase>& Phrases() const { return m_phrases; }

private:
    void Add(const QStringList& fields)
    {
        const QStringList texts = fields.at(3).split(u", "_s);
        for (const QString& text : texts) {
            cPhrase phrase = PhraseOf(text.trimmed());
            phrase.Category = fields.at(0);
            phrase.Interval = fields.at(1) == u"-" ? modWord::Einmalig : fields.at(1);
            phrase.IsIncome = fields.at(2) == u"+";
            if (!phrase.Words.isEmpty()) {
                Enter(phrase);
            }
        }
    }

    // Three letters as a number, so that most words of a text are ruled out without looking for them.
    static std::size_t PlaceOf(QStringView letters)
    {
        constexpr unsigned mask = 31;
        return ((letters[0].unicode() & mask) << 10U) | ((letters[1].unicode() & mask) << 5U)
            | (letters[2].unicode() & mask);
    }

    // By the word that it begins with. The views stand on texts that the lookup keeps.
    void Enter(const cPhrase& phrase)
    {
        const qsizetype place = m_phrases.size();
        m_phrases.append(phrase);
        const QString& first = phrase.Words.constFirst();
        const bool isStart = phrase.IsOpenEnd && phrase.Words.size() == 1;
        if (first.size() >= keyLength) {
            m_heads.set(PlaceOf(QStringView(first).first(keyLength)));
            m_tails.set(PlaceOf(QStringView(first).last(keyLength)));
        }
        if (phrase.IsOpenStart) {
            m_ends[Kept(first.last(qMin(keyLength, first.size())))].append(place);
        } else if (isStart) {
            m_starts[Kept(first.first(qMin(keyLength, first.size())))].append(place);
        } else {
            m_whole[Kept(first)].append(place);
        }
    }

    QStringView Kept(const QString& text)
    {
        m_texts.append(text);
        return m_texts.constLast();
    }

    using cLookup = QHash<QStringView, QList<qsizetype>>;

    void Note(const cLookup& lookup, QStringView key, const QList<cWord>& words, qsizetype at, qint64 cents,
              QList<cHit>& hits) const
    {
        const auto places = lookup.constFind(key);
        if (places == lookup.constEnd()) {
            return;
        }
        for (const qsizetype place : *places) {
            const cPhrase& phrase = m_phrases.at(place);
            if (cents != 0 && phrase.IsIncome == (cents > 0) && phrase.IsAt(words, at)) {
                hits.append({phrase.Category, phrase.Interval, phrase.Shown, at, phrase.Words.size(), phrase.IsSure,
                             phrase.IsPurpose});
            }
        }
    }

    QList<cPhrase> m_phrases;
    QStringList m_texts;        // a view stays good when the list grows: the texts themselves do not move
    std::bitset<32768> m_heads; // of whole words and of those with an open end
    std::bitset<32768> m_tails;
    cLookup m_whole;
    cLookup m_starts;
    cLookup m_ends;
};

const cBook& Book()
{
    static const cBook book;
    return book;
}

} // namespace

QList<modPayeeList::cHit> modPayeeList::Find(const QList<modTextWords::cWord>& words, qint64 cents)
{
    return Book().Find(words, cents);
}

modPayeeList::cContents modPayeeList::Contents()
{
    cContents contents;
    for (const cPhrase& phrase : Book().Phrases()) {
        contents.Categories.append(phrase.Category);
        contents.Intervals.append(phrase.Interval);
    }
    contents.Categories.removeDuplicates();
    contents.Intervals.removeDuplicates();
    contents.Words = Book().Phrases().size();
    return contents;
}
