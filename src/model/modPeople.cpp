#include "model/modPeople.h"

#include "model/modFlags.h"

#include <QUrl>

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString mark = u"zahler"_s;

// Names hold no ";" and "=" of the texts around them.
QString Encoded(const QString& name)
{
    return QString::fromLatin1(QUrl::toPercentEncoding(name));
}

QString Decoded(const QString& text)
{
    return QUrl::fromPercentEncoding(text.toLatin1());
}

} // namespace

QString modPeople::Payer(const cEntryItem& entry)
{
    return entry.EntryFlags.isEmpty() ? QString() : Decoded(modFlags::Get(entry.EntryFlags, mark));
}

void modPeople::SetPayer(cEntryItem& entry, const QString& name)
{
    entry.EntryFlags = modFlags::Set(entry.EntryFlags, mark, Encoded(name));
}

bool modPeople::IsPaidBy(const cEntryItem& entry, const QString& choice)
{
    return choice.isEmpty() || Payer(entry) == (choice == Nobody ? QString() : choice);
}

bool modPeople::IsChoice(const QString& choice, const QStringList& names)
{
    return choice.isEmpty() || names.contains(choice) || (choice == Nobody && !names.isEmpty());
}

QString modPeople::ToText(const cShares& shares)
{
    QStringList parts;
    for (const cShare& share : shares) {
        parts.append(Encoded(share.Person) + u'=' + QString::number(share.Part));
    }
    return parts.join(u';');
}

modPeople::cShares modPeople::SharesOf(const QString& text)
{
    cShares shares;
    const QStringList parts = text.split(u';', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        const int number = part.section(u'=', 1).toInt();
        if (number > 0) {
            shares.append({Decoded(part.section(u'=', 0, 0)), number});
        }
    }
    return shares;
}

QString modPeople::ToText(const QStringList& names)
{
    QStringList parts;
    for (const QString& name : names) {
        parts.append(Encoded(name));
    }
    return parts.join(u';');
}

QStringList modPeople::NamesOf(const QString& text)
{
    QStringList names;
    const QStringList parts = text.split(u';', Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        names.append(Decoded(part));
    }
    return names;
}

modPeople::cShares modPeople::Equal(const QStringList& names)
{
    cShares shares;
    for (const QString& name : names) {
        shares.append({name, 1});
    }
    return shares;
}

QString modPeople::OwnerOf(const cShares& shares)
{
    return shares.size() == 1 ? shares.constFirst().Person : QString();
}

modPeople::cShares modPeople::Renamed(const cShares& shares, const QString& oldName, const QString& newName)
{
    cShares renamed = shares;
    const auto isOld = [&](const cShare& share) { return share.Person == oldName; };
    if (newName.isEmpty() && renamed.removeIf(isOld) > 0) {
        return PerCent(renamed);
    }
    for (cShare& share : renamed) {
        share.Person = isOld(share) ? newName : share.Person;
    }
    return renamed;
}

modPeople::cShares modPeople::PerCent(const cShares& shares)
{
    constexpr qint64 hundred = 100;
    const qint64 sum = std::accumulate(shares.begin(), shares.end(), qint64{0},
                                       [](qint64 parts, const cShare& share) { return parts + share.Part; });
    // Those who would lose most by rounding come first, because what is left over goes to the first.
    QList<qsizetype> order(shares.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) {
        return sum > 0 && hundred * shares.at(a).Part % sum > hundred * shares.at(b).Part % sum;
    });
    cShares sorted;
    for (const qsizetype i : std::as_const(order)) {
        sorted.append(shares.at(i));
    }
    const QList<qint64> parts = Split(hundred, sorted);
    cShares whole = shares;
    for (qsizetype i = 0; i < whole.size(); ++i) {
        whole[order.at(i)].Part = static_cast<int>(parts.at(i));
    }
    return whole;
}

QList<qint64> modPeople::Split(qint64 cents, const cShares& shares)
{
    qint64 whole = 0;
    for (const cShare& share : shares) {
        whole += share.Part;
    }
    QList<qint64> parts(shares.size(), 0);
    if (whole <= 0) {
        return parts;
    }
    const qint64 sign = cents < 0 ? -1 : 1;
    qint64 left = std::abs(cents);
    for (qsizetype i = 0; i < parts.size(); ++i) {
        parts[i] = std::abs(cents) * shares.at(i).Part / whole;
        left -= parts.at(i);
    }
    for (qsizetype i = 0; left > 0; i = (i + 1) % parts.size()) {
        if (shares.at(i).Part > 0) {
            ++parts[i];
            --left;
        }
    }
    std::for_each(parts.begin(), parts.end(), [sign](qint64& part) { part *= sign; });
    return parts;
}
