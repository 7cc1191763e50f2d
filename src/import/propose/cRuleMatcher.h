#pragma once

#include "model/cOwnRule.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <bitset>
#include <memory>

struct cImportEntry;

// A transaction as rules look at it, prepared once for any number of them.
struct cRuleRow
{
    // Which pairs of neighbouring characters a text holds, so that most rules are ruled out without looking for them.
    using cPairs = std::bitset<2048>;

    // `account` is the account of the book that the transaction stands on; may be empty.
    cRuleRow(const cImportEntry& row, const QString& account);

    QStringList Texts; // lower case; a second one where line breaks may stand for blanks
    cPairs Pairs;
    QString Name; // of the counterparty, folded
    QString Number;
    QString BankCode;
    QString Account;
    QString OwnNumber;
    qint64 Cents = 0; // negative: money going out
};

// The user's own rules, compiled. Rules that are switched off or cannot be read never match.
class cRuleMatcher
{
public:
    explicit cRuleMatcher(const QList<cOwnRule>& rules);
    ~cRuleMatcher();
    cRuleMatcher(const cRuleMatcher&) = delete;
    cRuleMatcher& operator=(const cRuleMatcher&) = delete;

    // The place of the first rule that matches; -1 when none does.
    [[nodiscard]] int Find(const cRuleRow& row) const;

private:
    struct cCompiled;
    std::unique_ptr<cCompiled> m_rules;
};
