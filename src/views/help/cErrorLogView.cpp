#include "views/help/cErrorLogView.h"

#include "base/cClock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cErrorLog.h"
#include "core/modMaker.h"
#include "views/common/modFileWrite.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::array<const char*, cErrorLogView::ColumnCount> titles{
    QT_TRANSLATE_NOOP("cText", "Zeit"), QT_TRANSLATE_NOOP("cText", "Version"), QT_TRANSLATE_NOOP("cText", "Vorgang"),
    QT_TRANSLATE_NOOP("cText", "Meldung")};

QString CellText(const cLogEntry& entry, int column)
{
    switch (column) {
    case cErrorLogView::Time: return modDate::ToText(entry.Time.date()) + entry.Time.toString(u" HH:mm:ss"_s);
    case cErrorLogView::Version:
        return entry.Program == u"kontorelle" ? entry.Version : QString(entry.Program + u' ' + entry.Version);
    case cErrorLogView::Operation: return entry.Operation;
    case cErrorLogView::Text: return entry.Text;
    default: return {};
    }
}

QString LineOf(const cLogEntry& entry)
{
    QStringList cells;
    for (int column = 0; column < cErrorLogView::ColumnCount; ++column) {
        cells.append(CellText(entry, column));
    }
    return cells.join(u'\t');
}

bool HasAll(const QString& line, const QStringList& words)
{
    return std::all_of(words.begin(), words.end(),
                       [&](const QString& word) { return line.contains(word, Qt::CaseInsensitive); });
}

} // namespace

cErrorLogView::cErrorLogView(cParts parts, QObject* parent)
    : QAbstractTableModel(parent),
      m_parts(std::move(parts)),
      m_all(m_parts.Log.Entries()),
      m_shown(m_all)
{
}

void cErrorLogView::SetFilter(const QString& words)
{
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    beginResetModel();
    m_shown.clear();
    std::copy_if(m_all.begin(), m_all.end(), std::back_inserter(m_shown),
                 [&](const cLogEntry& entry) { return HasAll(LineOf(entry), wanted); });
    endResetModel();
}

QString cErrorLogView::CountText() const
{
    if (m_shown.size() == m_all.size()) {
        return m_all.size() == 1 ? cText::Tr("1 Meldung") : cText::Tr("{0} Meldungen", {QString::number(m_all.size())});
    }
    return cText::Tr("{0} von {1} Meldungen", {QString::number(m_shown.size()), QString::number(m_all.size())});
}

QString cErrorLogView::EmptyTitle() const
{
    return IsEmpty() ? cText::Tr("Es ist nichts schiefgegangen") : cText::Tr("Keine Meldung passt zum Filter");
}

QString cErrorLogView::EmptyHint() const
{
    return IsEmpty() ? cText::Tr("Hier stehen Fehlermeldungen der letzten fünf Male, die welche hatten.")
                     : cText::Tr("Leeren Sie das Feld über der Liste, um alle zu sehen.");
}

QString cErrorLogView::Details(int row) const
{
    if (row < 0 || row >= m_shown.size()) {
        return {};
    }
    const cLogEntry& entry = m_shown.at(row);
    const QString operation = entry.Operation.isEmpty() ? QString() : QString(entry.Operation + u": "_s);
    return CellText(entry, Time) + u"\n\n"_s + operation + entry.Text;
}

QString cErrorLogView::TextOf(QList<int> rows) const
{
    if (rows.isEmpty()) {
        rows.resize(m_shown.size());
        std::iota(rows.begin(), rows.end(), 0);
    }
    std::sort(rows.begin(), rows.end());
    QString text;
    for (const int row : rows) {
        text += LineOf(m_shown.at(row)) + u'\n';
    }
    return text;
}

QString cErrorLogView::Diagnosis() const
{
    QString text = m_parts.Diagnosis + u'\n' + cText::Tr("Fehlerprotokoll") + u":\n"_s;
    for (const cLogEntry& entry : m_all) {
        text += LineOf(entry) + u'\n';
    }
    return IsEmpty() ? QString(text + EmptyTitle() + u'\n') : text;
}

void cErrorLogView::Save() const
{
    const QString proposal = cText::Tr("Fehlerprotokoll {0}.txt", {m_parts.Clock.Today().toString(u"yyyy-MM-dd"_s)});
    const QString path = m_parts.User.ChooseSavePath(cText::Tr("Fehlerprotokoll speichern"),
                                                     cText::Tr("Text|*.txt|Alle Dateien|*.*"), proposal);
    if (!path.isEmpty()) {
        (void)Write(path);
    }
}

void cErrorLogView::Send() const
{
    // A mail program reads the file when the mail is sent, which may be much later. The next feedback takes its place.
    const QString path = QDir(m_parts.Shell.StateFolder()).filePath(u"Diagnose.txt"_s);
    if (!Write(path)) {
        return;
    }
    const QString file = QDir::toNativeSeparators(path);
    const bool isOpen = m_parts.Shell.OpenMail(
        {.Subject = cText::Tr("Rückmeldung zu Kontorelle"),
         .Text = cText::Tr("Was gefällt Ihnen, was fehlt Ihnen, was ging schief? Was haben Sie vorher getan?\n\n\n"
                           "Im Anhang: Versionen, Ordner, Dateigrößen und das Fehlerprotokoll, nichts aus dem Buch.\n"),
         .Attachment = path,
         .To = modMaker::FeedbackAddress()});
    if (!isOpen) {
        m_parts.User.Show(
            eTone::Exclamation,
            cText::Tr("Es wurde kein E-Mail-Programm gefunden. Die Diagnose liegt in der Datei {0}", {file}));
        return;
    }
    const QString receiver = modMaker::FeedbackAddress().isEmpty()
        ? cText::Tr(" An wen er geht, tragen Sie bitte selbst ein: an den, von dem Sie Kontorelle haben.")
        : QString();
    m_parts.User.Show(eTone::Information,
                      cText::Tr("Ihr E-Mail-Programm öffnet einen Entwurf.{0} Fehlt darin der Anhang, hängen Sie bitte "
                                "diese Datei an: {1}",
                                {receiver, file}));
}

bool cErrorLogView::Write(const QString& path) const
{
    const QString reason = modFileWrite::Replace(path, Diagnosis().toUtf8());
    if (!reason.isEmpty()) {
        m_parts.User.Show(eTone::Critical, modFileWrite::Failed(path, reason));
    }
    return reason.isEmpty();
}

int cErrorLogView::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_shown.size());
}

int cErrorLogView::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant cErrorLogView::data(const QModelIndex& index, int role) const
{
    const bool isText = role == Qt::DisplayRole || (role == Qt::ToolTipRole && index.column() == Text);
    return isText ? QVariant(CellText(m_shown.at(index.row()), index.column())) : QVariant();
}

QVariant cErrorLogView::headerData(int section, Qt::Orientation orientation, int role) const
{
    const bool isTitle = orientation == Qt::Horizontal && role == Qt::DisplayRole;
    return isTitle ? QVariant(cText::Tr(titles.at(static_cast<size_t>(section)))) : QVariant();
}
