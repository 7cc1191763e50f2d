#pragma once

#include "base/modFold.h"

#include <QList>
#include <QString>

// The pages of the manual: what they hold, and what is found in them.
class cManual
{
public:
    // What stands under one heading.
    struct cSection
    {
        QString Page;
        QString Anchor; // of its heading
        int Level = 1;  // 1: the chapter, 2 and 3: below it
        QString Title;
        QString Text;

        [[nodiscard]] QString Place() const { return Page + u'#' + Anchor; }
    };

    struct cHit
    {
        QString Place;
        QString Title;   // with its chapter
        QString Excerpt; // around the first word that was looked for
    };

    // Reads the pages of a folder, in the order in which the first page names them. A folder without them gives an
    // empty manual.
    explicit cManual(const QString& folder);

    [[nodiscard]] const QString& Folder() const { return m_folder; }
    [[nodiscard]] const QList<cSection>& Sections() const { return m_sections; }

    // A page as it stands in its file; empty when there is none of this name.
    [[nodiscard]] QString Html(const QString& page) const;

    // The sections that hold every word, those first whose heading does. Letter case and umlauts do not count.
    [[nodiscard]] QList<cHit> Find(const QString& text) const;

private:
    void ReadPage(const QString& page);
    [[nodiscard]] QStringList PagesInOrder() const;
    [[nodiscard]] QString FullTitle(const cSection& section) const;

    QString m_folder;
    QList<cSection> m_sections;
    QList<modFold::cFolded> m_titles; // folded, beside the sections
    QList<modFold::cFolded> m_texts;
};
