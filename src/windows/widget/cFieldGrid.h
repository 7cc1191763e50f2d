#pragma once

#include "windows/widget/cWrapLayout.h"

#include <span>
#include <vector>

// Fields with their labels in as many columns as the width has room for, row by row, so that labels and fields stand
// below each other; where the width is too small for that, the lines are filled one by one, at last with fields as
// short as they can be. Columns with a field that wants more room share what is left; a field that is alone in the last
// row takes all of it. A field whose label is hidden is left out.
class cFieldGrid final : public cWrapLayout
{
public:
    explicit cFieldGrid(int mostColumns, QWidget* parent = nullptr);

    void AddField(QWidget* label, QWidget* field);
    void AddField(const QString& label, QWidget* field); // the mnemonic leads to the field, or to its focus proxy

protected:
    [[nodiscard]] int Arrange(const QRect& place, eArrange arrange) const override;
    [[nodiscard]] QSize WantedSize() const override;
    [[nodiscard]] QSize LeastSize() const override;

private:
    struct cPair
    {
        QLayoutItem* Label;
        QLayoutItem* Field;
    };
    struct cColumn
    {
        int Label = 0; // widths
        int Field = 0;
        int Wanted = 0; // more than the width of a field that was shortened
        bool WantsMore = false;
    };
    using cPairs = std::span<const cPair>;
    struct cRow
    {
        cPairs Pairs;
        std::vector<cColumn> Columns;
    };

    enum class eField { Whole, Short };

    [[nodiscard]] std::vector<cPair> Pairs() const;
    [[nodiscard]] static std::vector<cColumn> Columns(const cPairs& pairs, std::size_t count,
                                                      eField field = eField::Whole);
    [[nodiscard]] int Width(const std::vector<cColumn>& columns) const;
    [[nodiscard]] static std::vector<cRow> AlignedRows(const cPairs& pairs, const std::vector<cColumn>& columns);
    [[nodiscard]] std::vector<cRow> RaggedRows(const cPairs& pairs, int width, eField field) const;
    [[nodiscard]] std::vector<cRow> Rows(const cPairs& pairs, int width) const;
    void PlaceRow(const cRow& row, const QRect& place) const;
    void Widen(std::vector<cColumn>& columns, int width) const;
    [[nodiscard]] int ColumnGap() const { return 2 * spacing(); } // wider than between label and field

    std::size_t m_mostColumns;
};
