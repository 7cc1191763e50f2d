#include "model/modWord.h"

#include <QCoreApplication>

const cVocabulary& modWord::EntryTypes()
{
    static const cVocabulary words({QT_TRANSLATE_NOOP("cText", "Einnahme"), QT_TRANSLATE_NOOP("cText", "Ausgabe"),
                                    QT_TRANSLATE_NOOP("cText", "Umbuchung")});
    return words;
}

const cVocabulary& modWord::Intervals()
{
    static const cVocabulary words(
        {QT_TRANSLATE_NOOP("cText", "Einmalig"), QT_TRANSLATE_NOOP("cText", "Täglich"),
         QT_TRANSLATE_NOOP("cText", "Wöchentlich"), QT_TRANSLATE_NOOP("cText", "Alle 2 Wochen"),
         QT_TRANSLATE_NOOP("cText", "Alle 4 Wochen"), QT_TRANSLATE_NOOP("cText", "Monatlich"),
         QT_TRANSLATE_NOOP("cText", "Alle 2 Monate"), QT_TRANSLATE_NOOP("cText", "Alle 3 Monate"),
         QT_TRANSLATE_NOOP("cText", "Alle 6 Monate"), QT_TRANSLATE_NOOP("cText", "Jährlich")});
    return words;
}

const cVocabulary& modWord::Periods()
{
    static const cVocabulary words(
        {QT_TRANSLATE_NOOP("cText", "Alle Buchungen"), QT_TRANSLATE_NOOP("cText", "Aktueller Tag"),
         QT_TRANSLATE_NOOP("cText", "Buchungen bis heute"), QT_TRANSLATE_NOOP("cText", "Aktueller Monat"),
         QT_TRANSLATE_NOOP("cText", "Aktuelles Quartal"), QT_TRANSLATE_NOOP("cText", "Aktuelles Jahr"),
         QT_TRANSLATE_NOOP("cText", "Letzter Monat"), QT_TRANSLATE_NOOP("cText", "Letztes Quartal"),
         QT_TRANSLATE_NOOP("cText", "Letztes Jahr"), QT_TRANSLATE_NOOP("cText", "Nächster Monat"),
         QT_TRANSLATE_NOOP("cText", "Nächstes Quartal"), QT_TRANSLATE_NOOP("cText", "Nächstes Jahr"),
         QT_TRANSLATE_NOOP("cText", "Freier Zeitraum")});
    return words;
}

const cVocabulary& modWord::ViewTypes()
{
    static const cVocabulary words({QT_TRANSLATE_NOOP("cText", "Alle Buchungsarten"),
                                    QT_TRANSLATE_NOOP("cText", "Einnahme"), QT_TRANSLATE_NOOP("cText", "Ausgabe"),
                                    QT_TRANSLATE_NOOP("cText", "Umbuchung")});
    return words;
}

const cVocabulary& modWord::Groupings()
{
    static const cVocabulary words(
        {QT_TRANSLATE_NOOP("cText", "Keine Gruppierung"), QT_TRANSLATE_NOOP("cText", "Nach Datum"),
         QT_TRANSLATE_NOOP("cText", "Nach Woche"), QT_TRANSLATE_NOOP("cText", "Nach Monat"),
         QT_TRANSLATE_NOOP("cText", "Nach Sparte"), QT_TRANSLATE_NOOP("cText", "Nach Kategorie"),
         QT_TRANSLATE_NOOP("cText", "Nach Konto"), QT_TRANSLATE_NOOP("cText", "Nach Buchungsart")});
    return words;
}

QString modWord::QueryType(const QString& viewType)
{
    if (viewType == Einnahme) {
        return Einnahmen;
    }
    if (viewType == Ausgabe) {
        return Ausgaben;
    }
    return viewType == Umbuchung ? Umbuchungen : AlleBuchungen;
}
