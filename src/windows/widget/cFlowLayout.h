#pragma once

#include "windows/widget/cWrapLayout.h"

// Widgets side by side, in further lines where the width ends: bars of buttons. In each line the items that want more
// room share what is left; a stretch is one of these.
class cFlowLayout final : public cWrapLayout
{
public:
    using cWrapLayout::cWrapLayout;

    // A label that stays beside its field.
    void AddField(QWidget* label, QWidget* field);

    void AddStretch();      // what follows stands at the right, in further lines too
    void AddGap(int width); // between what does not belong together

protected:
    [[nodiscard]] int Arrange(const QRect& place, eArrange arrange) const override;
    [[nodiscard]] QSize WantedSize() const override;
    [[nodiscard]] QSize LeastSize() const override;

private:
    using cLine = QList<QLayoutItem*>;

    [[nodiscard]] int Gap(const QLayoutItem& item) const; // before it, within a line
    [[nodiscard]] int Width(const cLine& line) const;
    [[nodiscard]] QList<cLine> Lines(int width) const;
    void PlaceLine(const cLine& line, const QRect& place, bool isBehindStretch) const;
};
