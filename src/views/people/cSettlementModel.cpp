#include "views/people/cSettlementModel.h"

#include "base/cClock.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "views/list/modFileWrite.h"
#include "views/people/modSettlementText.h"

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

void cSettlementModel::Save(const QString& title, const QString& filter,
                            const std::function<QByteArray(const QString&)>& bytes)
{
    const QString day = modDate::ToIso(m_tools.Clock.Today());
    const QString path =
        m_tools.User.ChooseSavePath(title, filter, u"Kontorelle-%1-%2"_s.arg(cText::Tr("Ausgleich"), day));
    if (path.isEmpty()) {
        return;
    }
    const QString problem = modFileWrite::Export(m_tools.Data, path, bytes(path));
    const QString done = cText::Tr("Der Bericht wurde nach '{0}' gespeichert.", {QDir::toNativeSeparators(path)});
    m_tools.User.Show(problem.isEmpty() ? eTone::Information : eTone::Critical, problem.isEmpty() ? done : problem,
                      title);
}

void cSettlementModel::SavePdf(const fnPaintPdf& paint)
{
    Save(cText::Tr("Als PDF speichern"), cText::Tr("PDF-Datei|*.pdf|Alle Dateien|*.*"),
         [&](const QString&) { return paint(m_html); });
}

void cSettlementModel::SaveFile()
{
    Save(cText::Tr("Bericht speichern"), cText::Tr("HTML-Datei|*.html|CSV-Datei|*.csv|Alle Dateien|*.*"),
         [&](const QString& path) {
             return path.endsWith(u".csv", Qt::CaseInsensitive)
                 ? modSettlementText::Csv(m_settlement)
                 : modSettlementText::Page(m_settlement, m_tools.Format, m_tools.Clock.Today()).toUtf8();
         });
}
