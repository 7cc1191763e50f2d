#include "windows/chart/modChartAccess.h"

#include "views/chart/modChartTable.h"
#include "windows/chart/cChartView.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class cChartInterface final : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit cChartInterface(cChartView& view) : QAccessibleWidget(&view, QAccessible::Chart), m_view(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QString text(QAccessible::Text what) const override { return QAccessibleWidget::text(what); }
    [[nodiscard]] QString text(int start, int end) const override { return All().mid(start, end - start); }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(All().size()); }

    // The text is only there to be read: nothing in it can be chosen, and no letter of it has a place.
    void selection(int /*index*/, int* start, int* end) const override { *start = *end = 0; }
    [[nodiscard]] int selectionCount() const override { return 0; }
    void addSelection(int /*start*/, int /*end*/) override {}
    void removeSelection(int /*index*/) override {}
    void setSelection(int /*index*/, int /*start*/, int /*end*/) override {}
    [[nodiscard]] int cursorPosition() const override { return 0; }
    void setCursorPosition(int /*position*/) override {}
    [[nodiscard]] QRect characterRect(int /*position*/) const override { return rect(); }
    [[nodiscard]] int offsetAtPoint(const QPoint& /*point*/) const override { return -1; }
    void scrollToSubstring(int /*start*/, int /*end*/) override {}
    QString attributes(int /*position*/, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    [[nodiscard]] QString All() const
    {
        const cChartData data = m_view.ShownData();
        return data.IsEmpty() ? data.EmptyText() : modChartTable::ToldText(data);
    }

    cChartView& m_view;
};

QAccessibleInterface* Make(const QString& /*key*/, QObject* object)
{
    auto* view = qobject_cast<cChartView*>(object);
    return view == nullptr ? nullptr : new cChartInterface(*view);
}

} // namespace

void modChartAccess::Install()
{
    QAccessible::installFactory(Make); // which passes over one that it already has
}
