#include "views/bank/cBankLogView.h"

#include "base/cClock.h"
#include "base/cShell.h"
#include "base/cText.h"
#include "base/cUser.h"
#include "views/common/modFileWrite.h"

#include <QDate>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

cBankLogView::cBankLogView(const QString& text, const QString& forOthers, const cParts& parts)
    : m_text(text),
      m_forOthers(forOthers),
      m_parts(parts)
{
}

QString cBankLogView::Text() const
{
    return IsEmpty() ? cText::Tr("Es wurde noch keine Nachricht gesendet.") : m_text;
}

QString cBankLogView::Note() const
{
    return cText::Tr("PIN und TAN stehen nirgends in diesem Protokoll. Gespeichert und gesendet wird eine Fassung, in "
                     "der auch Anmeldename, Kontonummern, Namen und Verwendungszwecke unkenntlich sind.");
}

void cBankLogView::Save() const
{
    const QString proposal = cText::Tr("Bankprotokoll {0}.txt", {m_parts.Clock.Today().toString(u"yyyy-MM-dd"_s)});
    const QString path = m_parts.User.ChooseSavePath(
        cText::Tr("Protokoll speichern"), cText::Tr("Text|*.txt|Alle Dateien|*.*"), proposal, ePurpose::Protocol);
    if (!path.isEmpty()) {
        (void)Write(path);
    }
}

void cBankLogView::Send() const
{
    // A mail program reads the file when the mail is sent, which may be much later. The next log takes its place.
    const QString path = QDir(m_parts.Shell.DataFolder()).filePath(u"Bankprotokoll.txt"_s);
    if (!Write(path)) {
        return;
    }
    const QString file = QDir::toNativeSeparators(path);
    const bool isOpen = m_parts.Shell.OpenMail(
        {cText::Tr("Kontorelle: Protokoll einer Bankabfrage"),
         cText::Tr("Im Anhang ist das Protokoll. Was habe ich getan, und was ist geschehen?\n"), path});
    if (isOpen) {
        m_parts.User.Show(
            eTone::Information,
            cText::Tr("Ihr E-Mail-Programm öffnet einen Entwurf. Fehlt darin der Anhang, hängen Sie bitte "
                      "diese Datei an: {0}",
                      {file}));
    } else {
        m_parts.User.Show(
            eTone::Exclamation,
            cText::Tr("Es wurde kein E-Mail-Programm gefunden. Das Protokoll liegt in der Datei {0}", {file}));
    }
}

bool cBankLogView::Write(const QString& path) const
{
    const QString reason = modFileWrite::Replace(path, m_forOthers.toUtf8());
    if (!reason.isEmpty()) {
        m_parts.User.Show(eTone::Critical, modFileWrite::Failed(path, reason));
    }
    return reason.isEmpty();
}
