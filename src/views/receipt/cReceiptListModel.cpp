#include "views/receipt/cReceiptListModel.h"

#include "base/cFileDesk.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cAmountFormat.h"
#include "core/cBookTools.h"
#include "model/modBalance.h"
#include "store/cDataAccess.h"
#include "views/entry/modEntryFields.h"
#include "views/list/modFileWrite.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

using namespace Qt::Literals::StringLiterals;

namespace {

QString Filter()
{
    return cText::Tr("Bilder und PDF|*.pdf;*.png;*.jpg;*.jpeg;*.gif;*.bmp;*.tif;*.tiff;*.webp;*.heic|Alle Dateien|*.*");
}

QString SizeText(const cReceipts::cFile& file)
{
    return file.IsThere()
        ? QLocale(QLocale::German, QLocale::Germany).formattedDataSize(file.Size, 0, QLocale::DataSizeSIFormat)
        : cText::Tr("fehlt");
}

} // namespace

cReceiptListModel::cReceiptListModel(const cBookTools& tools, cFileDesk& desk, int entryId, QObject* parent)
    : QAbstractListModel(parent),
      m_tools(tools),
      m_desk(desk),
      m_receipts(tools),
      m_entryId(entryId),
      m_files(m_receipts.Of(entryId))
{
}

void cReceiptListModel::Reload()
{
    beginResetModel();
    m_files = m_receipts.Of(m_entryId);
    endResetModel();
}

QString cReceiptListModel::Title() const
{
    const std::optional<cEntryItem> entry = m_tools.Data.LoadEntry(m_entryId);
    if (!entry) {
        return cText::Tr("Belege");
    }
    return cText::Tr("Belege: {0}, {1}, {2}",
                     {modDate::ToText(entry->EntryDate), modEntryFields::Name(*entry),
                      m_tools.Format.Cents(modBalance::Effect(*entry, {}))});
}

bool cReceiptListModel::CanWrite() const
{
    return !m_tools.Data.IsReadOnly();
}

QString cReceiptListModel::EmptyText() const
{
    return CanWrite() ? cText::Tr("Noch kein Beleg. Ziehen Sie Dateien hierher, fügen Sie ein Bild aus der "
                                  "Zwischenablage ein (Strg+V), oder wählen Sie eine Datei.")
                      : cText::Tr("Dieser Eintrag hat keinen Beleg.");
}

bool cReceiptListModel::IsRow(int row) const
{
    return row >= 0 && row < m_files.size();
}

QString cReceiptListModel::NameAt(int row) const
{
    return IsRow(row) ? m_files.at(row).Name : QString();
}

QString cReceiptListModel::PathAt(int row) const
{
    return IsRow(row) && m_files.at(row).IsThere() ? m_files.at(row).Path : QString();
}

bool cReceiptListModel::IsMissing(int row) const
{
    return IsRow(row) && !m_files.at(row).IsThere();
}

QString cReceiptListModel::MissingText(int row) const
{
    return IsMissing(row) ? cText::Tr("Die Datei '{0}' fehlt im Ordner '{1}'. Legen Sie sie dorthin zurück, zum "
                                      "Beispiel aus dem Papierkorb, oder wählen Sie sie neu.",
                                      {NameAt(row), QDir::toNativeSeparators(m_receipts.Folder())})
                          : QString();
}

QList<cReceiptSource> cReceiptListModel::Ask(cUser& user)
{
    QList<cReceiptSource> sources;
    const QStringList paths = user.ChooseFiles(cText::Tr("Beleg hinzufügen"), Filter(), ePurpose::Receipt);
    for (const QString& path : paths) {
        sources.append({path});
    }
    return sources;
}

void cReceiptListModel::Choose()
{
    Add(Ask(m_tools.User));
}

void cReceiptListModel::Add(const QList<cReceiptSource>& sources)
{
    if (!sources.isEmpty() && m_receipts.Add(m_entryId, sources)) {
        Reload();
        Q_EMIT ReceiptsChanged();
    }
}

void cReceiptListModel::Paste(const QList<cReceiptSource>& sources)
{
    if (sources.isEmpty()) {
        m_tools.User.Show(eTone::Objection, cText::Tr("In der Zwischenablage ist weder ein Bild noch eine Datei."));
    }
    Add(sources);
}

void cReceiptListModel::ChooseAgain(int row)
{
    if (!IsMissing(row)) {
        return;
    }
    const QStringList paths = m_tools.User.ChooseFiles(cText::Tr("Beleg neu wählen"), Filter(), ePurpose::Receipt);
    if (!paths.isEmpty() && m_receipts.Replace(m_entryId, NameAt(row), paths.constFirst())) {
        Reload();
        Q_EMIT ReceiptsChanged();
    }
}

void cReceiptListModel::Remove(int row)
{
    if (!IsRow(row)) {
        return;
    }
    const cReceipts::cFile file = m_files.at(row);
    const bool isShared = m_receipts.EntriesOf(file.Name).size() > 1;
    const QString what = !file.IsThere() ? cText::Tr("Die Datei fehlt schon.")
        : isShared                       ? cText::Tr("Die Datei bleibt, weil auch ein anderer Eintrag sie hat.")
                                         : cText::Tr("Die Datei kommt in den Papierkorb.");
    const eAnswer answer = m_tools.User.Ask(
        {.Text = cText::Tr("Soll der Beleg '{0}' von diesem Eintrag entfernt werden?", {file.Name}) + u'\n' + what,
         .Title = cText::Tr("Beleg entfernen"),
         .Default = eAnswer::No});
    if (answer != eAnswer::Yes || !m_receipts.Detach(m_entryId, file.Name)) {
        return;
    }
    if (file.IsThere() && !isShared) {
        Discard(file);
    }
    Reload();
    Q_EMIT ReceiptsChanged();
}

void cReceiptListModel::Discard(const cReceipts::cFile& file) const
{
    if (!m_desk.MoveToTrash(file.Path)) {
        m_tools.User.Show(eTone::Information,
                          cText::Tr("Hier gibt es keinen Papierkorb. Die Datei '{0}' bleibt im Ordner '{1}'; der "
                                    "Eintrag hat sie nicht mehr.",
                                    {file.Name, QDir::toNativeSeparators(m_receipts.Folder())}));
    }
}

void cReceiptListModel::Open(int row)
{
    const QString path = PathAt(row);
    if (path.isEmpty()) {
        return;
    }
    if (!cReceipts::IsDocument(path)) {
        m_tools.User.Show(eTone::Objection,
                          cText::Tr("'{0}' ist kein Bild und kein Dokument und wird deshalb nicht geöffnet. Mit "
                                    "\"Speichern unter…\" kommen Sie an die Datei.",
                                    {NameAt(row)}));
    } else if (!m_desk.OpenFile(path)) {
        m_tools.User.Show(eTone::Exclamation,
                          cText::Tr("Für '{0}' wurde kein Programm gefunden, das die Datei öffnet.", {NameAt(row)}));
    }
}

void cReceiptListModel::SaveAs(int row)
{
    const QString path = PathAt(row);
    if (path.isEmpty()) {
        return;
    }
    const QString target = m_tools.User.ChooseSavePath(cText::Tr("Beleg speichern"), cText::Tr("Alle Dateien|*.*"),
                                                       NameAt(row), ePurpose::Receipt);
    if (target.isEmpty() || QFileInfo(target) == QFileInfo(path)) {
        return;
    }
    QFile file(path);
    const bool isRead = file.open(QIODevice::ReadOnly);
    const QByteArray bytes = isRead ? file.readAll() : QByteArray();
    const QString problem = !isRead || file.error() != QFileDevice::NoError
        ? cText::Tr("Die Datei '{0}' kann nicht gelesen werden.", {NameAt(row)})
        : modFileWrite::Replace(target, bytes);
    if (!problem.isEmpty()) {
        m_tools.User.Show(eTone::Critical, problem);
    }
}

int cReceiptListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_files.size());
}

QVariant cReceiptListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !IsRow(index.row())) {
        return {};
    }
    const cReceipts::cFile& file = m_files.at(index.row());
    switch (role) {
    case Qt::DisplayRole: return cText::Tr("{0} ({1})", {file.Name, SizeText(file)});
    case Qt::ToolTipRole: return file.IsThere() ? file.Name : MissingText(index.row());
    default: return {};
    }
}
