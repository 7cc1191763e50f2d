#include "base/cVocabulary.h"

#include "base/cText.h"

#include <algorithm>

QStringList cVocabulary::Stored() const
{
    QStringList list;
    for (const char* word : m_words) {
        list.append(QString::fromUtf8(word));
    }
    return list;
}

QStringList cVocabulary::Shown() const
{
    QStringList list;
    for (const char* word : m_words) {
        list.append(cText::Tr(word));
    }
    return list;
}

bool cVocabulary::Contains(const QString& stored) const
{
    return std::any_of(m_words.begin(), m_words.end(),
                       [&](const char* word) { return QString::fromUtf8(word) == stored; });
}

QString cVocabulary::ToStored(const QString& shown) const
{
    const auto found =
        std::find_if(m_words.begin(), m_words.end(), [&](const char* word) { return cText::Tr(word) == shown; });
    return found == m_words.end() ? shown : QString::fromUtf8(*found);
}

QString cVocabulary::ToShown(const QString& stored) const
{
    const auto found = std::find_if(m_words.begin(), m_words.end(),
                                    [&](const char* word) { return QString::fromUtf8(word) == stored; });
    return found == m_words.end() ? stored : cText::Tr(*found);
}
