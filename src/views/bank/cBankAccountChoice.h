#pragma once

#include "model/bank/cBankState.h"

#include <QList>
#include <QString>
#include <QStringList>

struct cBookTools;

// Which accounts of a login are fetched, and into which accounts of the book.
class cBankAccountChoice
{
public:
    struct cLine
    {
        cBankAccount Account;
        QString Product;
        QString Number;      // IBAN in groups of four, else the account number
        QString Reason;      // why it cannot be fetched; empty when it can
        QString BookAccount; // a name that the book does not have yet is added to it
        bool IsChosen = false;

        bool operator==(const cLine&) const = default;
    };

    // Proposes for each account the one it is known to belong to, else a free one with a similar name, else a new one.
    // Chosen are the accounts that were; of a new login all that can be fetched.
    cBankAccountChoice(const cBookTools& tools, const cBankState& state, bool isNew);

    [[nodiscard]] const QList<cLine>& Lines() const { return m_lines; }
    void Choose(qsizetype line, bool isChosen);
    void SetBookAccount(qsizetype line, const QString& name);

    [[nodiscard]] const QStringList& BookAccounts() const { return m_names; } // to choose from
    // "wird neu angelegt"; empty for an account that is there.
    [[nodiscard]] QString Note(qsizetype line) const;
    // What is missing, with what to do; empty when nothing is.
    [[nodiscard]] QString Problem() const;

    [[nodiscard]] QList<cBankAccount> Chosen() const;
    [[nodiscard]] bool IsChanged() const { return m_lines != m_proposed; } // by the user

private:
    [[nodiscard]] QString Proposal(const cLine& line) const;
    [[nodiscard]] QString NewName(const cLine& line) const;
    [[nodiscard]] bool IsTaken(const QString& name) const;

    QStringList m_names;
    QStringList m_withNumber; // accounts of the book that belong to some account of a bank
    QList<cLine> m_lines;
    QList<cLine> m_proposed; // the lines as they were
};
