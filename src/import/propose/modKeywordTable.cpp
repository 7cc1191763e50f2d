#include "import/propose/modKeywordTable.h"

#include <array>

namespace {

using modKeywordTable::cRule;
using modKeywordTable::eSign;

// Every rule that matches overwrites what earlier ones set, so the order is part of the knowledge. Short keywords such
// as "bar", "jet" or "o2" are meant to match inside longer words; "google" also takes what "google adsense" matched and
// then decides by the amount alone; shoes and the mail-order house set their interval even when the amount does not
// fit.
constexpr std::array rules = {
    cRule{.Keywords = "rückerstattung|rueckerstattung",
          .Interval = "Einmalig",
          .Category = "Rückerstattung",
          .Only = eSign::Positive},
    cRule{.Keywords = "host europe|server4you|strato", .Interval = "Monatlich", .Category = "Beruf; Serverkosten"},
    cRule{.Keywords =
              "stadtwerke|staedtische "
              "werke|energie|naturenergie|naturwatt|e.on|eon|yellowstrom|strom|yellow-strom|erlanger stadtwerke",
          .Interval = "Monatlich",
          .Category = "Wohnung; Strom"},
    cRule{.Keywords = "m-net|arcor|telekom|telecom|freenet|1&1|accom|augustakom|bitel|breisnet|colt|dokom|ewe "
                      "tel|gelsen-net|t-com|teleos|versatel|o2|vodafon|ionos",
          .Interval = "Monatlich",
          .Category = "Wohnung; Internet und Telefon"},
    cRule{.Keywords = "aral|shell|esso|agip|avia|jet|tankstelle|total",
          .Interval = "Einmalig",
          .Category = "Auto; Benzin",
          .Only = eSign::Negative},
    cRule{
        .Keywords =
            "marktkauf|aldi|lidl|edeka|rewe|tegut|tengelmann|norma|metro|e-center|ecenter|kaufland|kaufpark|handelshof",
        .Interval = "Einmalig",
        .Category = "Haushalt; Lebensmittel"},
    cRule{.Keywords = "rundfunkbeitrag", .Interval = "Alle 3 Monate", .Category = "Wohnung; GEZ-Gebühren"},
    cRule{.Keywords = "cinestar|cinecitta|cineplex|cinemaxx|kinopolis|united cinemas",
          .Interval = "Einmalig",
          .Category = "Freizeit; Kino / Theater"},
    cRule{.Keywords = "risikoversicherung|rechtsschutzversicherung|haushaltversicherung",
          .Interval = "Monatlich",
          .Category = "Versicherung"},
    cRule{.Keywords = "bausparkasse", .Interval = "Monatlich", .Category = "Geldanlage; Bausparen"},
    cRule{.Keywords = "fristo|getränke|getränkemarkt|getraenke|getraenkemarkt",
          .Interval = "Einmalig",
          .Category = "Haushalt; Getränke"},
    cRule{.Keywords = "weihnachten|geburtstag|ostern",
          .Interval = "Einmalig",
          .Category = "Sonstiges; Geldgeschenke",
          .Only = eSign::Positive},
    cRule{.Keywords = "elterngeld|kindergeld",
          .Interval = "Einmalig",
          .Category = "Staat; Elterngeld",
          .Only = eSign::Positive},
    cRule{.Keywords = "tipp24|lotto|jaxx|gluecksspirale|aktion mensch",
          .Interval = "Einmalig",
          .Category = "Freizeit; Glücksspiel"},
    cRule{.Keywords = "zinsen|zinseinnahmen",
          .Interval = "Alle 3 Monate",
          .Category = "Geldanlage; Zinseinkünfte",
          .Only = eSign::Positive},
    cRule{.Keywords = "mcfit|turnverein|fitness|fitnesstudio|fitnesscenter|cityfitness|sportstudio|fit24|"
                      "fitnesscompany|turnverein",
          .Interval = "Monatlich",
          .Category = "Freizeit; Fitnessstudio"},
    cRule{.Keywords = "apotheke|docmorris|mycare", .Interval = "Einmalig", .Category = "Haushalt; Medikamente"},
    cRule{.Keywords =
              "tropical island|alltours|opodo|thomascook|expedia|dertour|lastminute|hilton|intercontinental|hotel",
          .Interval = "Einmalig",
          .Category = "Freizeit; Urlaub"},
    cRule{
        .Keywords = "hfb|universität|univer|sgd", .Interval = "Monatlich", .Category = "Fortbildung; Studiengebühren"},
    cRule{.Keywords = "xing", .Interval = "Alle 3 Monate", .Category = "Beruf; Werbungskosten"},
    cRule{.Keywords = "startguthaben",
          .Interval = "Einmalig",
          .Category = "Allgemein; Startguthaben",
          .AlsoRequired = "synchronisation"},
    cRule{.Keywords = "bussgeld|bussgeldstelle|bußgeld|bußgeldstelle|zv-kvü|verkehrsueberwach|polizeiverwaltungsamt",
          .Interval = "Einmalig",
          .Category = "Auto; Bußgeld"},
    cRule{.Keywords = "mydays|jochen schweizer|geschenk", .Interval = "Einmalig", .Category = "Freizeit; Geschenke"},
    cRule{.Keywords = "reifen|werkstatt|auto|vw|bmw|mercedes|audi|mazda|toyota|renault|ford",
          .Interval = "Einmalig",
          .Category = "Auto; Werkstatt",
          .IsUncertain = true},
    cRule{.Keywords = "kfz-steuer|autovers*", .Interval = "Jährlich", .Category = "Auto; Kfz-Steuer / Versicherung"},
    cRule{.Keywords = "ikea|moemax|xxxlutz|hoeffner|tendenza|segmueller",
          .Interval = "Einmalig",
          .Category = "Haushalt; Anschaffungen"},
    cRule{.Keywords = "hans im glueck|starbucks|mcdonalds|pizza hut|kantine",
          .Interval = "Einmalig",
          .Category = "Freizeit; Restaurant / Café"},
    cRule{.Keywords = "haftpflicht", .Interval = "Jährlich", .Category = "Versicherung; Haftpflicht"},
    cRule{.Keywords = "rossmann|obi|drogeriemarkt|baumarkt", .Interval = "Einmalig", .Category = "Haushalt"},
    cRule{.Keywords = "familienkasse", .Interval = "Monatlich", .Category = "Einkommen; Kindergeld"},
    cRule{.Keywords = "hundesteuer", .Interval = "Einmalig", .Category = "Haustier; Hundesteuer"},
    cRule{.Keywords = "garage|stellplatz", .Interval = "Monatlich", .Category = "Wohnung; Garage / Stellplatz"},
    cRule{.Keywords = "fahrrad", .Interval = "Einmalig", .Category = "Freizeit; Sport"},
    cRule{.Keywords = "miete|monatsmiete|mietzahlung|airbnb",
          .Interval = "Monatlich",
          .Category = "Wohnung; Miete",
          .PositiveCategory = "Einkommen; Mieteinnahmen"},
    cRule{.Keywords = "schuh|deichmann",
          .Interval = "Einmalig",
          .Category = "Alltag; Schuhe",
          .CategoryOnly = eSign::Negative},
    cRule{.Keywords = "amazon",
          .Interval = "Einmalig",
          .Category = "Rückerstattung; Retoure",
          .CategoryOnly = eSign::Positive},
    cRule{.Keywords = "taschengeld",
          .Interval = "Monatlich",
          .Category = "Haushalt; Taschengeld",
          .PositiveCategory = "Einkommen; Taschengeld"},
    cRule{.Keywords = "ebay|auvito|hood|auktion", .Interval = "Einmalig", .Category = "Auktionen; eBay"},
    cRule{.Keywords = "google adsense", .Interval = "Einmalig", .Category = "Einkommen; Freiberuflich"},
    cRule{.Keywords = "steuererstatt|steuererstattung|steuererst",
          .Interval = "Einmalig",
          .Category = "Staat; Steuererstattung"},
    cRule{.Keywords = "bar|geldautomat|auszahlung|geldabhebung|*ga nr[0-9][0-9][0-9]*",
          .Interval = "Einmalig",
          .Category = "Allgemein; Barauszahlung",
          .PositiveCategory = "Allgemein; Bareinzahlung",
          .IsUncertain = true},
    cRule{.Keywords = "lohn|gehalt|einkommen", .Interval = "Monatlich", .Category = "Einkommen; Lohn / Gehalt"},
    cRule{.Keywords = "libereco", .Interval = "Monatlich", .Category = "Einkommen; Freiberuflich", .IsUncertain = true},
    cRule{.Keywords = "google",
          .Interval = "Einmalig",
          .Category = "Beruf; Werbungskosten",
          .PositiveCategory = "Einkommen; Freiberuflich",
          .IsUncertain = true},
};

} // namespace

std::span<const cRule> modKeywordTable::Rules()
{
    return rules;
}
