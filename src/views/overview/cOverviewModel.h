#pragma once

#include "views/overview/cFirstSteps.h"
#include "views/overview/cOverviewBook.h"
#include "views/overview/cOverviewCard.h"
#include "views/overview/cOverviewTasks.h"

#include <QObject>
#include <QTimer>

#include <optional>

class cMainModel;
class cNavigator;
struct cBookTools;

// The first page of the main window: how the month stands, what is due, what is wrong and what to do next, each line a
// way to what it tells. Nothing of it is stored.
class cOverviewModel final : public QObject
{
    Q_OBJECT

public:
    struct cParts
    {
        cNavigator& Navigator;
        cMainModel& Main;
        cOutlook& Outlook;
    };

    // All of it outlives the model.
    cOverviewModel(const cBookTools& tools, const cParts& parts, QObject* parent = nullptr);

    // While the page is in sight it follows the book; else it reads when it is shown next.
    void Show();
    void Hide() { m_isShown = false; }
    void BookSwitched(); // what the former one had means nothing
    void BookChanged();
    void TasksChanged(); // something that the book does not tell of is done: a backup
    void Read();         // at once; the outlook looks as well, later at what takes longer

    // In the order in which they are shown; without entries in the book only what a new book can have.
    [[nodiscard]] const QList<cOverviewCard>& Cards() const { return m_cards; }
    [[nodiscard]] QString Heading() const; // "Sonntag, 22. November 2026"
    [[nodiscard]] bool IsUnread() const { return m_book && m_book->IsUnread; }
    [[nodiscard]] bool IsBookEmpty() const { return m_book && !m_book->HasEntries; }

    // What a new book begins with, and its ways on.
    [[nodiscard]] cFirstSteps FirstSteps() const { return cFirstSteps(m_tools); }
    void AccountsSaved();
    void Do(int command);
    void ShowDemo() { Q_EMIT DemoWanted(); }

    // Whether the program starts with this page, else with the one that was left.
    [[nodiscard]] bool IsStartPage() const;
    void SetStartPage(bool isStartPage);

Q_SIGNALS:
    void CardsChanged();
    void EntriesShown();     // they are to be brought to the front
    void StatementsWanted(); // likewise the page for bank statements
    void DemoWanted();

private:
    void TakeSeries();
    void Build();
    [[nodiscard]] cOverviewCard Balances();
    [[nodiscard]] cOverviewCard Month();
    [[nodiscard]] cOverviewCard Due();
    [[nodiscard]] cOverviewLine DueLine(const cEntryItem& item);
    [[nodiscard]] cOverviewCard Limits();
    [[nodiscard]] cOverviewCard Tasks();
    [[nodiscard]] cOverviewCard Changes();
    [[nodiscard]] QString Lowest() const;
    [[nodiscard]] QString Signed(qint64 cents) const;
    [[nodiscard]] std::function<void()> Command(int command);
    [[nodiscard]] std::function<void()> TaskOf(cOverviewTask::eKind kind);
    void ShowAccount(const QString& account);
    // The entries of this month that a figure counts: of a main category or a category, where one is given.
    enum class eUntil { Today, MonthEnd };
    struct cMonthPart
    {
        QString Title;
        QString Type;
        QString Path;
        eUntil Until = eUntil::Today;
    };
    void ShowMonth(const cMonthPart& part);
    void Change(const std::function<bool()>& write);

    const cBookTools& m_tools;
    cParts m_parts;
    std::optional<cOverviewBook> m_book;
    QList<cOverviewTask> m_tasks;
    cOutlook::cSeries m_series; // that are shown
    QList<cOverviewCard> m_cards;
    bool m_isShown = false;
    bool m_isOld = true; // the book has changed since it was read
    QTimer tmrLoad;      // once for several changes in a row
};
