#pragma once

#include "views/export/modExport.h"

#include <QDate>
#include <QString>

class cUser;

// Exports a list of entries: asks for the file, writes it, and says what came of it.
class cEntryExport
{
public:
    enum class eDone { Written, Failed, GivenUp };

    cEntryExport(cUser& user, const cAmountFormat& format, cProgress& progress)
        : m_user(user),
          m_format(format),
          m_progress(progress)
    {
    }

    // Lets the user choose a file, whose ending decides the format. `today` becomes part of the proposed name.
    eDone Run(const cEntryExtract& extract, QDate today);

    // Writes the file and shows a message when that fails. A file that stands there already is replaced only once the
    // new one is complete.
    [[nodiscard]] eDone WriteFile(const cEntryExtract& extract, modExport::eFormat format, const QString& path);

private:
    [[nodiscard]] eDone Refuse(const QString& text);

    cUser& m_user;
    const cAmountFormat& m_format;
    cProgress& m_progress;
};
