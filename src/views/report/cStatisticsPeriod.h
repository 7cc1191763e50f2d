#pragma once

#include "model/modPeriod.h"

#include <QDate>
#include <QString>

class cSettings;

// The period of one pane of the statistics: a period name, and for "Freier Zeitraum" a first and a last month of a
// year.
struct cStatisticsPeriod
{
    static constexpr int FirstYear = 1900; // that can be chosen
    static constexpr int LastYear = 2100;

    QString Name; // stored word
    int FirstMonth = 1;
    int LastMonth = 12;
    int Year = 0;

    [[nodiscard]] bool IsFree() const;

    // The days on a given day. An invalid day leaves that side open.
    [[nodiscard]] modPeriod::cRange Range(QDate today) const;
    [[nodiscard]] modPeriod::cRange Free() const; // from the first day of the first month to the last one of the last

    // An unknown word is not taken. Choosing the free period starts at the months that were shown before.
    void Choose(const QString& name, QDate today);

    // Chooses months for the free period. A first month after the last one moves the other of them along.
    void ChooseFirst(int month);
    void ChooseLast(int month);

    // `pane` is part of the keys; see modSettingKey. What is not stored or not known becomes the current year.
    void Restore(const cSettings& settings, const QString& pane, QDate today);
    void Save(cSettings& settings, const QString& pane) const;
};
