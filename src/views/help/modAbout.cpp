#include "views/help/modAbout.h"

#include "base/cText.h"

#include <QStringList>

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

struct cLibrary
{
    const char* Name;
    const char* Use; // German
    const char* Licence;
};

constexpr std::array<cLibrary, 10> libraries{{
    {"Qt 6", QT_TRANSLATE_NOOP("cText", "Fenster, Netz, Texte"), "LGPL-3.0"},
    {"SQLite", QT_TRANSLATE_NOOP("cText", "die Datenbank"), QT_TRANSLATE_NOOP("cText", "gemeinfrei")},
    {"SQLiteCpp", QT_TRANSLATE_NOOP("cText", "Zugriff auf die Datenbank"), "MIT"},
    {"pugixml", QT_TRANSLATE_NOOP("cText", "liest XML"), "MIT"},
    {"gumbo", QT_TRANSLATE_NOOP("cText", "liest HTML"), "Apache-2.0"},
    {"litehtml", QT_TRANSLATE_NOOP("cText", "zeigt Berichte"), "BSD-3-Clause"},
    {"Poppler", QT_TRANSLATE_NOOP("cText", "zeigt PDF-Belege"), "GPL-2.0-or-later"},
    {"minizip, zlib", QT_TRANSLATE_NOOP("cText", "liest Zip-Archive"), "Zlib"},
    {"libxlsxwriter", QT_TRANSLATE_NOOP("cText", "schreibt Excel-Dateien"), "BSD-2-Clause"},
    {"bankdata-germany, fints-institute-db", QT_TRANSLATE_NOOP("cText", "Verzeichnis der Banken"), "MIT, CC0-1.0"},
}};

} // namespace

QString modAbout::Name(const QString& version, const QString& commit)
{
    return u"Kontorelle "_s + version + (commit.isEmpty() ? QString() : QString(u" ("_s + commit + u')'));
}

QString modAbout::Terms()
{
    return cText::Tr(
        "Das Haushaltsbuch für zu Hause. Alle Daten liegen in einer Datei auf Ihrem Rechner.\n\n"
        "Freie Software unter der GNU General Public License, Version 3 oder neuer. Sie dürfen sie benutzen, "
        "weitergeben und verändern; eine Gewähr gibt es nicht.");
}

QString modAbout::Libraries()
{
    QStringList lines;
    for (const cLibrary& library : libraries) {
        lines.append(cText::Tr("{0}: {1} ({2})",
                               {QString::fromUtf8(library.Name), cText::Tr(library.Use), cText::Tr(library.Licence)}));
    }
    return lines.join(u'\n');
}
