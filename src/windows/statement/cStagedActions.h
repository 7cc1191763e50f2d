#pragma once

#include "views/statement/cStagedGuide.h"

#include <QList>
#include <QObject>
#include <QString>

#include <array>
#include <functional>

class cImportReview;
class cProgress;
class cStagedTree;
class QAction;
class QMenu;
class QModelIndex;
class QPoint;
class QWidget;

// What can be done with the selected bank transactions, as actions for buttons, menus and keys.
class cStagedActions final : public QObject
{
    Q_OBJECT

public:
    enum eId { Book, Accept, Edit, Choose, Match, Assign, Release, Delete, Rule, Import, All, Count };

    // The keys work in `page`, which all of it outlives.
    cStagedActions(cImportReview& review, cStagedTree& tree, QWidget& page);

    [[nodiscard]] QAction* Get(eId id) const { return m_actions.at(static_cast<std::size_t>(id)); }
    void Run(eId id);

    // Takes a text that was chosen in a cell for all selected rows, when the cell is one of theirs.
    void TakeChoice(const QModelIndex& index, const QString& text);
    // The same for a category of all these rows; false when they do not take it.
    bool TakeCategory(const QList<int>& ids, const QString& category);
    // The same for a text that names no category yet, once the user agrees to make one of it; false when not. Entered
    // in a field of OpenCategory it books the row as well, or is false when the row does not take it.
    bool TakeNewCategory(const QModelIndex& index, const QString& typed, bool isEntered);

    // Selects what is next, and opens the field of its category where that is what it lacks.
    void GoTo(const cStagedGuide::cStop& stop);
    // The same for a page that something else is still in front of: the field opens afterwards.
    void GoSoon(const cStagedGuide::cStop& stop);

    void ShowState();
    void OpenMenu(const QPoint& globalPosition);

Q_SIGNALS:
    void ImportRequested(int rowId); // to see the rows that came with the same import

private:
    void BookRows(const QList<int>& ids);
    void AcceptProposals();
    void Carry(const QList<int>& ids, const std::function<bool(cProgress&)>& work);
    void OfferAlike(int id, const QString& category);
    void BookSoon(int id);
    void BookEntered();
    [[nodiscard]] QList<int> RowsOf(const QModelIndex& index) const;
    void ChooseCategory(const QList<int>& ids);
    void MatchRows(const QList<int>& ids);
    void AssignRow(const QList<int>& ids);
    void StartRule(const QList<int>& ids);
    void AddGroupLines(QMenu& menu);

    cImportReview& m_review;
    cStagedTree& m_tree;
    QWidget& m_page;
    std::array<QAction*, Count> m_actions{};
    int m_entered = 0; // row whose category was entered in its field and that is to be booked now
    bool m_isAsking = false;
};
