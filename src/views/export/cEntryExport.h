#pragma once

#include "views/export/modExport.h"

#include <QDate>
#include <QString>

struct cBookTools;

// Exports a list of entries: asks for the file, writes it, and says what came of it.
class cEntryExport
{
public:
    enum class eDone { Written, Failed, GivenUp };

    cEntryExport(const cBookTools& tools, cProgress& progress) : m_tools(tools), m_progress(progress) {}

    // Lets the user choose a file, whose ending decides the format. `what` and `today` make the proposed name.
    eDone Run(const cEntryExtract& extract, const QString& what, QDate today);

    // Writes the file and shows a message when that fails. A file that stands there already is replaced only once the
    // new one is complete.
    [[nodiscard]] eDone WriteFile(const cEntryExtract& extract, modExport::eFormat format, const QString& path);

    // Copies the receipts of the entries into a folder beside the exported file and shows a message when one of them is
    // not there then.
    [[nodiscard]] eDone CopyReceipts(const cEntryExtract& extract, const QString& path);
    [[nodiscard]] static QString ReceiptFolder(const QString& path); // "<name>-Belege"

private:
    void OfferReceipts(const cEntryExtract& extract, const QString& path);
    [[nodiscard]] eDone Refuse(const QString& text);

    const cBookTools& m_tools;
    cProgress& m_progress;
};
