#include "views/report/cReportSource.h"

#include "base/cClock.h"
#include "core/cBookTools.h"
#include "core/cSettings.h"
#include "model/cEntryQuery.h"
#include "model/modSettingKey.h"
#include "model/modWord.h"
#include "store/cDataAccess.h"
#include "views/budget/modLimits.h"
#include "views/common/modUnread.h"
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
    const QList<cCategorySum>& sums = Sums(wish);
    m_figures =
        IsUnread() ? modReport::Figures(QList<cCategorySum>(), {}, wish) : modReport::Figures(sums, Limits(wish), wish);
    m_figures.IsUnread = IsUnread();
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

const cLimits& cReportSource::Limits(const cReportWish& wish)
{
    if (!modReport::HasLimits(wish.Type)) {
        static const cLimits none;
        return none;
    }
    const QDate from = modReport::Basis(wish, Sums(wish)).FirstMonth;
    if (!m_limitsFrom.isValid() || m_limitsFrom != from) {
        m_limits = modLimits::Read(m_tools.Data, m_tools.Settings, m_templates, from);
        m_limitsFrom = from;
    }
    return m_limits;
}

// Sums and categories are both needed: figures of a part would be wrong.
bool cReportSource::IsUnread() const
{
    return modUnread::IsMissing(m_tools.Data, std::min(m_sums.size(), m_templates.size()));
}

const QList<cCategorySum>& cReportSource::Sums(const cReportWish& wish)
{
    const cAsked asked = Ask(wish);
    if (m_asked != asked) {
        cEntryQuery query;
        query.Start = asked.Start;
        query.End = asked.End;
        query.Account = asked.Account;
        m_sums = m_tools.Data.GetCategorySums(query);
        m_templates = m_tools.Data.GetTemplates();
        m_limitsFrom = {};
        m_asked = IsUnread() ? std::nullopt : std::optional(asked); // read again next time
    }
    return m_sums;
}

void cReportSource::Forget()
{
    m_asked.reset();
    m_sums.clear();
    m_templates.clear();
    m_limitsFrom = {};
}

cReportSource::cAsked cReportSource::Ask(const cReportWish& wish)
{
    cAsked asked{wish.Account, wish.Range.Start, wish.Range.End};
    if (!wish.ShowsFuture) {
        asked.End = asked.End.isValid() ? std::min(asked.End, wish.Today) : wish.Today;
    }
    return asked;
}
