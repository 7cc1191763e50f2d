#include "views/receipt/cReceiptListModel.h"

#include "base/cFileDesk.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "core/cBookTools.h"
#include "store/cDataAccess.h"
#include "views/common/modFileSize.h"
#include "views/common/modFileWrite.h"
#include "views/receipt/cEntryReceipts.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

cReceiptListModel::cReceiptListModel(const cBookTools& tools, cFileDesk& desk, std::unique_ptr<cReceiptHolder> holder,
                                     QObject* parent)
    : QAbstractListModel(parent),
      m_tools(tools),
      m_desk(desk),
      m_holder(std::move(holder)),
      m_items(m_holder->Items())
{
}

cReceiptListModel::cReceiptListModel(const cBookTools& tools, cFileDesk& desk, int entryId, QObject* parent)
    : cReceiptListModel(tools, desk, std::make_unique<cEntryReceipts>(tools, entryId), parent)
{
}

void cReceiptListModel::Reload()
{
    beginResetModel();
    QStringList before;
    for (const cReceiptHolder::cItem& item : std::as_const(m_items)) {
        before.append(item.File.Name);
    }
    m_items = m_holder->Items();
    m_added = -1;
    for (int row = 0; row < m_items.size(); ++row) {
        m_added = before.contains(m_items.at(row).File.Name) ? m_added : row;
    }
    endResetModel();
}

QString cReceiptListModel::Title() const
{
    return m_holder->Title();
}

QString cReceiptListModel::ListName() const
{
    return m_holder->Words().Files;
}

bool cReceiptListModel::CanWrite() const
{
    return !m_tools.Data.IsReadOnly();
}

QString cReceiptListModel::EmptyText() const
{
    return CanWrite() ? m_holder->Words().Empty : m_holder->Words().EmptyReadOnly;
}

bool cReceiptListModel::IsRow(int row) const
{
    return row >= 0 && row < m_items.size();
}

QString cReceiptListModel::NameAt(int row) const
{
    return IsRow(row) ? m_items.at(row).File.Name : QString();
}

int cReceiptListModel::RowOf(const QString& name) const
{
    const auto found = std::find_if(m_items.begin(), m_items.end(),
                                    [&](const cReceiptHolder::cItem& item) { return item.File.Name == name; });
    return found == m_items.end() ? -1 : static_cast<int>(found - m_items.begin());
}

QString cReceiptListModel::PathAt(int row) const
{
    return IsRow(row) && m_items.at(row).File.IsThere() ? m_items.at(row).File.Path : QString();
}

bool cReceiptListModel::IsMissing(int row) const
{
    return IsRow(row) && !m_items.at(row).File.IsThere();
}

QString cReceiptListModel::MissingText(int row) const
{
    return IsMissing(row) ? cText::Tr("Die Datei '{0}' fehlt im Ordner '{1}'. Legen Sie sie dorthin zurück, zum "
                                      "Beispiel aus dem Papierkorb, oder wählen Sie sie neu.",
                                      {NameAt(row), QDir::toNativeSeparators(cReceiptFolder(m_tools).Path())})
                          : QString();
}

QList<cReceiptSource> cReceiptListModel::Ask(const cBookTools& tools)
{
    const cReceiptHolder::cWords words = cEntryReceipts(tools, 0).Words();
    return cReceiptFolder::Sources(tools.User.ChooseFiles(words.Add, words.Filter, words.Purpose));
}

QStringList cReceiptListModel::ChooseFiles(const QString& title) const
{
    const cReceiptHolder::cWords words = m_holder->Words();
    return m_tools.User.ChooseFiles(title, words.Filter, words.Purpose);
}

void cReceiptListModel::Choose()
{
    AddFiles(ChooseFiles(m_holder->Words().Add));
}

void cReceiptListModel::Add(const QList<cReceiptSource>& sources)
{
    if (!sources.isEmpty() && m_holder->Add(sources)) {
        Reload();
        Q_EMIT ReceiptsChanged();
    }
}

void cReceiptListModel::AddFiles(const QStringList& paths)
{
    Add(cReceiptFolder::Sources(paths));
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
    const QStringList paths = ChooseFiles(m_holder->Words().ChooseAgain);
    if (!paths.isEmpty() && m_holder->Replace(NameAt(row), paths.constFirst())) {
        Reload();
        Q_EMIT ReceiptsChanged();
    }
}

void cReceiptListModel::Remove(int row)
{
    if (!IsRow(row)) {
        return;
    }
    const cReceiptFolder::cFile file = m_items.at(row).File;
    const cReceiptHolder::cWords words = m_holder->Words();
    const bool isShared = cReceipts(m_tools).CountUses(file.Name) > 1;
    const QString what = !file.IsThere() ? cText::Tr("Die Datei fehlt schon.")
        : isShared                       ? cText::Tr("Die Datei bleibt, weil sie noch an anderer Stelle hängt.")
                                         : cText::Tr("Die Datei kommt in den Papierkorb.");
    const eAnswer answer = m_tools.User.Ask({.Text = cText::Fill(words.Remove, {file.Name}) + u'\n' + what,
                                             .Title = words.RemoveTitle,
                                             .Default = eAnswer::No});
    if (answer != eAnswer::Yes || !m_holder->Detach(file.Name)) {
        return;
    }
    if (file.IsThere() && !isShared) {
        Discard(file);
    }
    Reload();
    Q_EMIT ReceiptsChanged();
}

void cReceiptListModel::Discard(const cReceiptFolder::cFile& file) const
{
    if (!m_desk.MoveToTrash(file.Path)) {
        m_tools.User.Show(
            eTone::Information,
            cText::Tr("Hier gibt es keinen Papierkorb. Die Datei '{0}' bleibt im Ordner '{1}', hängt aber "
                      "nirgends mehr.",
                      {file.Name, QDir::toNativeSeparators(cReceiptFolder(m_tools).Path())}));
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
                                    "„Speichern unter…“ kommen Sie an die Datei.",
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
    if (!isRead || file.error() != QFileDevice::NoError) {
        m_tools.User.Show(eTone::Critical, cText::Tr("Die Datei '{0}' kann nicht gelesen werden.", {NameAt(row)}));
    } else if (const QString reason = modFileWrite::Replace(target, bytes); !reason.isEmpty()) {
        m_tools.User.Show(eTone::Critical, modFileWrite::Failed(target, reason));
    }
}

int cReceiptListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_items.size());
}

QVariant cReceiptListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !IsRow(index.row())) {
        return {};
    }
    const cReceiptHolder::cItem& item = m_items.at(index.row());
    const QString size = item.File.IsThere() ? modFileSize::Text(item.File.Size, m_tools.Format) : cText::Tr("fehlt");
    switch (role) {
    case Qt::DisplayRole: return cText::Tr("{0} ({1})", {item.Text, size});
    case Qt::ToolTipRole: return item.File.IsThere() ? item.File.Name : MissingText(index.row());
    default: return {};
    }
}
