#include "model/bank/cBankBalance.h"

#include "base/modDate.h"

#include <QStringList>

#include <array>
#include <utility>

QString cBankBalance::ToText() const
{
    QString text = modDate::ToIso(Day) + u'=' + QString::number(Cents);
    QString rest;
    for (const qint64 number : {Late.Cents, qint64{Late.Count}, Early.Cents, qint64{Early.Count}}) {
        rest += u'=' + QString::number(number);
        text += number == 0 ? QString() : std::exchange(rest, {});
    }
    return text;
}

std::optional<cBankBalance> cBankBalance::FromText(const QString& text)
{
    std::array<qint64, 5> numbers{};
    const QStringList parts = text.split(u'=');
    const QDate day = modDate::FromIso(parts.constFirst());
    const qsizetype count = parts.size() - 1;
    bool isRead = day.isValid() && count > 0 && count <= static_cast<qsizetype>(numbers.size());
    for (qsizetype i = 0; isRead && i < count; ++i) {
        numbers[static_cast<std::size_t>(i)] = parts.at(i + 1).toLongLong(&isRead);
    }
    const auto [cents, late, lateCount, early, earlyCount] = numbers;
    return isRead ? std::optional(
               cBankBalance{day, cents, {late, static_cast<int>(lateCount)}, {early, static_cast<int>(earlyCount)}})
                  : std::nullopt;
}
