#include "views/people/cSettlementModel.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "store/cDataAccess.h"
#include "views/people/modSettlementExport.h"
#include "views/people/modSettlementText.h"
#include "views/report/cReportExport.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString pane = u"Ausgleich"_s; // part of the keys of its settings

} // namespace

cSettlementModel::cSettlementModel(const cBookTools& tools) : m_tools(tools)
{
    m_period.Restore(tools.Settings, pane, tools.Clock.Today());
    Refresh();
}

modPeriod::cRange cSettlementModel::Range() const
{
    return m_period.Range(m_tools.Clock.Today());
}

void cSettlementModel::Refresh()
{
    m_settlement = cPeople(m_tools).Settlement(Range());
    m_html = modSettlementText::Html(m_settlement, m_tools.Format, m_tools.Clock.Today());
}

void cSettlementModel::Changed()
{
    m_period.Save(m_tools.Settings, pane);
    Refresh();
}

void cSettlementModel::ChoosePeriod(const QString& name)
{
    m_period.Choose(name, m_tools.Clock.Today());
    Changed();
}

void cSettlementModel::ChooseFirstMonth(int month)
{
    m_period.ChooseFirst(month);
    Changed();
}

void cSettlementModel::ChooseLastMonth(int month)
{
    m_period.ChooseLast(month);
    Changed();
}

void cSettlementModel::ChooseYear(int year)
{
    m_period.Year = year;
    Changed();
}

QString cSettlementModel::Hint() const
{
    return cPeople(m_tools).HasAny()
        ? QString()
        : cText::Tr("Noch gibt es keine Personen. Sie legen sie unter „Extras“, „Haushalt“, „Personen“ an.");
}

bool cSettlementModel::CanChangePeople() const
{
    return !m_tools.Data.IsReadOnly();
}

QString cSettlementModel::AskPath(const QString& title, const QString& filter) const
{
    const QString day = modDate::ToIso(m_tools.Clock.Today());
    return m_tools.User.ChooseSavePath(title, filter, u"Kontorelle-%1-%2"_s.arg(cText::Tr("Ausgleich"), day));
}

void cSettlementModel::Save(const QString& title, const QString& path, const modFileWrite::cContent& content)
{
    const QString problem = modFileWrite::Export(m_tools.Data, path, content);
    const QString done = cText::Tr("Der Bericht wurde nach '{0}' gespeichert.", {QDir::toNativeSeparators(path)});
    m_tools.User.Show(problem.isEmpty() ? eTone::Information : eTone::Critical, problem.isEmpty() ? done : problem,
                      title);
}

void cSettlementModel::SavePdf(const fnPaintPdf& paint)
{
    const QString title = cText::Tr("Als PDF speichern");
    const QString path = AskPath(title, cText::Tr("PDF-Datei|*.pdf|Alle Dateien|*.*"));
    if (!path.isEmpty()) {
        Save(title, path, {paint(m_html, m_tools.Clock.Today())});
    }
}

void cSettlementModel::SaveFile()
{
    const QString title = cText::Tr("Bericht speichern");
    const QString path = AskPath(title, cReportExport::Filter());
    if (path.isEmpty()) {
        return;
    }
    const std::optional<cReportExport::eFormat> format = cReportExport::FormatOf(path);
    if (!format) {
        m_tools.User.Show(eTone::Critical, cReportExport::NoFormat(path), title);
        return;
    }
    Save(title, path, modSettlementExport::Content(m_settlement, *format, m_tools));
}
