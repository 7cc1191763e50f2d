#include "toldFaults.h"

#include "support/cTextRecorder.h"
#include "support/windowFaults.h"
#include "windows/chart/cChartView.h"

#include <QAbstractScrollArea>
#include <QLineEdit>
#include <QSet>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString PathOf(const QWidget& widget)
{
    QAccessibleInterface* face = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(&widget));
    return face == nullptr ? QString() : u"/org/a11y/atspi/accessible/%1"_s.arg(QAccessible::uniqueId(face));
}

// The axes are no figures: those are told with their labels in full.
bool IsOnAxis(const QString& text, const cChartData& data)
{
    static const QRegularExpression level(u"^-?[\\d.]+ (€|%)$"_s);
    return data.ShortLabels.contains(text) || level.match(text).hasMatch();
}

// Widgets in sight beside what was told.
class cComparison
{
public:
    cComparison(const QWidget& window, const cToldWindow& told) : m_window(window), m_told(told)
    {
        for (const QWidget* widget : window.findChildren<QWidget*>()) {
            m_widgets.insert(PathOf(*widget));
        }
    }

    QStringList Faults()
    {
        if (!m_told.contains(PathOf(m_window))) {
            return {u"the window is not told"_s};
        }
        modWindowFaults::ForEachVisible(m_window, [this](const QWidget& widget) {
            if (IsScrolledAway(widget)) {
                return;
            }
            LookAtTexts(widget);
            LookAtControl(widget);
        });
        return m_faults;
    }

private:
    void LookAtTexts(const QWidget& widget)
    {
        const QString told = ToldAt(PathOf(OwnerOf(widget))).simplified();
        const auto* chart = qobject_cast<const cChartView*>(&widget);
        const QStringList texts = modToldFaults::Painted(const_cast<QWidget&>(widget));
        for (const QString& text : texts) {
            const bool isAxis = chart != nullptr && IsOnAxis(text, chart->ShownData());
            if (!isAxis && !told.contains(text)) {
                Note(u"silent: '%1'"_s.arg(text), widget);
            }
        }
    }

    void LookAtControl(const QWidget& widget)
    {
        const auto at = m_told.constFind(PathOf(widget));
        if (at == m_told.constEnd()) {
            return;
        }
        const auto* button = qobject_cast<const QAbstractButton*>(&widget);
        const bool needsName = (button != nullptr && !button->inherits("QTableCornerButton"))
            || (at->Is(cTold::Focusable) && widget.focusProxy() == nullptr);
        if (needsName && at->Name.isEmpty()) {
            Note(u"no name"_s, widget);
        }
        if (at->Is(cTold::Enabled) != widget.isEnabled()) {
            Note(u"told as enabled or not, and is the other"_s, widget);
        }
        if (button != nullptr && at->Is(cTold::Checked) != button->isChecked()) {
            Note(u"told as checked or not, and is the other"_s, widget);
        }
        if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
            LookAtBuddy(*label, *at);
        }
        if (const auto* view = qobject_cast<const QAbstractItemView*>(&widget)) {
            LookAtChecks(*view, *at);
        }
        LookAtEmpty(widget, *at);
    }

    // A field is known by the label that names it, or by a name of its own.
    void LookAtBuddy(const QLabel& label, const cTold& told)
    {
        const QWidget* buddy = label.buddy();
        const auto field = buddy == nullptr ? m_told.constEnd() : m_told.constFind(PathOf(*buddy));
        if (field != m_told.constEnd() && !field->Labels.contains(told.Path) && !field->Name.startsWith(told.Name)
            && (buddy->accessibleName().isEmpty() || !field->Name.startsWith(buddy->accessibleName()))) {
            Note(u"its label '%1' is not told"_s.arg(told.Name), *buddy);
        }
    }

    void LookAtChecks(const QAbstractItemView& view, const cTold& told)
    {
        QModelIndexList shown = view.model() == nullptr
            ? QModelIndexList()
            : view.model()->match(view.model()->index(0, 0), Qt::CheckStateRole, Qt::Checked, -1,
                                  Qt::MatchExactly | Qt::MatchRecursive);
        shown.removeIf([&view](const QModelIndex& index) { // of the rows in sight, as the toolkit sees it
            return !view.rect().intersects(view.visualRect(index).translated(view.viewport()->pos()));
        });
        const auto checked = std::count_if(told.Children.begin(), told.Children.end(), [this](const QString& path) {
            return m_told.value(path).Is(cTold::Checked);
        });
        if (shown.size() != checked) {
            Note(u"%1 checked rows, %2 are told"_s.arg(shown.size()).arg(checked), view);
        }
    }

    // A choice that is still open says so; else its label would be taken for its value.
    void LookAtEmpty(const QWidget& widget, const cTold& told)
    {
        const auto* combo = qobject_cast<const QComboBox*>(&widget);
        const auto* field = qobject_cast<const QLineEdit*>(&widget);
        const bool isDay = field != nullptr && field->inherits("cDayEdit");
        if (combo != nullptr && combo->currentText().isEmpty()) {
            const QString open =
                combo->lineEdit() == nullptr ? combo->placeholderText() : combo->lineEdit()->placeholderText();
            if (!told.Name.endsWith(open.isEmpty() ? u"leer"_s : open)) {
                Note(u"empty, and tells '%1'"_s.arg(told.Name), widget);
            }
        } else if (isDay && field->text().isEmpty() && field->placeholderText().isEmpty()
                   && !told.Description.startsWith(u"leer"_s)) {
            Note(u"empty, and tells '%1'"_s.arg(told.Description), widget);
        }
    }

    // In a cell that is out of sight; such cells are not told.
    static bool IsScrolledAway(const QWidget& widget)
    {
        const QWidget* parent = widget.parentWidget();
        const bool isInCell = parent != nullptr && qobject_cast<const QAbstractItemView*>(parent->parentWidget());
        return isInCell && widget.visibleRegion().isEmpty();
    }

    // Parts of a widget, such as the inner area of a list, are told by the widget that they belong to.
    [[nodiscard]] const QWidget& OwnerOf(const QWidget& widget) const
    {
        const QWidget* owner = &widget;
        const auto isPart = [this](const QWidget& part) {
            const auto* area = qobject_cast<const QAbstractScrollArea*>(part.parentWidget());
            return !m_told.contains(PathOf(part)) || (area != nullptr && area->viewport() == &part);
        };
        while (owner != &m_window && isPart(*owner)) {
            owner = owner->parentWidget();
        }
        return *owner;
    }

    // With cells, headlines and tabs, which are no widgets.
    [[nodiscard]] QString ToldAt(const QString& path) const
    {
        const cTold& told = m_told.value(path);
        QString all = told.All();
        for (const QString& child : told.Children) {
            all += m_widgets.contains(child) ? QString() : u'\n' + ToldAt(child);
        }
        return all;
    }

    void Note(const QString& fault, const QWidget& widget)
    {
        m_faults.append(fault + u" in "_s + modWindowFaults::Named(widget));
    }

    const QWidget& m_window;
    const cToldWindow& m_told;
    QSet<QString> m_widgets; // the paths of all that are told by themselves
    QStringList m_faults;
};

} // namespace

QStringList modToldFaults::Painted(QWidget& widget)
{
    static const QRegularExpression readable(u"[\\p{L}\\p{N}]"_s);
    cTextRecorder recorder(widget.size(), widget.logicalDpiX());
    widget.render(&recorder, QPoint(), QRegion(), QWidget::RenderFlags());
    QStringList texts;
    for (const cWritten& written : recorder.Sheet) {
        const QStringList parts = written.Text.split(u'…'); // at which a text that is too long is cut
        for (const QString& part : parts) {
            texts += readable.match(part).hasMatch() ? QStringList(part.simplified()) : QStringList();
        }
    }
    return texts;
}

QStringList modToldFaults::Of(const QWidget& window, const cToldWindow& told)
{
    return cComparison(window, told).Faults();
}
