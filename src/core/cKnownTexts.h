#pragma once

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QStringView>

#include <optional>

// The sentences that the program can say, by which its own words in a message are told from what was filled in. A log
// that strangers may read takes the former only: what is not known to be the program's own never gets into it, whatever
// it looks like.
class cKnownTexts
{
public:
    // What stands for everything that is left out.
    static inline const QString Hidden = QStringLiteral("…");

    // All sentences of the program in German and in the language of the moment, with the words of the system and the
    // database for what goes wrong.
    [[nodiscard]] static cKnownTexts OfProgram();

    // These sentences, with "{0}", "{1}", ... or "%n" where something is filled in, and these titles.
    explicit cKnownTexts(const QStringList& sentences, const QStringList& titles = {});

    // The message in one line, with only what the program says by itself.
    [[nodiscard]] QString WithoutData(const QString& message) const;

    // Whether the program calls a window or an action so.
    [[nodiscard]] bool IsTitle(const QString& text) const { return m_titles.contains(text); }

private:
    using cPieces = QStringList; // what stands before, between and after the places that are filled

    struct cMatch
    {
        QString Text;
        qsizetype End = 0;
    };

    [[nodiscard]] QString Reduced(QStringView text, int depth) const;
    [[nodiscard]] std::optional<cMatch> MatchAt(QStringView text, qsizetype start, int depth) const;
    [[nodiscard]] std::optional<cMatch> Match(const cPieces& pieces, QStringView text, qsizetype start,
                                              int depth) const;
    [[nodiscard]] QString Value(QStringView value, int depth) const;

    QHash<QChar, QList<cPieces>> m_sentences; // by their first letter, the longest first; none: begins with a place
    QSet<QString> m_titles;
};
