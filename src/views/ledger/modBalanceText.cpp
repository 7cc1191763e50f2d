#include "views/ledger/modBalanceText.h"

#include "base/cText.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "model/modCutText.h"
#include "views/common/modUnread.h"
#include "views/ledger/cStatementLedger.h"

#include <algorithm>
#include <cstdlib>

using namespace Qt::Literals::StringLiterals;
using modBalanceCheck::cFault;
using modBalanceCheck::cPoint;
using modBalanceCheck::eVerdict;

namespace {

constexpr int mostNamed = 3; // differences in full; more would fill the window

QString NameOf(const cImportEntry& torn)
{
    const cImportEntry row = modCutText::WholeWords(torn);
    const QString name = row.ImportBeneficiary.isEmpty() ? row.ImportPurpose : row.ImportBeneficiary;
    constexpr qsizetype most = 40;
    return name.size() > most ? name.left(most).trimmed() + u'…' : (name.isEmpty() ? row.ImportType : name);
}

// The rows of a fault, looked through for what may explain it.
class cReasons
{
public:
    cReasons(const cStatementLedger& ledger, const cFault& fault)
        : m_ledger(ledger),
          m_fault(fault),
          m_first(static_cast<qsizetype>(fault.First)),
          m_last(m_first + static_cast<qsizetype>(fault.Count))
    {
    }

    [[nodiscard]] QString Text() const
    {
        if (m_fault.Count == 0) {
            return cText::Tr("Für diese Tage ist kein Umsatz eingelesen; wahrscheinlich fehlt ein Kontoauszug.");
        }
        QStringList reasons{Twice(), Once(), Deleted()};
        reasons.removeAll(QString());
        return reasons.isEmpty() ? cText::Tr("Vergleichen Sie die Umsätze dieser Tage mit dem Auszug der Bank.")
                                 : reasons.join(u' ');
    }

private:
    // Two rows over the same amount, one of which is too much: the duplicate test was off, or they came in two formats.
    [[nodiscard]] QString Twice() const
    {
        qsizetype before = -1;
        for (qsizetype i = m_first; i < m_last; ++i) {
            if (m_ledger.CentsOf(i) != -m_fault.Missing) {
                continue;
            }
            const cImportEntry& row = m_ledger.Rows().at(i);
            if (before >= 0 && m_ledger.Rows().at(before).ImportDate == row.ImportDate) {
                return cText::Tr("Am {1} gibt es zwei Umsätze über diesen Betrag, '{0}' und '{2}'; wahrscheinlich ist "
                                 "einer doppelt eingelesen.",
                                 {NameOf(m_ledger.Rows().at(before)), modDate::ToText(row.ImportDate), NameOf(row)});
            }
            before = i;
        }
        return {};
    }

    // A row that the bank may have twice: equal ones of a day are taken once.
    [[nodiscard]] QString Once() const
    {
        for (qsizetype i = m_first; i < m_last; ++i) {
            const cImportEntry& row = m_ledger.Rows().at(i);
            if (m_ledger.CentsOf(i) == m_fault.Missing) {
                return cText::Tr("Über diesen Betrag gibt es den Umsatz '{0}' vom {1}. Hat die Bank ihn zweimal, wurde "
                                 "der zweite beim Einlesen für eine Wiederholung gehalten.",
                                 {NameOf(row), modDate::ToText(row.ImportDate)});
            }
        }
        return {};
    }

    [[nodiscard]] QString Deleted() const
    {
        const int count = m_ledger.DeletedIn(m_fault);
        if (count == 0) {
            return {};
        }
        return count == 1 ? cText::Tr("Aus diesen Tagen wurde vermutlich ein eingelesener Umsatz gelöscht.")
                          : cText::Tr("Aus diesen Tagen wurden vermutlich {0} eingelesene Umsätze gelöscht.",
                                      {QString::number(count)});
    }

    const cStatementLedger& m_ledger;
    const cFault& m_fault;
    qsizetype m_first;
    qsizetype m_last;
};

// What is missing on one side may as well be too much on the other.
QString Missing(const cFault& fault, const cAmountFormat& format)
{
    const QStringList values{modDate::ToText(fault.From), format.Cents(std::abs(fault.Missing)),
                             modDate::ToText(fault.To)};
    if (fault.From == fault.To) {
        return fault.Missing < 0 ? cText::Tr("Am {0} fehlen {1} an Ausgaben:", values)
                                 : cText::Tr("Am {0} fehlen {1} an Einnahmen:", values);
    }
    return fault.Missing < 0 ? cText::Tr("Ab dem {0} fehlen {1} an Ausgaben (spätestens am {2}):", values)
                             : cText::Tr("Ab dem {0} fehlen {1} an Einnahmen (spätestens am {2}):", values);
}

QString Passing(const cPoint& point, const cAmountFormat& format)
{
    return cText::Tr("Am {0} nennt die Bank {1}, davor und danach stimmt der Saldo: wahrscheinlich hat sie "
                     "Umsätze an anderen Tagen gebucht, als dort steht.",
                     {modDate::ToText(point.Day), format.Cents(point.Bank)});
}

// A start balance would only hide that rows of the bank are missing.
QString Since(const cBookComparison& book, const QStringList& values)
{
    if (book.HasAgreed) {
        return cText::Tr("Seit dem {4} stimmen beide nicht mehr überein.", values);
    }
    return book.AreRowsMissing
        ? cText::Tr("Sie stimmten schon am {4} nicht überein: vom Auszug der Bank fehlen Umsätze.", values)
        : book.IsStartLate
        ? cText::Tr("Sie stimmten schon am {4} nicht überein: das Startguthaben liegt hinter dem ersten Umsatz.",
                    values)
        : cText::Tr("Sie stimmten schon am {4} nicht überein; vielleicht fehlt das Startguthaben.", values);
}

} // namespace

QString modBalanceText::Fault(const cStatementLedger& ledger, const cFault& fault, const cAmountFormat& format)
{
    return Missing(fault, format) + u' ' + cReasons(ledger, fault).Text();
}

QStringList modBalanceText::Bank(const cStatementLedger& ledger, const cAmountFormat& format)
{
    const modBalanceCheck::cResult& check = ledger.Check();
    if (!check.IsAnchored) {
        return {cText::Tr("Die Bank hat für dieses Konto noch keinen Kontostand genannt. Der Saldo beginnt deshalb bei "
                          "null und lässt sich nicht prüfen.")};
    }
    const QStringList newest{format.Cents(check.Points.last().Bank), modDate::ToText(check.Points.last().Day)};
    QStringList lines;
    if (check.Faults.isEmpty()) {
        const auto count = std::count_if(check.Points.begin(), check.Points.end(),
                                         [](const cPoint& point) { return point.Verdict == eVerdict::Agrees; });
        lines.append(count == 1
                         ? cText::Tr("Kontostand der Bank: {0} am {1}. Ein weiterer, mit dem sich die Umsätze prüfen "
                                     "ließen, ist nicht bekannt.",
                                     newest)
                         : cText::Tr("Die Umsätze stimmen mit allen {2} Kontoständen der Bank überein, zuletzt {0} "
                                     "am {1}.",
                                     newest + QStringList(QString::number(count))));
    }
    for (qsizetype i = 0; i < check.Faults.size() && i < mostNamed; ++i) {
        lines.append(Fault(ledger, check.Faults.at(check.Faults.size() - 1 - i), format));
    }
    if (check.Faults.size() > mostNamed) {
        const qsizetype more = check.Faults.size() - mostNamed;
        lines.append(more == 1 ? cText::Tr("Davor gibt es eine weitere Abweichung.")
                               : cText::Tr("Davor gibt es {0} weitere Abweichungen.", {QString::number(more)}));
    }
    const auto passing = std::find_if(check.Points.rbegin(), check.Points.rend(),
                                      [](const cPoint& point) { return point.Verdict == eVerdict::Passing; });
    if (passing != check.Points.rend()) {
        lines.append(Passing(*passing, format));
    }
    return lines;
}

QString modBalanceText::OnStatement(std::optional<qint64> named, const cAmountFormat& format)
{
    return named ? u' '
            + cText::Tr(
                       "Auf dem Auszug stehen {0}: Einige seiner Umsätze haben ihre Wertstellung an einem anderen Tag.",
                       {format.Cents(*named)})
                 : QString();
}

QString modBalanceText::Book(const cBookComparison& book, const QString& account, const cAmountFormat& format)
{
    using eState = cBookComparison::eState;
    const QStringList values{account,
                             modDate::ToText(book.Day),
                             format.Cents(book.Book),
                             format.Cents(book.Bank),
                             modDate::ToText(book.From),
                             format.Cents(std::abs(book.Book - book.Bank))};
    const QString named = OnStatement(book.Named, format);
    switch (book.State) {
    case eState::NoBalance: return {};
    case eState::Unread: return modUnread::Title();
    case eState::NotMapped: return cText::Tr("Diese Kontonummer ist noch keinem Konto Ihres Buchs zugeordnet.");
    case eState::Shared:
        return cText::Tr("Zum Konto '{0}' gehören mehrere Kontonummern; mit seinen Einträgen lässt sich der Auszug "
                         "deshalb nicht vergleichen.",
                         values);
    case eState::Agrees: return cText::Tr("Das Konto '{0}' stimmt am {1} mit der Bank überein: {2}.", values) + named;
    case eState::Differs: break;
    }
    const QString what = book.Book > book.Bank
        ? cText::Tr("Das Konto '{0}' steht am {1} auf {2}, das sind {5} mehr als bei der Bank ({3}).", values)
        : cText::Tr("Das Konto '{0}' steht am {1} auf {2}, das sind {5} weniger als bei der Bank ({3}).", values);
    return what + named + u' ' + Since(book, values);
}
