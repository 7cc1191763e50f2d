#include "views/chart/cChartSave.h"

#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "views/chart/modChartTable.h"
#include "views/common/modFileWrite.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

// The title as part of a file name.
QString FileName(QString title)
{
    for (QChar& c : title) {
        if (!c.isLetterOrNumber()) {
            c = u'-';
        }
    }
    while (title.contains(u"--"_s)) {
        title.replace(u"--"_s, u"-"_s);
    }
    return title;
}

QString Title()
{
    return cText::Tr("Diagramm speichern");
}

} // namespace

cChartSave::cChartSave(const cBookTools& tools, cPictures pictures) : m_tools(tools), m_pictures(std::move(pictures))
{
}

bool cChartSave::Run(const cChartData& data, QDate today)
{
    const QString filter = cText::Tr("PNG-Bild|*.png|SVG-Bild|*.svg|CSV-Datei (Zahlen)|*.csv");
    const QString proposal = u"Kontorelle-%1-%2"_s.arg(FileName(data.Title), modDate::ToIso(today));
    const QString path = m_tools.User.ChooseSavePath(Title(), filter, proposal);
    return !path.isEmpty() && Write(data, path);
}

bool cChartSave::Write(const cChartData& data, const QString& path)
{
    const QString ending = QFileInfo(path).suffix().toLower();
    QByteArray bytes;
    if (ending == u"csv") {
        bytes = modChartTable::Csv(data);
    } else if (ending == u"png" && m_pictures.Png) {
        bytes = m_pictures.Png(data);
    } else if (ending == u"svg" && m_pictures.Svg) {
        bytes = m_pictures.Svg(data);
    } else {
        return Refuse(cText::Tr("Am Ende des Dateinamens '{0}' ist nicht zu erkennen, wie das Diagramm gespeichert "
                                "werden soll.\nMöglich sind: .png, .svg, .csv.",
                                {QDir::toNativeSeparators(path)}));
    }
    if (const QString problem = modFileWrite::Export(m_tools.Data, path, bytes); !problem.isEmpty()) {
        return Refuse(problem);
    }
    m_tools.User.Show(eTone::Information,
                      cText::Tr("Das Diagramm wurde nach '{0}' gespeichert.", {QDir::toNativeSeparators(path)}),
                      Title());
    return true;
}

bool cChartSave::Refuse(const QString& text)
{
    m_tools.User.Show(eTone::Critical, text, Title());
    return false;
}
