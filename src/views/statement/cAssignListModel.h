#pragma once

#include "model/cImportEntry.h"
#include "views/statement/cMatchFlow.h"

#include <QAbstractTableModel>

#include <vector>

// The entries that one bank transaction may belong to, best first, to choose one of them by hand.
class cAssignListModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum eColumn { Date, Description, Category, Amount, Score, Reason, ColumnCount };

    enum eRole {
        ToneRole = Qt::UserRole, // eMoneyTone
        TakenRole,               // bool: another transaction belongs to it already
    };

    enum class eScope { Likely, All }; // All: every entry of these days that goes the same direction

    // `flow` outlives the list.
    cAssignListModel(cMatchFlow& flow, const cImportEntry& row, QObject* parent = nullptr);
    ~cAssignListModel() override;

    [[nodiscard]] QString RowText() const; // the transaction in one line
    // The place to start at: the best entry that no other transaction has; -1 when the list is empty.
    [[nodiscard]] int Proposed() const;

    void SetScope(eScope scope);

    // Assigns the transaction to the entry at this place; false when the user gave up or the database refused.
    [[nodiscard]] bool Assign(int place);

    // Headline and hint for a list without entries.
    [[nodiscard]] QString EmptyTitle() const;
    [[nodiscard]] QString EmptyHint() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    void Tried(const cMatchFlow::cOutcome& outcome); // there is something to tell, good or bad

private:
    [[nodiscard]] QString Text(const cMatchCandidate& candidate, int column) const;
    void Read();

    cMatchFlow& m_flow;
    cImportEntry m_row;
    eScope m_scope = eScope::Likely;
    std::vector<cMatchCandidate> m_candidates;
};
