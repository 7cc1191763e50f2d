#include "windows/report/modReportAccess.h"

#include "windows/report/cReportView.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace {

class cReportInterface final : public QAccessibleWidget, public QAccessibleTextInterface
{
public:
    explicit cReportInterface(cReportView& view) : QAccessibleWidget(&view, QAccessible::Document), m_view(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface*>(this)
                                                  : QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QString text(QAccessible::Text what) const override
    {
        return what == QAccessible::Value ? m_view.PlainText() : QAccessibleWidget::text(what);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        state.multiLine = true;
        state.selectableText = true;
        return state;
    }

    void selection(int /*index*/, int* start, int* end) const override
    {
        *start = m_view.SelectionStart();
        *end = *start + static_cast<int>(m_view.SelectedText().size());
    }
    [[nodiscard]] int selectionCount() const override { return m_view.SelectedText().isEmpty() ? 0 : 1; }
    void addSelection(int start, int end) override { m_view.Select(start, end); }
    void removeSelection(int /*index*/) override { m_view.Select(0, 0); }
    void setSelection(int /*index*/, int start, int end) override { m_view.Select(start, end); }

    [[nodiscard]] int cursorPosition() const override { return m_view.FocusPosition(); }
    void setCursorPosition(int position) override { m_view.Select(position, position); }
    [[nodiscard]] QString text(int start, int end) const override { return m_view.PlainText().mid(start, end - start); }
    [[nodiscard]] int characterCount() const override { return static_cast<int>(m_view.PlainText().size()); }

    [[nodiscard]] QRect characterRect(int position) const override
    {
        const QRect place = m_view.PlaceOf(position);
        return {m_view.mapToGlobal(place.topLeft()), place.size()};
    }
    [[nodiscard]] int offsetAtPoint(const QPoint& point) const override
    {
        return m_view.PositionAt(m_view.mapFromGlobal(point));
    }
    void scrollToSubstring(int start, int /*end*/) override { m_view.ScrollTo(start); }

    QString attributes(int /*position*/, int* start, int* end) const override
    {
        *start = 0;
        *end = characterCount();
        return {};
    }

private:
    cReportView& m_view;
};

QAccessibleInterface* Make(const QString& /*key*/, QObject* object)
{
    auto* view = qobject_cast<cReportView*>(object);
    return view == nullptr ? nullptr : new cReportInterface(*view);
}

} // namespace

void modReportAccess::Install()
{
    QAccessible::installFactory(Make); // which passes over one that it already has
}
