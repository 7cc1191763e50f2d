#pragma once

#include "views/ledger/cImportRuns.h"
#include "views/statement/cStagedListModel.h"

#include <QObject>
#include <QString>
#include <QStringList>

struct cBookTools;
struct cSavedReview;

// What a list of bank transactions shows and how: all rows or those of one import, without booked and old ones, in
// groups, and what it says about itself. The choices are kept in the settings.
class cStagedChoice final : public QObject
{
    Q_OBJECT

public:
    // With a range only the rows of that import are shown, old ones among them.
    cStagedChoice(cStagedSource& source, const cBookTools& tools, const cImportRuns::cRange& import = {},
                  QObject* parent = nullptr);

    [[nodiscard]] cStagedListModel& Rows() { return m_rows; }
    void SetRows(const cImportEntryList& rows);
    void Regroup();
    void ForgetInfo(); // what is known of the rows beyond themselves is different now
    [[nodiscard]] bool IsOfOneImport() const { return !m_import.IsEmpty(); }

    [[nodiscard]] bool IsOpenOnly() const;
    void SetOpenOnly(bool isOpenOnly); // kept in the setting "HideBookedEntries"
    [[nodiscard]] bool IsUncategorisedOnly() const { return m_isUncategorisedOnly; }
    void SetUncategorisedOnly(bool isOnly); // until the program ends; it goes before IsOpenOnly
    [[nodiscard]] bool IsOldHidden() const;
    void SetOldHidden(bool isHidden);             // kept in the setting "HideOldImportEntries"
    [[nodiscard]] bool IsTitleShown() const;      // the line that says what becomes of the selected rows
    void SetTitleShown(bool isShown);             // its opposite is kept in the setting "HideAssignTitle"
    [[nodiscard]] static QStringList Groupings(); // as the user sees them
    [[nodiscard]] int Grouping() const;           // place in Groupings
    void SetGrouping(int place);                  // kept in the setting "ImportGrouping"
    [[nodiscard]] const QString& Filter() const { return m_filter; }
    void SetFilter(const QString& text);

    // The category of the group that a line or a head is in, which other rows may be given as well; empty unless the
    // rows are grouped by it and may be changed.
    [[nodiscard]] QString GroupCategory(const QModelIndex& line) const;

    // Keeps what is chosen under a name, among the views of the entry list; false when the user gives up.
    bool Keep();
    void ShowKept(const cSavedReview& review, const QString& columns);
    // All kept views by their place; the name of one that shows something else is empty.
    [[nodiscard]] QStringList KeptNames() const;
    void ShowKept(int place);

    // Headline and hint for a list that shows nothing.
    [[nodiscard]] QString EmptyTitle() const;
    [[nodiscard]] QString EmptyHint() const;
    [[nodiscard]] QString CountText() const; // "12 offen, 30 insgesamt"

    // Column layout of the list, as its window wrote it; kept in the setting "ImportList".
    [[nodiscard]] QString Layout() const;
    void SaveLayout(const QString& layout);

Q_SIGNALS:
    void Changed();      // what is shown, or how
    void LayoutWanted(); // whoever shows the list stores its columns now
    void LayoutTaken();  // other columns are stored
    void ViewsChanged(); // the kept ones

private:
    [[nodiscard]] cStagedOrder::cShown Shown() const;
    void Show();

    const cBookTools& m_tools;
    cImportRuns::cRange m_import;
    cStagedListModel m_rows;
    bool m_isUncategorisedOnly = false;
    QString m_filter;
};
