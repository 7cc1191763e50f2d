#include "views/look/modCategoryIcon.h"

#include "base/cText.h"

#include <algorithm>
#include <array>

namespace {

struct cNamed
{
    const char* Stored;
    const char* Name;
};

constexpr std::array offered{
    cNamed{"haus", QT_TRANSLATE_NOOP("cText", "Haus")},
    cNamed{"werkzeug", QT_TRANSLATE_NOOP("cText", "Werkzeug")},
    cNamed{"strom", QT_TRANSLATE_NOOP("cText", "Strom")},
    cNamed{"wasser", QT_TRANSLATE_NOOP("cText", "Wasser")},
    cNamed{"einkauf", QT_TRANSLATE_NOOP("cText", "Einkaufswagen")},
    cNamed{"essen", QT_TRANSLATE_NOOP("cText", "Teller")},
    cNamed{"kleidung", QT_TRANSLATE_NOOP("cText", "Hemd")},
    cNamed{"auto", QT_TRANSLATE_NOOP("cText", "Auto")},
    cNamed{"bus", QT_TRANSLATE_NOOP("cText", "Bus")},
    cNamed{"reise", QT_TRANSLATE_NOOP("cText", "Flugzeug")},
    cNamed{"gesundheit", QT_TRANSLATE_NOOP("cText", "Herz")},
    cNamed{"kind", QT_TRANSLATE_NOOP("cText", "Kind")},
    cNamed{"tier", QT_TRANSLATE_NOOP("cText", "Pfote")},
    cNamed{"natur", QT_TRANSLATE_NOOP("cText", "Baum")},
    cNamed{"sport", QT_TRANSLATE_NOOP("cText", "Ball")},
    cNamed{"film", QT_TRANSLATE_NOOP("cText", "Film")},
    cNamed{"musik", QT_TRANSLATE_NOOP("cText", "Musik")},
    cNamed{"buch", QT_TRANSLATE_NOOP("cText", "Buch")},
    cNamed{"geschenk", QT_TRANSLATE_NOOP("cText", "Geschenk")},
    cNamed{"telefon", QT_TRANSLATE_NOOP("cText", "Telefon")},
    cNamed{"versicherung", QT_TRANSLATE_NOOP("cText", "Schild")},
    cNamed{"sparen", QT_TRANSLATE_NOOP("cText", "Sparschwein")},
    cNamed{"geld", QT_TRANSLATE_NOOP("cText", "Münzen")},
    cNamed{"sonstiges", QT_TRANSLATE_NOOP("cText", "Punkte")},
};

} // namespace

QList<modCategoryIcon::cOffer> modCategoryIcon::Offers()
{
    QList<cOffer> offers;
    for (const auto& [stored, name] : offered) {
        offers.append({QString::fromLatin1(stored), cText::Tr(name)});
    }
    return offers;
}

std::optional<QString> modCategoryIcon::Read(const QString& text)
{
    const QString typed = text.trimmed();
    const QList<cOffer> offers = Offers();
    const auto found = std::find_if(offers.begin(), offers.end(), [&](const cOffer& offer) {
        return offer.Stored.compare(typed, Qt::CaseInsensitive) == 0
            || offer.Name.compare(typed, Qt::CaseInsensitive) == 0;
    });
    return found == offers.end() ? std::nullopt : std::optional(found->Stored);
}

QString modCategoryIcon::NameOf(const QString& stored)
{
    const QList<cOffer> offers = Offers();
    const auto found =
        std::find_if(offers.begin(), offers.end(), [&](const cOffer& offer) { return offer.Stored == stored; });
    return found == offers.end() ? stored : found->Name;
}
