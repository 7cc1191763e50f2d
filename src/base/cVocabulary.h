#pragma once

#include <QString>
#include <QStringList>

#include <vector>

// A closed set of words that are stored in German and shown in the user's language, such as the intervals.
class cVocabulary
{
public:
    // The words are marked for translation where they are listed (QT_TRANSLATE_NOOP("cText", ...)).
    explicit cVocabulary(std::vector<const char*> words) : m_words(std::move(words)) {}

    // The stored words in their order.
    [[nodiscard]] QStringList Stored() const;

    // The words as they are shown, in the same order.
    [[nodiscard]] QStringList Shown() const;

    [[nodiscard]] bool Contains(const QString& stored) const;

    // The stored word of a shown one; a text that is not shown by any word comes back unchanged.
    [[nodiscard]] QString ToStored(const QString& shown) const;

    // The shown form of a stored word; an unknown word comes back unchanged.
    [[nodiscard]] QString ToShown(const QString& stored) const;

private:
    std::vector<const char*> m_words;
};
