#pragma once

#include <QList>
#include <QListView>

#include <functional>

class QKeyEvent;
class QLineEdit;
class QStandardItemModel;

// One proposal; the note stands quietly at the right end of its line.
struct cPickRow
{
    QString Text;
    QString Note;
    bool IsOffer = false; // not a text for the field but something to be done; it has to be chosen by hand
    // Where the proposal is only a word of the line: what the field holds with it, and the cursor behind it.
    QString Line{};
    int Cursor = -1;
    bool IsMeant = false; // chosen at once, as eChosen::FirstRow does; only the first row
};

// The list of proposals below a text field. It follows the typing and is used from the keyboard: Down opens it, Up and
// Down choose, Enter and Tab take the choice, Escape closes only the list. It never takes the keys away from the field,
// so typing goes on while it is open.
class cPickList final : public QListView
{
    Q_OBJECT

public:
    using fnRows = std::function<QList<cPickRow>(const QString& typed)>;

    // FirstRow: typing chooses the first proposal, so that Enter or Tab take it; an emptied field has none. NoRow: the
    // text counts as typed until the user moves into the list.
    enum class eChosen { FirstRow, NoRow };

    // `field` is the widget with the keyboard focus and `edit` the line in it; both may be the same.
    cPickList(QLineEdit& edit, QWidget& field, eChosen chosen, fnRows rows);

    // Opens with the proposals for a text; an empty one brings all.
    void Open(const QString& typed);

    [[nodiscard]] bool IsOpen() const { return isVisible(); }

Q_SIGNALS:
    void Picked(const QString& text);
    void Offered(); // the row that is an offer was picked; the field keeps its text

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void Fill(const QList<cPickRow>& rows);
    void Place();
    void Take(const QModelIndex& index);
    void Step(int rows);
    [[nodiscard]] bool HandleKey(const QKeyEvent& key);
    [[nodiscard]] bool HandleOpenKey(const QKeyEvent& key);
    void HandleOutside(const QObject& watched, const QEvent& event);

    QLineEdit& m_edit;
    QWidget& m_field;
    eChosen m_chosen;
    fnRows m_rows;
    QStandardItemModel* m_items;
};
