#pragma once

#include <QLayout>
#include <QList>

// Holds the items of a layout that goes on in a further line where the width ends. What that looks like says Arrange.
class cWrapLayout : public QLayout
{
public:
    explicit cWrapLayout(QWidget* parent = nullptr);
    ~cWrapLayout() override;

    void InsertFirst(QWidget* widget);

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

protected:
    enum class eArrange { Measure, Place };

    // Lays the items out from the upper edge of a place, as wide as it is; the height that they take.
    [[nodiscard]] virtual int Arrange(const QRect& place, eArrange arrange) const = 0;
    [[nodiscard]] virtual QSize WantedSize() const = 0;
    [[nodiscard]] virtual QSize LeastSize() const = 0; // as narrow as can be, of one line

    [[nodiscard]] QList<QLayoutItem*> Shown() const; // the items that are not hidden

private:
    QList<QLayoutItem*> m_items;
};
