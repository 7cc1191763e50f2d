#pragma once

#include "model/cCategorySum.h"
#include "model/cLimits.h"
#include "views/report/cReportFigures.h"

#include <QList>
#include <QString>

#include <optional>

struct cBookTools;

// Reports over the open book. The sums of the last account and period stay in memory, so that another report or another
// order of the same ones costs no query.
class cReportSource
{
public:
    explicit cReportSource(const cBookTools& tools);

    // A wish for a period by its stored name, with the switches of the view for future entries and start balances.
    // `free` are the days of "Freier Zeitraum"; without account it is all of them ("Alle Konten" counts as none).
    [[nodiscard]] cReportWish Wish(eReport type, const QString& account, const QString& period,
                                   const modPeriod::cRange& free) const;

    [[nodiscard]] const cReportFigures& Figures(const cReportWish& wish);
    [[nodiscard]] QString Html(const cReportWish& wish); // as the view shows it
    [[nodiscard]] QString Page(const cReportWish& wish); // as a file of its own

    // The limits that the wish's figures were made with; none for reports without.
    [[nodiscard]] const cLimits& Limits(const cReportWish& wish);

    // To be called when the book has changed.
    void Forget();

private:
    // What the sums in memory were asked for.
    struct cAsked
    {
        QString Account;
        QDate Start;
        QDate End;
        bool operator==(const cAsked&) const = default;
    };
    [[nodiscard]] static cAsked Ask(const cReportWish& wish);
    // Of all entries of the wish's account and period, transfers included.
    [[nodiscard]] const QList<cCategorySum>& Sums(const cReportWish& wish);
    [[nodiscard]] bool IsUnread() const;

    const cBookTools& m_tools;
    std::optional<cAsked> m_asked;
    QList<cCategorySum> m_sums;
    cTemplateItemList m_templates; // as they were loaded with them
    cLimits m_limits;
    QDate m_limitsFrom; // what is carried over into this month is in the limits; invalid: they are old
    cReportFigures m_figures;
};
