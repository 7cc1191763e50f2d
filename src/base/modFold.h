#pragma once

#include <QString>
#include <QStringList>

#include <vector>

// Comparing texts as a person does who types quickly: without regard to case, accents and umlauts.
namespace modFold {

// The text in both foldings, "Müller" as "muller" and as "mueller".
struct cFolded
{
    QString Plain;
    QString Spelled;
    bool operator==(const cFolded&) const = default;
};

[[nodiscard]] cFolded Fold(const QString& text);

// The words of a search text, folded.
[[nodiscard]] QList<cFolded> Words(const QString& search);

// True when every word is found in the text; without words it is always true.
[[nodiscard]] bool HoldsAll(const cFolded& text, const QList<cFolded>& words);

// True when whatever holds all of `words` holds all of `before` too, as when somebody typed on.
[[nodiscard]] bool IsNarrower(const QList<cFolded>& words, const QList<cFolded>& before);

// Many texts, folded one behind the other, so that a word is looked for in all of them in one go.
class cTexts
{
public:
    // Takes the text in and returns its number: 0, 1, 2, ...
    int Add(const QString& text);

    // Whether each text holds the word, by its number. A word holds no line break.
    [[nodiscard]] std::vector<bool> Find(const cFolded& word) const;

private:
    // A chain of texts, each closed by a line break.
    struct cChain
    {
        QString Text;
        std::vector<qsizetype> Ends;
        std::vector<int> Numbers;
    };

    static void Close(cChain& chain, int number);

    cChain m_plain;   // texts that are the same in both foldings
    cChain m_umlauts; // the others, plainly folded
    cChain m_spelled; // the same texts in their other folding
    int m_count = 0;
};

} // namespace modFold
