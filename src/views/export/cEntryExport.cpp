#include "views/export/cEntryExport.h"

#include "base/cProgress.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "base/modDate.h"
#include "core/cBookTools.h"
#include "core/modReceiptFolder.h"
#include "store/cDataAccess.h"
#include "views/common/modFileWrite.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

cEntryExport::eDone cEntryExport::Run(const cEntryExtract& extract, const QString& what, QDate today)
{
    const QString title = cText::Tr("Daten exportieren");
    if (extract.Rows.empty()) {
        return Refuse(cText::Tr("Die Liste enthält keine Einträge, die exportiert werden könnten."));
    }
    // Without ending: the dialog adds the one of the kind of file that is chosen there.
    const QString proposal = u"Kontorelle-%1-%2"_s.arg(modFileWrite::NameOf(what), modDate::ToIso(today));
    const QString path = m_tools.User.ChooseSavePath(title, modExport::Filter(), proposal);
    if (path.isEmpty()) {
        return eDone::GivenUp;
    }
    const std::optional<modExport::eFormat> format = modExport::FormatOf(path);
    if (!format) {
        return Refuse(
            cText::Tr("Am Ende des Dateinamens '{0}' ist nicht zu erkennen, in welchem Format exportiert werden "
                      "soll.\nMöglich sind: {1}.",
                      {QDir::toNativeSeparators(path), u'.' + modExport::Names().join(u", ."_s)}));
    }
    const eDone done = WriteFile(extract, *format, path);
    if (done == eDone::Written) {
        const QString count = QString::number(extract.Rows.size());
        const QString name = QDir::toNativeSeparators(path);
        m_tools.User.Show(eTone::Information,
                          extract.Rows.size() == 1
                              ? cText::Tr("1 Eintrag wurde nach '{0}' exportiert.", {name})
                              : cText::Tr("{0} Einträge wurden nach '{1}' exportiert.", {count, name}),
                          title);
        OfferReceipts(extract, path);
    }
    return done;
}

void cEntryExport::OfferReceipts(const cEntryExtract& extract, const QString& path)
{
    const qsizetype count = extract.Receipts().size();
    if (count == 0) {
        return;
    }
    const eAnswer answer = m_tools.User.Ask(
        {.Text = cText::Tr("An diesen Einträgen hängen Belege (Zahl der Dateien: {0}). Möchten Sie sie in den Ordner "
                           "'{1}' kopieren?",
                           {QString::number(count), QDir::toNativeSeparators(ReceiptFolder(path))}),
         .Title = cText::Tr("Daten exportieren")});
    if (answer == eAnswer::Yes) {
        (void)CopyReceipts(extract, path); // of a failure the user has been told
    }
}

QString cEntryExport::ReceiptFolder(const QString& path)
{
    const QFileInfo file(path);
    return file.absolutePath() + u'/' + file.completeBaseName() + u"-Belege"_s;
}

cEntryExport::eDone cEntryExport::CopyReceipts(const cEntryExtract& extract, const QString& path)
{
    const QString problem = modReceiptFolder::CopyTo(ReceiptFolder(path), m_tools.Data.BookPath(), extract.Receipts());
    return problem.isEmpty() ? eDone::Written : Refuse(problem);
}

cEntryExport::eDone cEntryExport::WriteFile(const cEntryExtract& extract, modExport::eFormat format,
                                            const QString& path)
{
    const modExport::cResult result = modExport::Write(format, {extract, m_tools.Format, m_progress});
    if (!result.Bytes && result.Error.isEmpty()) {
        return eDone::GivenUp;
    }
    const QString problem = result.Bytes ? modFileWrite::Export(m_tools.Data, path, *result.Bytes)
                                         : modFileWrite::Failed(path, result.Error);
    return problem.isEmpty() ? eDone::Written : Refuse(problem);
}

cEntryExport::eDone cEntryExport::Refuse(const QString& text)
{
    m_tools.User.Show(eTone::Critical, text, cText::Tr("Daten exportieren"));
    return eDone::Failed;
}
