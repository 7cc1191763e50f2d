#include "views/main/cSavedViews.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cUndoStep.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostKeys = 9;

// What distinguishes most views.
QString Proposal(const cSavedReview& review)
{
    return !review.Filter.isEmpty() ? review.Filter
        : review.UncategorisedOnly  ? cText::Tr("Umsätze ohne Kategorie")
        : review.OpenOnly           ? cText::Tr("Offene Umsätze")
                                    : cText::Tr("Alle Umsätze");
}

QString Proposal(const cViewState& view)
{
    const QString period = modWord::Periods().ToShown(view.Period);
    return view.FilterAccount().isEmpty() ? period : QString(view.Account + u", "_s + period);
}

auto Find(QList<cSavedView>& views, const QString& name)
{
    return std::find_if(views.begin(), views.end(),
                        [&](const cSavedView& view) { return view.Name.compare(name, Qt::CaseInsensitive) == 0; });
}

} // namespace

QList<cSavedView> cSavedViews::All() const
{
    return modSavedView::FromText(m_tools.Settings.Get(modSettingKey::SavedViews));
}

QStringList cSavedViews::Names() const
{
    QStringList names;
    const QList<cSavedView> views = All();
    for (const cSavedView& view : views) {
        names.append(view.Name);
    }
    return names;
}

bool cSavedViews::Store(const QList<cSavedView>& views, const QString& name)
{
    cUndoStep step(m_tools.Data, name);
    return step.DoneIf(m_tools.Settings.Set(modSettingKey::SavedViews, modSavedView::ToText(views)));
}

std::optional<QString> cSavedViews::AskName(const QString& proposal) const
{
    const std::optional<QString> name = m_tools.User.Choose({.Text = cText::Tr("Wie soll die Ansicht heißen?"),
                                                             .Title = cText::Tr("Ansicht merken"),
                                                             .Items = Names(),
                                                             .Proposal = proposal,
                                                             .AllowNew = true});
    return name && !name->trimmed().isEmpty() ? std::optional(name->simplified()) : std::nullopt;
}

bool cSavedViews::Keep(cSavedView view)
{
    const std::optional<QString> name = AskName(view.Review ? Proposal(*view.Review) : Proposal(view.View));
    if (!name) {
        return false;
    }
    QList<cSavedView> views = All();
    const auto known = Find(views, *name);
    if (known == views.end()) {
        view.Name = *name;
        views.append(view);
        return Store(views, cText::Tr("Ansicht '{0}' gemerkt", {*name}));
    }
    const eAnswer answer =
        m_tools.User.Ask({.Text = cText::Tr("Die Ansicht '{0}' gibt es schon. Ersetzen?", {known->Name}),
                          .Title = cText::Tr("Ansicht merken")});
    if (answer != eAnswer::Yes) {
        return false;
    }
    view.Name = known->Name;
    *known = view;
    return Store(views, cText::Tr("Ansicht '{0}' gemerkt", {view.Name}));
}

std::optional<cSavedView> cSavedViews::Manage()
{
    QList<cSavedView> views = All();
    if (views.isEmpty()) {
        m_tools.User.Show(eTone::Information,
                          cText::Tr("Noch ist keine Ansicht gemerkt. Wählen Sie Zeitraum, Konto, Filter und Spalten, "
                                    "und dann „Ansicht merken…“."));
        return std::nullopt;
    }
    const QString title = cText::Tr("Meine Ansichten");
    const std::optional<QString> name = m_tools.User.Choose(
        {.Text = cText::Tr("Welche Ansicht?"), .Title = title, .Items = Names(), .Proposal = views.first().Name});
    const auto chosen = name ? Find(views, *name) : views.end();
    if (chosen == views.end()) {
        return std::nullopt;
    }
    const qsizetype number = chosen - views.begin();
    const QString shown = chosen->Name;
    const QString key = number < mostKeys ? cText::Tr("Taste: Strg+{0}", {QString::number(number + 1)})
                                          : cText::Tr("Ohne Taste; die ersten neun haben eine.");
    enum class eWay { Show, Rename, First, Delete }; // in the order of the buttons
    switch (
        static_cast<eWay>(m_tools.User.Decide({.Text = cText::Tr("Ansicht '{0}'", {chosen->Name}) + u'\n' + key,
                                               .Title = title,
                                               .Options = {cText::Tr("Zeigen"), cText::Tr("Umbenennen"),
                                                           cText::Tr("An die erste Stelle"), cText::Tr("Löschen")}}))) {
    case eWay::Show: return *chosen;
    case eWay::Rename: Rename(number); break;
    case eWay::First:
        std::rotate(views.begin(), chosen, chosen + 1);
        Store(views, cText::Tr("Ansicht '{0}' an die erste Stelle gesetzt", {shown}));
        break;
    case eWay::Delete:
        views.erase(chosen);
        Store(views, cText::Tr("Ansicht '{0}' gelöscht", {shown}));
        break;
    }
    return std::nullopt;
}

void cSavedViews::Rename(qsizetype number)
{
    QList<cSavedView> views = All();
    const std::optional<QString> name = AskName(views.at(number).Name);
    if (!name) {
        return;
    }
    const auto known = Find(views, *name);
    if (known != views.end() && known - views.begin() != number) {
        m_tools.User.Show(eTone::Objection, cText::Tr("Die Ansicht '{0}' gibt es schon.", {known->Name}));
        return;
    }
    const QString before = std::exchange(views[number].Name, *name);
    Store(views, cText::Tr("Ansicht '{0}' umbenannt", {before}));
}
