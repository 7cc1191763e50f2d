#pragma once

#include "views/receipt/cReceiptHolder.h"

#include <QDate>
#include <QString>
#include <QStringList>

#include <optional>

struct cBookTools;

// The statements of one account number that the bank gave as PDF, newest first. They are kept like receipts; their
// names stand in a setting of that number, so they stay with it whatever its account is called.
class cStatementPapers final : public cReceiptHolder
{
public:
    cStatementPapers(const cBookTools& tools, QString number) : m_tools(tools), m_number(std::move(number)) {}

    // What is added next is of this month or day, as modPaperDay writes it. Else the names of the files tell it, and
    // the user is asked where they do not.
    void SetDay(const QString& day) { m_day = day; }

    [[nodiscard]] QString Title() const override; // "PDF-Auszüge: Girokonto – DE02…"
    [[nodiscard]] cWords Words() const override;
    [[nodiscard]] QList<cItem> Items() const override;
    [[nodiscard]] bool Add(const QList<cReceiptSource>& sources) override;
    [[nodiscard]] bool Detach(const QString& name) override;
    [[nodiscard]] bool Replace(const QString& name, const QString& path) override;

    [[nodiscard]] QStringList Names() const;

    // Whether a file dropped on a statement is meant so.
    [[nodiscard]] static bool IsPaper(const QString& path);

private:
    [[nodiscard]] QString Account() const;                                          // or the number where it has none
    [[nodiscard]] std::optional<QString> DayOf(const cReceiptSource& source) const; // nothing when the user gives up
    // Its name in the folder, empty on failure; the day is found out where none is given.
    [[nodiscard]] QString Take(cReceiptFolder& folder, const cReceiptSource& source, const QString& day) const;
    [[nodiscard]] bool Store(const QStringList& names, const QString& step) const;

    const cBookTools& m_tools;
    QString m_number;
    QString m_day;
};
