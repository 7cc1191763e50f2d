#pragma once

#include "model/cEntryQuery.h"
#include "model/modPeriod.h"

#include <QDate>
#include <QString>
#include <QStringList>

class cSettings;

// What the user has chosen to look at. All words are the stored German ones.
struct cViewState
{
    QString Period;
    modPeriod::cRange Free; // days of "Freier Zeitraum"
    QString Account;        // "Alle Konten" or an account name
    QString Type;           // "Alle Buchungsarten" or a kind of entry
    QString Grouping;
    QString Filter; // free text
    QString Payer;  // who paid, a choice of modPeople
    bool ShowsSingle = true;
    bool ShowsFix = true;
    bool ShowsFuture = true;
    bool ShowsStart = true;
    bool BalancesToToday = true; // false: balances of the chosen period

    // Reads every key; what the selectors do not offer becomes their fixed first position (for the period the current
    // year). So do free days that can be no period while they are the chosen one.
    void Restore(const cSettings& settings, const QStringList& accounts, QDate today);

    // People come and go and get other names, which the settings follow; one who is gone is no choice any more.
    void TakeKnownPayer(const cSettings& settings);
    void DropUnknownPayer(const cSettings& settings); // the same for a view that is not stored

    // Writes the eight selector keys that changed.
    void Save(cSettings& settings) const;

    // The account to filter by; empty for all.
    [[nodiscard]] QString FilterAccount() const;

    // First and last day of the period on the given day, before the future switch is applied.
    [[nodiscard]] modPeriod::cRange Range(QDate today) const;

    // True when neither one-off nor recurring entries are wanted, so that there is nothing to ask for.
    [[nodiscard]] bool ShowsNothing() const { return !ShowsSingle && !ShowsFix; }

    // The query for the list: period cut by the future switch, account, kind of entry and booking kind.
    [[nodiscard]] cEntryQuery Query(QDate today) const;

    // Whether the period has no last day ("Alle Buchungen").
    [[nodiscard]] bool IsOpenEnd(QDate today) const { return !Range(today).End.isValid(); }

    // Whether the balances are what came in less what went out in the period, not what the accounts hold: it begins
    // somewhere among the entries.
    [[nodiscard]] bool ShowsChange(QDate today) const;

    // The query for balances over all accounts: up to and including today, or the period under the switches; one
    // without end goes up to today.
    [[nodiscard]] cEntryQuery BalanceQuery(QDate today) const;
};
