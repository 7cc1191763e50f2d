#pragma once

#include "views/entry/cEntryFields.h"
#include "windows/widget/cTypedCells.h"

#include <QTableWidget>

class cEntrySuggestions;
class cSplitDelegate;

// The parts of a split entry, one line each: category, description, amount. Below the last part there is always an
// empty line for the next one. Tab goes from cell to cell and leaves the table behind the last one; Delete removes the
// line.
class cSplitTable final : public cTypedCells<QTableWidget>
{
    Q_OBJECT

public:
    enum eColumn { Category, Description, Amount, ColumnCount };

    cSplitTable(cEntrySuggestions& suggestions, eDecimal decimal, QWidget* parent = nullptr);

    // The kind of entry that goes first among equal categories; empty: none.
    void SetType(const QString& type);

    // Shows the parts; a field that is open in a cell stays open.
    void ShowParts(const QList<cSplitPart>& parts);

    // All lines with the empty one.
    [[nodiscard]] QList<cSplitPart> Parts() const;

    void RemoveLine();

    // Ends the input into a cell with its text kept.
    void Commit();

    // Colours the amount of a line that is no number, until it is changed.
    void MarkAmount(int line);

    // Moves the keyboard focus into a cell.
    void ChooseCell(int line, int column);

    // Moves the keyboard focus to what the first part still needs: its category, else its share of the amount.
    void FocusOpen();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void PartsEdited();
    void CategoryPicked(int line, const QString& path);
    void DescriptionPicked(int line, const QString& text);
    void NewCategoryWanted(int line, const QString& typed);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;
    void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

private:
    void Build();
    void AppendLine();
    void ShowLine(int line, const cSplitPart& part);
    void TakeChange(QTableWidgetItem& item);
    [[nodiscard]] bool IsAtEnd(bool forward) const;
    [[nodiscard]] bool IsOnEmptyLine() const;

    eDecimal m_decimal;
    cSplitDelegate* m_delegate;
};
