#pragma once

#include <QSplitter>

// Two halves side by side, or one below the other where the width has no room for both.
class cTurningSplitter final : public QSplitter
{
    Q_OBJECT

public:
    // `letters`: the least width for side by side, in average letters of the font.
    explicit cTurningSplitter(int letters, QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int m_letters;
};
