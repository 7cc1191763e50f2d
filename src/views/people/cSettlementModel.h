#pragma once

#include "views/common/modFileWrite.h"
#include "views/people/cPeople.h"
#include "views/report/cStatisticsPeriod.h"

#include <QByteArray>
#include <QString>

#include <functional>

struct cBookTools;

// The window of the settlement without its widgets: its period, its report, and what is saved of it.
class cSettlementModel
{
public:
    explicit cSettlementModel(const cBookTools& tools);

    void Refresh(); // after the people have changed
    void ChoosePeriod(const QString& name);
    void ChooseFirstMonth(int month);
    void ChooseLastMonth(int month);
    void ChooseYear(int year);
    [[nodiscard]] const cStatisticsPeriod& Period() const { return m_period; }
    [[nodiscard]] modPeriod::cRange Range() const;

    [[nodiscard]] const QString& Html() const { return m_html; }
    [[nodiscard]] bool CanChangePeople() const; // not in a book that can only be read
    [[nodiscard]] QString Hint() const;         // what has to be done before there is anything to see; none: nothing

    // Ask for a file. `paint` makes a PDF of a report, no bytes on failure. The ending decides between page and tables.
    using fnPaintPdf = std::function<QByteArray(const QString& html, QDate today)>;
    void SavePdf(const fnPaintPdf& paint);
    void SaveFile();

private:
    void Changed();
    [[nodiscard]] QString AskPath(const QString& title, const QString& filter) const;
    void Save(const QString& title, const QString& path, const modFileWrite::cContent& content);

    const cBookTools& m_tools;
    cStatisticsPeriod m_period;
    cSettlement m_settlement;
    QString m_html;
};
