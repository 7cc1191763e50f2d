#include "views/report/modTagSums.h"

#include "views/report/modReport.h"

#include <algorithm>

QList<cTagSum> modTagSums::Of(const cReportFigures& figures)
{
    QList<cTagSum> sums;
    const auto add = [&](const cReportSection& section, qint64 cTagSum::*side) {
        for (const cReportGroup& group : section.Groups) {
            auto sum =
                std::find_if(sums.begin(), sums.end(), [&](const cTagSum& each) { return each.Name == group.Name; });
            if (sum == sums.end()) {
                sum = sums.insert(sums.end(), cTagSum{group.Name, group.Label});
            }
            (*sum).*side += group.Amount.Sum;
            sum->Entries += group.Amount.Entries;
        }
    };
    add(figures.Income, &cTagSum::Income);
    add(figures.Expense, &cTagSum::Expense);
    std::stable_sort(sums.begin(), sums.end(), [](const cTagSum& a, const cTagSum& b) {
        const bool isNone = a.Name == modReport::NoTag;
        const bool isOtherNone = b.Name == modReport::NoTag;
        return isNone != isOtherNone ? isOtherNone : a.Income + a.Expense > b.Income + b.Expense;
    });
    return sums;
}
