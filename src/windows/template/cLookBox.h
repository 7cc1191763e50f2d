#pragma once

#include "views/look/cCategoryLooks.h"

#include <QWidget>

class QComboBox;
class QToolButton;

// Colour and picture of a main category, chosen from two lists beside each other; a button behind the colours asks
// for one of the user's own.
class cLookBox final : public QWidget
{
    Q_OBJECT

public:
    explicit cLookBox(QWidget* parent = nullptr);

    [[nodiscard]] cCategoryLook Look() const;
    void SetLook(const cCategoryLook& look);

Q_SIGNALS:
    void Changed();

private:
    void FillColors();
    void FillIcons();
    void ChooseColor(const QString& stored); // one of the user's own gets a line of its own
    void AskColor();

    QComboBox* m_color;
    QToolButton* m_ownColor;
    QComboBox* m_icon;
};
