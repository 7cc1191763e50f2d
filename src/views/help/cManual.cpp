#include "views/help/cManual.h"

#include "views/help/modManual.h"

#include <QDir>
#include <QFile>
#include <QXmlStreamReader>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype excerptLength = 90; // characters
constexpr int wordsBefore = 2;          // the one that was found

// The level of a heading; 0 for every other element.
int LevelOf(QStringView name)
{
    return name.size() == 2 && name.front() == u'h' && name.back().isDigit() ? name.back().digitValue() : 0;
}

QString ExcerptOf(const QString& text, const QString& word)
{
    const qsizetype found = std::max<qsizetype>(0, text.indexOf(word, 0, Qt::CaseInsensitive));
    qsizetype start = found;
    for (int before = 0; before < wordsBefore && start > 1; ++before) {
        start = text.lastIndexOf(u' ', start - 2) + 1;
    }
    const qsizetype end = start + excerptLength;
    return (start > 0 ? u"… "_s : QString()) + text.mid(start, excerptLength).trimmed()
        + (end < text.size() ? u" …"_s : QString());
}

} // namespace

cManual::cManual(const QString& folder) : m_folder(folder)
{
    const QStringList pages = PagesInOrder();
    for (const QString& page : pages) {
        ReadPage(page);
    }
    for (const cSection& section : std::as_const(m_sections)) {
        m_titles.append(modFold::Fold(FullTitle(section)));
        m_texts.append(modFold::Fold(FullTitle(section) + u' ' + section.Text));
    }
}

QString cManual::Html(const QString& page) const
{
    QFile file(QDir(m_folder).filePath(page));
    const bool isInside = !page.contains(u'/') && file.open(QIODevice::ReadOnly);
    return isInside ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList cManual::PagesInOrder() const
{
    QStringList pages;
    QXmlStreamReader reader(Html(modManual::First));
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == u"a") {
            pages.append(reader.attributes().value(u"href"_s).toString());
        }
    }
    return pages;
}

// The pages come from our own generator, which writes them as well-formed XML.
void cManual::ReadPage(const QString& page)
{
    QXmlStreamReader reader(Html(page));
    bool isHeading = false;
    while (!reader.atEnd()) {
        reader.readNext();
        const int level = LevelOf(reader.name());
        if (reader.isStartElement() && level > 0) {
            isHeading = true;
            m_sections.append({page, reader.attributes().value(u"id"_s).toString(), level, {}, {}});
        } else if (reader.isEndElement() && level > 0) {
            isHeading = false;
        } else if (reader.isCharacters() && !m_sections.isEmpty() && m_sections.constLast().Page == page) {
            (isHeading ? m_sections.last().Title : m_sections.last().Text) += reader.text();
        } else if (reader.isEndElement() && !m_sections.isEmpty() && reader.name() != u"code" && reader.name() != u"a"
                   && reader.name() != u"strong" && reader.name() != u"em") {
            m_sections.last().Text += u' '; // cells and lines are words of their own
        }
    }
    for (cSection& section : m_sections) {
        section.Text = section.Text.simplified();
    }
}

QString cManual::FullTitle(const cSection& section) const
{
    if (section.Level == 1) {
        return section.Title;
    }
    const auto chapter = std::find_if(m_sections.begin(), m_sections.end(), [&](const cSection& each) {
        return each.Page == section.Page && each.Level == 1;
    });
    return chapter == m_sections.end() ? section.Title : chapter->Title + u": "_s + section.Title;
}

QList<cManual::cHit> cManual::Find(const QString& text) const
{
    const QList<modFold::cFolded> words = modFold::Words(text);
    QList<cHit> inTitle;
    QList<cHit> inText;
    for (qsizetype i = 0; !words.isEmpty() && i < m_sections.size(); ++i) {
        if (modFold::HoldsAll(m_texts.at(i), words)) {
            const cSection& section = m_sections.at(i);
            const QString excerpt = ExcerptOf(section.Text, text.simplified().section(u' ', 0, 0));
            (modFold::HoldsAll(m_titles.at(i), words) ? inTitle : inText)
                .append({section.Place(), FullTitle(section), excerpt});
        }
    }
    return inTitle + inText;
}
