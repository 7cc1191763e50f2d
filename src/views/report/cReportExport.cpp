#include "views/report/cReportExport.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "views/report/cReportSource.h"
#include "views/report/modReport.h"
#include "views/report/modReportExport.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Title()
{
    return cText::Tr("Bericht speichern");
}

} // namespace

QString cReportExport::Filter()
{
    return cText::Tr("HTML-Datei|*.html|CSV-Datei|*.csv|Excel-Datei|*.xlsx|Alle Dateien|*.*");
}

// A name without ending is a page; none for an ending of another kind of file.
std::optional<cReportExport::eFormat> cReportExport::FormatOf(const QString& path)
{
    using enum eFormat;
    const QString ending = QFileInfo(path).suffix().toLower();
    if (ending.isEmpty() || ending == u"html" || ending == u"htm") {
        return Html;
    }
    return ending == u"csv" ? std::optional(Csv) : ending == u"xlsx" ? std::optional(Xlsx) : std::nullopt;
}

QString cReportExport::NoFormat(const QString& path)
{
    return cText::Tr("Am Ende des Dateinamens '{0}' ist nicht zu erkennen, in welchem Format der Bericht gespeichert "
                     "werden soll.\nMöglich sind: {1}.",
                     {QDir::toNativeSeparators(path), u".html, .csv, .xlsx"_s});
}

cReportExport::eDone cReportExport::Run(const cReportWish& wish)
{
    // Without ending: the dialog adds the one of the kind of file that is chosen there.
    const QString proposal = u"Kontorelle-%1-%2"_s.arg(modReport::ShownName(wish.Type), modDate::ToIso(wish.Today));
    const QString path = m_tools.User.ChooseSavePath(Title(), Filter(), proposal);
    if (path.isEmpty()) {
        return eDone::GivenUp;
    }
    const std::optional<eFormat> format = FormatOf(path);
    if (!format) {
        return Refuse(NoFormat(path));
    }
    const eDone done = WriteFile(wish, *format, path);
    if (done == eDone::Written) {
        m_tools.User.Show(eTone::Information,
                          cText::Tr("Der Bericht wurde nach '{0}' gespeichert.", {QDir::toNativeSeparators(path)}),
                          Title());
    }
    return done;
}

cReportExport::eDone cReportExport::WriteFile(const cReportWish& wish, eFormat format, const QString& path)
{
    const QString problem = modFileWrite::Export(m_tools.Data, path, Content(wish, format));
    return problem.isEmpty() ? eDone::Written : Refuse(problem);
}

modFileWrite::cContent cReportExport::Content(const cReportWish& wish, eFormat format)
{
    switch (format) {
    case eFormat::Html: return {m_source.Page(wish).toUtf8()};
    case eFormat::Csv: return {modReportExport::Csv(m_source.Figures(wish))};
    case eFormat::Xlsx: return modReportExport::Xlsx(m_source.Figures(wish), m_tools.Format);
    }
    return {};
}

cReportExport::eDone cReportExport::Refuse(const QString& text)
{
    m_tools.User.Show(eTone::Critical, text, Title());
    return eDone::Failed;
}
