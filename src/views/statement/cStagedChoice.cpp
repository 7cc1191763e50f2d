#include "views/statement/cStagedChoice.h"

#include "base/cText.h"
#include "base/modCount.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/modSettingKey.h"
#include "store/cDataAccess.h"
#include "views/common/modUnread.h"
#include "views/entry/cEntrySuggestions.h"
#include "views/main/cSavedViews.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using eGrouping = modStagedGroup::eGrouping;

} // namespace

cStagedChoice::cStagedChoice(cStagedSource& source, const cBookTools& tools, const cImportRuns::cRange& import,
                             QObject* parent)
    : QObject(parent),
      m_tools(tools),
      m_import(import),
      m_rows(source, tools.Format)
{
    m_rows.SetShown(Shown());
    m_rows.SetGrouping(modStagedGroup::FromStored(m_tools.Settings.Get(modSettingKey::ImportGrouping)));
}

cStagedOrder::cShown cStagedChoice::Shown() const
{
    cStagedOrder::cShown shown;
    shown.OpenOnly = IsOpenOnly();
    shown.NoCategory = m_isUncategorisedOnly;
    shown.HidesOld = IsOldHidden() && !IsOfOneImport();
    if (IsOfOneImport()) {
        shown.FirstId = m_import.First;
        shown.LastId = m_import.Last;
    }
    return shown;
}

void cStagedChoice::Show()
{
    m_rows.SetShown(Shown());
    Q_EMIT Changed();
}

// Another window may have changed the settings, or another book has its own.
void cStagedChoice::SetRows(const cImportEntryList& rows)
{
    if (m_rows.Shown() != Shown()) {
        m_rows.SetShown(Shown());
    }
    const eGrouping grouping = modStagedGroup::FromStored(m_tools.Settings.Get(modSettingKey::ImportGrouping));
    if (m_rows.Grouping() != grouping) {
        m_rows.SetGrouping(grouping);
    }
    m_rows.SetLooks(cCategoryLooks::Read(m_tools.Data));
    m_rows.SetRows(rows);
    Q_EMIT Changed();
}

void cStagedChoice::Regroup()
{
    m_rows.Regroup();
    Q_EMIT Changed();
}

void cStagedChoice::ForgetInfo()
{
    if (m_rows.Grouping() == eGrouping::Category) {
        m_rows.Regroup(); // a row with another category belongs to another group
    } else {
        m_rows.ForgetInfo();
    }
    Q_EMIT Changed();
}

bool cStagedChoice::IsOpenOnly() const
{
    // What waits is what the page is for, so a new book starts with it alone.
    return m_tools.Settings.GetBool(modSettingKey::HideBooked);
}

void cStagedChoice::SetOpenOnly(bool isOpenOnly)
{
    m_tools.Settings.SetBool(modSettingKey::HideBooked, isOpenOnly);
    Show();
}

void cStagedChoice::SetUncategorisedOnly(bool isOnly)
{
    m_isUncategorisedOnly = isOnly;
    Show();
}

bool cStagedChoice::IsOldHidden() const
{
    return m_tools.Settings.GetBool(modSettingKey::HideOld);
}

void cStagedChoice::SetOldHidden(bool isHidden)
{
    m_tools.Settings.SetBool(modSettingKey::HideOld, isHidden);
    Show();
}

bool cStagedChoice::IsTitleShown() const
{
    return !m_tools.Settings.GetBool(modSettingKey::HideTitle);
}

void cStagedChoice::SetTitleShown(bool isShown)
{
    m_tools.Settings.SetBool(modSettingKey::HideTitle, !isShown);
    Q_EMIT Changed();
}

QStringList cStagedChoice::Groupings()
{
    return modStagedGroup::Shown();
}

int cStagedChoice::Grouping() const
{
    return static_cast<int>(m_rows.Grouping());
}

void cStagedChoice::SetGrouping(int place)
{
    if (place < 0 || place >= Groupings().size() || place == Grouping()) {
        return;
    }
    const auto grouping = static_cast<eGrouping>(place);
    m_tools.Settings.Set(modSettingKey::ImportGrouping, modStagedGroup::Stored(grouping));
    m_rows.SetGrouping(grouping);
    Q_EMIT Changed();
}

void cStagedChoice::SetFilter(const QString& text)
{
    m_filter = text;
    m_rows.SetFilter(text);
    Q_EMIT Changed();
}

QString cStagedChoice::GroupCategory(const QModelIndex& line) const
{
    const QString name = m_rows.GroupName(line);
    const bool isCategory = m_rows.Grouping() == eGrouping::Category && !m_tools.Data.IsReadOnly();
    return isCategory && cEntrySuggestions::VisibleCategories(m_tools.Data).contains(name) ? name : QString();
}

bool cStagedChoice::Keep()
{
    Q_EMIT LayoutWanted();
    const bool isKept =
        cSavedViews(m_tools).Keep({.Columns = Layout(),
                                   .Review = cSavedReview{.OpenOnly = IsOpenOnly(),
                                                          .UncategorisedOnly = IsUncategorisedOnly(),
                                                          .HidesOld = IsOldHidden(),
                                                          .Grouping = modStagedGroup::Stored(m_rows.Grouping()),
                                                          .Filter = m_filter}});
    if (isKept) {
        Q_EMIT ViewsChanged();
    }
    return isKept;
}

void cStagedChoice::ShowKept(const cSavedReview& review, const QString& columns)
{
    m_tools.Settings.SetBool(modSettingKey::HideBooked, review.OpenOnly);
    m_tools.Settings.SetBool(modSettingKey::HideOld, review.HidesOld);
    m_isUncategorisedOnly = review.UncategorisedOnly;
    m_rows.SetShown(Shown());
    SetGrouping(static_cast<int>(modStagedGroup::FromStored(review.Grouping)));
    m_tools.Settings.Set(modSettingKey::ImportList, columns);
    Q_EMIT LayoutTaken();
    SetFilter(review.Filter);
}

QStringList cStagedChoice::KeptNames() const
{
    QStringList names;
    const QList<cSavedView> views = cSavedViews(m_tools).All();
    for (const cSavedView& view : views) {
        names.append(view.Review ? view.Name : QString());
    }
    return names;
}

void cStagedChoice::ShowKept(int place)
{
    const cSavedView view = cSavedViews(m_tools).All().value(place);
    if (view.Review) {
        ShowKept(*view.Review, view.Columns);
    }
}

QString cStagedChoice::EmptyTitle() const
{
    if (modUnread::IsMissing(m_tools.Data, 0)) {
        return modUnread::Title();
    }
    const cStagedOrder::cCounts& counts = m_rows.Counts();
    const bool isDone = IsOpenOnly() && !IsUncategorisedOnly() && counts.Total > 0 && counts.Open == 0;
    return isDone ? cText::Tr("Alles gebucht") : cText::Tr("Keine Daten");
}

QString cStagedChoice::EmptyHint() const
{
    const cStagedOrder::cCounts& counts = m_rows.Counts();
    if (modUnread::IsMissing(m_tools.Data, counts.Total)) {
        return modUnread::Hint();
    }
    if (counts.Total == 0) {
        return IsOfOneImport()
            ? cText::Tr("Die Umsätze dieses Imports sind nicht mehr da.")
            : cText::Tr("Ziehen Sie einen Kontoauszug Ihrer Bank hierher oder wählen Sie „Datei importieren…“. "
                        "Gelesen werden Dateien im Format MT940, MT942, CSV, XLS, XLSX, OFX, QIF und camt.");
    }
    if (IsUncategorisedOnly()) {
        return cText::Tr("Alle Umsätze haben eine Kategorie.");
    }
    if (IsOpenOnly() && counts.Open == 0) {
        return cText::Tr("Alle Umsätze sind gebucht. Ohne den Haken bei „Nur offene“ sehen Sie auch die gebuchten.");
    }
    if (counts.Old > 0) {
        return cText::Tr("Kein Umsatz passt zum Filter. Ältere sind ausgeblendet ({0}); ohne den Haken bei „Ältere "
                         "ausblenden“ sehen Sie auch diese.",
                         {modCount::Rows(counts.Old)});
    }
    return cText::Tr("Kein Umsatz passt zum Filter.");
}

QString cStagedChoice::CountText() const
{
    const cStagedOrder::cCounts& counts = m_rows.Counts();
    const QStringList values{QString::number(counts.Open), QString::number(counts.Total), QString::number(counts.Old)};
    return counts.Old == 0 ? cText::Tr("{0} offen, {1} insgesamt", values)
                           : cText::Tr("{0} offen, {1} insgesamt, {2} ältere ausgeblendet", values);
}

QString cStagedChoice::Layout() const
{
    return m_tools.Settings.Get(modSettingKey::ImportList);
}

void cStagedChoice::SaveLayout(const QString& layout)
{
    if (layout != Layout() && !m_tools.Data.IsReadOnly()) {
        m_tools.Settings.Set(modSettingKey::ImportList, layout);
    }
}
