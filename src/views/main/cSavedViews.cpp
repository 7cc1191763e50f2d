#include "views/main/cSavedViews.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype mostKeys = 9;

// What distinguishes most views.
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

bool cSavedViews::Store(const QList<cSavedView>& views)
{
    return m_tools.Settings.Set(modSettingKey::SavedViews, modSavedView::ToText(views));
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

bool cSavedViews::Keep(const cViewState& view, const QString& columns)
{
    const std::optional<QString> name = AskName(Proposal(view));
    if (!name) {
        return false;
    }
    QList<cSavedView> views = All();
    const auto known = Find(views, *name);
    if (known == views.end()) {
        views.append({*name, view, columns});
        return Store(views);
    }
    const eAnswer answer =
        m_tools.User.Ask({.Text = cText::Tr("Die Ansicht '{0}' gibt es schon. Ersetzen?", {known->Name}),
                          .Title = cText::Tr("Ansicht merken")});
    if (answer != eAnswer::Yes) {
        return false;
    }
    *known = {known->Name, view, columns};
    return Store(views);
}

std::optional<cSavedView> cSavedViews::Manage()
{
    QList<cSavedView> views = All();
    if (views.isEmpty()) {
        m_tools.User.Show(eTone::Information,
                          cText::Tr("Noch ist keine Ansicht gemerkt. Wählen Sie Zeitraum, Konto, Filter und Spalten, "
                                    "und dann \"Ansicht merken…\"."));
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
    const QString key = number < mostKeys ? cText::Tr("Taste: Strg+{0}", {QString::number(number + 1)})
                                          : cText::Tr("Ohne Taste; die ersten neun haben eine.");
    switch (m_tools.User.Decide({.Text = cText::Tr("Ansicht '{0}'", {chosen->Name}) + u'\n' + key,
                                 .Title = title,
                                 .Options = {cText::Tr("Zeigen"), cText::Tr("Umbenennen"),
                                             cText::Tr("An die erste Stelle"), cText::Tr("Löschen")}})) {
    case 0: return *chosen;
    case 1: Rename(number); break;
    case 2:
        std::rotate(views.begin(), chosen, chosen + 1);
        Store(views);
        break;
    case 3:
        views.erase(chosen);
        Store(views);
        break;
    default: break;
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
    views[number].Name = *name;
    Store(views);
}

void cSavedViews::AccountRenamed(const QString& oldName, const QString& newName)
{
    Follow(&cViewState::Account, oldName, newName);
}

void cSavedViews::PersonRenamed(const QString& oldName, const QString& newName)
{
    Follow(&cViewState::Payer, oldName, newName);
}

void cSavedViews::Follow(QString cViewState::*field, const QString& oldName, const QString& newName)
{
    QList<cSavedView> views = All();
    bool isTouched = false;
    for (cSavedView& view : views) {
        QString& name = view.View.*field;
        isTouched = isTouched || name == oldName;
        name = name == oldName ? newName : name;
    }
    if (isTouched) {
        Store(views);
    }
}
