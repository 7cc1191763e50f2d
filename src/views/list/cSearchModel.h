#pragma once

#include "base/modSum.h"
#include "views/list/cEntryListModel.h"
#include "views/list/cSearch.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <optional>

struct cBookTools;

// The search window without its widgets: its fields, the list of what was found, and all texts around it. Typing on in
// the text only filters what is loaded; the book is read again when days, account or kind change.
class cSearchModel final : public QObject
{
    Q_OBJECT

public:
    enum class eAmountRule { Exactly, AtLeast, AtMost, Between };

    // The fields as they stand in the window. Texts that stand for no choice are empty.
    struct cFields
    {
        QString Text{};
        eAmountRule AmountRule = eAmountRule::Exactly;
        QString Amount{};   // a number or a calculation
        QString AmountTo{}; // the other end of Between
        QString Period{};   // a word of modWord::Periods
        modPeriod::cRange Free{};
        QString Account{};
        QString Type{};
        QString Category{};
        QString Payer{}; // a choice of modPeople
        bool IsCorrected = false;
        bool IsFromBank = false;
        bool operator==(const cFields&) const = default;
    };

    explicit cSearchModel(const cBookTools& tools, QObject* parent = nullptr);

    void Open();    // reads the book, so that the first letter does not wait for it
    void Close();   // lets go of the entries; the fields stay
    void Refresh(); // after the book changed

    void Search(const cFields& fields);     // at once
    void SearchSoon(const cFields& fields); // when typing pauses

    // Choices, without the one for all of them.
    [[nodiscard]] QStringList Periods() const;
    [[nodiscard]] QStringList Accounts() const;
    [[nodiscard]] QStringList People() const;                                // none: nobody is asked who paid
    [[nodiscard]] QStringList Tags() const { return m_entries.KnownTags(); } // of what is in the list
    [[nodiscard]] QStringList Categories() const; // main categories before their sub-categories
    [[nodiscard]] modPeriod::cRange Days(const cFields& fields) const;
    [[nodiscard]] QDate Today() const;
    [[nodiscard]] static bool IsFreePeriod(const cFields& fields);
    [[nodiscard]] bool IsAmount(const QString& text) const; // an empty one is right too
    [[nodiscard]] eDecimal Decimal() const;                 // how amounts are typed

    [[nodiscard]] bool IsReadOnly() const; // the book
    [[nodiscard]] cEntryListModel& Entries() { return m_entries; }
    [[nodiscard]] cSumTexts SumTexts() const;
    [[nodiscard]] QString Hint() const; // a quiet line: what is wrong with the fields, or what the list leaves out
    [[nodiscard]] QString EmptyTitle() const; // why the list shows nothing
    [[nodiscard]] QString EmptyHint() const;  // what to do when nothing was found

    // Column layout of the list.
    [[nodiscard]] QString Layout() const;
    void SaveLayout(const QString& layout);

Q_SIGNALS:
    void Found(); // list, sums and hints are new

private:
    [[nodiscard]] bool IsUnread() const; // the list is empty because it could not be read
    [[nodiscard]] cSearchQuery Query(const cFields& fields) const;
    void Run();
    void Load();
    void Show();

    const cBookTools& m_tools;
    cSearch m_search;
    cEntryListModel m_entries;
    cFields m_fields;
    cSearchQuery m_query;                   // what the list shows
    std::optional<cEntryItemList> m_loaded; // for the days, account and kind of m_query
    QTimer m_timer;
};
