#pragma once

#include "model/cOwnRule.h"

#include <QAbstractTableModel>
#include <QList>
#include <QString>
#include <QStringList>

#include <memory>

class cEntrySuggestions;
struct cBookTools;
struct cImportEntry;

// The user's own rules for bank transactions: their list, and the one that is being edited. What changes is stored at
// once, each change as one step that can be taken back.
class cRuleListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Rule, Result, Count, ColumnCount };
    enum eRole { QuietRole = Qt::UserRole }; // bool: switched off, or not readable

    explicit cRuleListModel(const cBookTools& tools, QObject* parent = nullptr);
    ~cRuleListModel() override;

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

    // Deletes a rule after a question.
    bool Delete(int place);
    enum class eMove { Up, Down };
    [[nodiscard]] bool CanMove(int place, eMove way) const;
    bool Move(int place, eMove way);
    bool MoveTo(int place, int target);
    bool Switch(int place, bool isOn);

    // On how many staged transactions the edited rule matches: "passt auf 12 von 340 Umsätzen"
    [[nodiscard]] QString TrialText() const;
    // How many staged transactions the stored rule at this place decides about.
    [[nodiscard]] int CountAt(int place) const;
    [[nodiscard]] const QList<cOwnRule>& Stored() const { return m_rules; }
    // Some of them in one line each.
    [[nodiscard]] QStringList Examples() const;

    // The kind of entry that the rule's sign asks for; empty for both.
    [[nodiscard]] static QString TypeOf(const cOwnRule& rule);
    [[nodiscard]] cEntrySuggestions& Suggestions() { return *m_suggestions; }
    [[nodiscard]] QStringList Accounts() const;

    // Headline and hint for a list without rules.
    [[nodiscard]] static QString EmptyTitle();
    [[nodiscard]] static QString EmptyHint();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void RulesChanged(); // what is stored
    void DraftChanged(); // another rule is edited

private:
    struct cWorks; // the tools of the import floor

    [[nodiscard]] bool IsPlace(int place) const { return place >= 0 && place < m_rules.size(); }
    [[nodiscard]] QString Text(int place, int column) const;
    bool Store(const QList<cOwnRule>& rules, const QString& step);
    void Edit(const cOwnRule& rule, int place, bool isNew);

    const cBookTools& m_tools;
    std::unique_ptr<cWorks> m_works;
    std::unique_ptr<cEntrySuggestions> m_suggestions;
    QList<cOwnRule> m_rules;
    cOwnRule m_draft;
    cOwnRule m_start; // the draft as it was opened
    int m_place = 0;
    bool m_isNew = true;
};
