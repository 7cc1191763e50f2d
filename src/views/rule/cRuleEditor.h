#pragma once

#include "views/rule/cRuleListModel.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <memory>

class cEntrySuggestions;
struct cImportEntry;

// The one of the user's own rules that is being edited, with the list that it belongs to. A change in the form is
// stored when it is saved; to move or to delete the rule is stored at once.
class cRuleEditor final : public QObject
{
    Q_OBJECT

public:
    // Opens the first rule, or a new one when there is none.
    explicit cRuleEditor(const cBookTools& tools, QObject* parent = nullptr);
    ~cRuleEditor() override;

    [[nodiscard]] cRuleListModel& List() { return m_list; }

    // Starts editing: a stored rule, a new one, or a new one proposed from a transaction. The latter comes to stand
    // before the rule that the transaction has now. `category` and `interval` (a stored word) are what the user chose
    // for it. What was edited before is dropped; see Leave.
    void Open(int place);
    void StartNew();
    void StartFrom(const cImportEntry& row, const QString& category = {}, const QString& interval = {});

    [[nodiscard]] const cOwnRule& Draft() const { return m_draft; }
    [[nodiscard]] bool IsNew() const { return m_isNew; }
    [[nodiscard]] int Place() const { return m_place; } // where the edited rule stands or will stand
    [[nodiscard]] bool CanEdit() const { return m_draft.Unreadable.isEmpty(); }
    void SetDraft(const cOwnRule& draft); // as it stands in the form
    [[nodiscard]] bool IsChanged() const; // since it was opened or stored

    // Stores the edited rule. False when it is not complete, which the user is told, or the database refuses.
    bool Save();
    // To be asked before another rule is opened or the window closes: a change is stored or dropped as the user says.
    // False when the user wants to go on with it.
    [[nodiscard]] bool Leave();
    // Leaves the edited rule and opens the one that stands at `place` now.
    bool Choose(int place);

    // Deletes the edited rule after a question and opens the next one.
    bool Delete();
    enum class eMove { Up, Down };
    [[nodiscard]] bool CanMove(eMove way) const;
    // Moves the edited rule by one place, after what Leave does.
    bool Move(eMove way);

    // On how many staged transactions the edited rule matches: "passt auf 12 von 340 Umsätzen"
    [[nodiscard]] QString TrialText() const;
    // Some of them in one line each.
    [[nodiscard]] QStringList Examples() const;

    // The kind of entry that the rule's sign asks for; empty for both.
    [[nodiscard]] static QString TypeOf(const cOwnRule& rule);
    [[nodiscard]] cEntrySuggestions& Suggestions() { return *m_suggestions; }
    [[nodiscard]] QStringList Accounts() const;

Q_SIGNALS:
    void DraftChanged(); // another rule is edited

private:
    [[nodiscard]] int Target(eMove way) const { return way == eMove::Up ? m_place - 1 : m_place + 1; }
    void Edit(const cOwnRule& rule, int place, bool isNew);
    void FollowSwitch();

    const cBookTools& m_tools;
    cRuleListModel m_list;
    std::unique_ptr<cEntrySuggestions> m_suggestions;
    cOwnRule m_draft;
    cOwnRule m_start; // the draft as it was opened
    int m_place = 0;
    bool m_isNew = true;
};
