#include "views/report/cReportSource.h"

#include "base/cClock.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/cEntryQuery.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/report/modReport.h"
#include "views/report/modReportHtml.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

cReportSource::cReportSource(const cBookTools& tools) : m_tools(tools)
{
}

cReportWish cReportSource::Wish(eReport type, const QString& account, const QString& period,
                                const modPeriod::cRange& free) const
{
    cReportWish wish;
    wish.Type = type;
    wish.Account = account == modWord::AlleKonten ? QString() : account;
    wish.Period = period;
    wish.Today = m_tools.Clock.Today();
    wish.Range = modPeriod::Range(period, wish.Today, free);
    wish.ShowsFuture = m_tools.Settings.GetBool(modSettingKey::ViewFuture);
    wish.ShowsStart = m_tools.Settings.GetBool(modSettingKey::ViewStart);
    return wish;
}

const cReportFigures& cReportSource::Figures(const cReportWish& wish)
{
    const cEntryItemList& entries = Entries(wish);
    m_figures = modReport::Figures(entries, m_templates, wish);
    return m_figures;
}

QString cReportSource::Html(const cReportWish& wish)
{
    return modReportHtml::Html(Figures(wish), wish, m_tools.Format);
}

QString cReportSource::Page(const cReportWish& wish)
{
    return modReportHtml::Page(Figures(wish), wish, m_tools.Format);
}

cEntryItemList cReportSource::EntriesOf(const cReportWish& wish, const cReportNode& node)
{
    const cEntryItemList& entries = Entries(wish); // and with them the categories
    cEntryItemList found = modReport::EntriesOf(entries, wish, node, m_templates);
    std::stable_sort(found.begin(), found.end(),
                     [](const cEntryItem& a, const cEntryItem& b) { return a.EntryDate < b.EntryDate; });
    return found;
}

const cEntryItemList& cReportSource::Entries(const cReportWish& wish)
{
    const cAsked asked = Ask(wish);
    if (m_asked != asked) {
        cEntryQuery query;
        query.Start = asked.Start;
        query.End = asked.End;
        query.Account = asked.Account;
        m_entries = m_tools.Data.GetEntries(query);
        m_templates = m_tools.Data.GetTemplates();
        m_asked = asked;
    }
    return m_entries;
}

void cReportSource::Forget()
{
    m_asked.reset();
    m_entries.clear();
    m_templates.clear();
}

cReportSource::cAsked cReportSource::Ask(const cReportWish& wish)
{
    cAsked asked{wish.Account, wish.Range.Start, wish.Range.End};
    if (!wish.ShowsFuture) {
        asked.End = asked.End.isValid() ? std::min(asked.End, wish.Today) : wish.Today;
    }
    return asked;
}
