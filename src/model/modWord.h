#pragma once

#include "base/cVocabulary.h"

#include <QString>

// The words that stand in the database. They are German whatever language the user interface shows, and queries compare
// them literally.
namespace modWord {

// Kinds of entry
inline const QString Einnahme = QStringLiteral("Einnahme");
inline const QString Ausgabe = QStringLiteral("Ausgabe");
inline const QString Umbuchung = QStringLiteral("Umbuchung");

// Interval of an entry that happens once
inline const QString Einmalig = QStringLiteral("Einmalig");

// Kinds of template rows
inline const QString Konto = QStringLiteral("Konto");
inline const QString Kategorie = QStringLiteral("Kategorie");

// Kind of correction: another amount for one period
inline const QString Betrag = QStringLiteral("Betrag");

// Category of what nothing is known about
inline const QString Allgemein = QStringLiteral("Allgemein");
// Categories of start balances and of cash
inline const QString Startguthaben = QStringLiteral("Allgemein; Startguthaben");
inline const QString Barauszahlung = QStringLiteral("Allgemein; Barauszahlung");
inline const QString Bareinzahlung = QStringLiteral("Allgemein; Bareinzahlung");

// Types as GetEntries takes them
inline const QString Einnahmen = QStringLiteral("Einnahmen");
inline const QString Ausgaben = QStringLiteral("Ausgaben");
inline const QString Umbuchungen = QStringLiteral("Umbuchungen");
inline const QString AlleBuchungen = QStringLiteral("Alle Buchungen");

// First items of the view's selectors
inline const QString AlleKonten = QStringLiteral("Alle Konten");
inline const QString AlleBuchungsarten = QStringLiteral("Alle Buchungsarten");
inline const QString KeineGruppierung = QStringLiteral("Keine Gruppierung");

// Groupings
inline const QString NachDatum = QStringLiteral("Nach Datum");
inline const QString NachWoche = QStringLiteral("Nach Woche");
inline const QString NachMonat = QStringLiteral("Nach Monat");
inline const QString NachSparte = QStringLiteral("Nach Sparte"); // by main category
inline const QString NachKategorie = QStringLiteral("Nach Kategorie");
inline const QString NachKonto = QStringLiteral("Nach Konto");
inline const QString NachBuchungsart = QStringLiteral("Nach Buchungsart");

inline const QString FreierZeitraum = QStringLiteral("Freier Zeitraum");
inline const QString AktuellesJahr = QStringLiteral("Aktuelles Jahr");

[[nodiscard]] const cVocabulary& EntryTypes(); // "Einnahme", "Ausgabe", "Umbuchung"
[[nodiscard]] const cVocabulary& Intervals();  // "Einmalig" to "Jährlich"
[[nodiscard]] const cVocabulary& Periods();    // "Alle Buchungen" to "Freier Zeitraum"
[[nodiscard]] const cVocabulary& ViewTypes();  // "Alle Buchungsarten", then the kinds of entry
[[nodiscard]] const cVocabulary& Groupings();  // "Keine Gruppierung" to "Nach Buchungsart"

// The view's word for a kind of entry as GetEntries takes it ("Einnahme" gives "Einnahmen"); "Alle Buchungen" for all
// others.
[[nodiscard]] QString QueryType(const QString& viewType);

} // namespace modWord
