#include "base/modCount.h"

#include "base/cText.h"

namespace {

// German has two forms, which stand here. A catalogue may give the second one in as many forms as its language has.
QString Say(qsizetype count, const char* one, const char* many)
{
    return count == 1 ? cText::Tr(one)
                      : cText::Fill(cText::tr(many, nullptr, static_cast<int>(count)), {QString::number(count)});
}

} // namespace

QString modCount::Entries(qsizetype count)
{
    return Say(count, QT_TRANSLATE_NOOP("cText", "1 Eintrag"), QT_TRANSLATE_N_NOOP("cText", "{0} Einträge"));
}

QString modCount::Bookings(qsizetype count)
{
    return Say(count, QT_TRANSLATE_NOOP("cText", "1 Buchung"), QT_TRANSLATE_N_NOOP("cText", "{0} Buchungen"));
}

QString modCount::Categories(qsizetype count)
{
    return Say(count, QT_TRANSLATE_NOOP("cText", "1 Kategorie"), QT_TRANSLATE_N_NOOP("cText", "{0} Kategorien"));
}

QString modCount::Rows(qsizetype count)
{
    return Say(count, QT_TRANSLATE_NOOP("cText", "1 Umsatz"), QT_TRANSLATE_N_NOOP("cText", "{0} Umsätze"));
}

QString modCount::Series(qsizetype count)
{
    return Say(count, QT_TRANSLATE_NOOP("cText", "1 Serie"), QT_TRANSLATE_N_NOOP("cText", "{0} Serien"));
}

QString modCount::Receipts(qsizetype count)
{
    return Say(count, QT_TRANSLATE_NOOP("cText", "1 Beleg"), QT_TRANSLATE_N_NOOP("cText", "{0} Belege"));
}

QString modCount::Accounts(qsizetype count)
{
    return Say(count, QT_TRANSLATE_NOOP("cText", "1 Konto"), QT_TRANSLATE_N_NOOP("cText", "{0} Konten"));
}

QStringList modCount::Cut(QStringList lines, qsizetype most)
{
    if (const qsizetype rest = lines.size() - most; rest > 0) {
        lines.resize(most);
        lines.append(Say(rest, QT_TRANSLATE_NOOP("cText", "… und 1 weitere Zeile"),
                         QT_TRANSLATE_N_NOOP("cText", "… und {0} weitere Zeilen")));
    }
    return lines;
}

QString modCount::Times(qsizetype count)
{
    return Say(count, QT_TRANSLATE_NOOP("cText", "1 Mal"), QT_TRANSLATE_N_NOOP("cText", "{0} Mal"));
}
