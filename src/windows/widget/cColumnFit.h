#pragma once

#include "views/list/cListLayout.h"

#include <QList>
#include <QObject>

#include <optional>
#include <vector>

class QTreeView;

// Keeps the columns of a list in its width: columns of texts give way before the list has to scroll, days and amounts
// are never cut. No text is cut beside room that another column has no text for. A spare column stays away where it
// could not be read. Widths that the user drags are kept as what he wants, also while the window is too narrow for
// them.
class cColumnFit final : public QObject
{
    Q_OBJECT

public:
    enum class eKind { Text, Day, Amount };

    struct cColumn
    {
        int Letters = 0; // width by default, in average letters of the font
        eKind Kind = eKind::Text;
        int LeastLetters = 4; // of a text; days and amounts keep what they need
        int Spare = 0;        // what it says stands elsewhere as well; the highest goes first
    };

    cColumnFit(QTreeView& view, std::vector<cColumn> columns, int rest);

    // Order and widths; without a layout those by default. What is shown and sorted is up to the list.
    void SetLayout(const std::optional<cListLayout>& layout);
    [[nodiscard]] cListLayout Layout() const;
    [[nodiscard]] QList<int> Shown() const; // in the order on screen, also those without room

    void SetShown(int column, bool isShown); // Fit() follows after the last one
    void Fit();
    void Measure(); // the texts as they are now; a reset of the model brings it by itself

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void SendAway();
    void TakeDragged(int column, int width);
    [[nodiscard]] int Letter() const;
    [[nodiscard]] int Wanted(int column) const; // pixels
    [[nodiscard]] int Least(int column) const;
    [[nodiscard]] int Most(int column) const;
    [[nodiscard]] int Longest(int column) const;
    [[nodiscard]] QString WidestAmount(int column) const;

    QTreeView& m_view;
    std::vector<cColumn> m_columns;
    int m_rest;
    QList<int> m_wanted; // pixels as set by the user; 0: by default
    QList<int> m_least;
    QList<int> m_longest; // pixels of the longest text or the title; 0 for days and amounts
    QList<bool> m_isAway; // spare columns without room
    int m_dragged = -1;
    bool m_isFitting = false;
};
