#pragma once

#include "views/common/modFileWrite.h"
#include "views/report/cReportFigures.h"

#include <QString>

#include <optional>

class cReportSource;
struct cBookTools;

// Writes a report into a file: as a page, or its figures as a table.
class cReportExport
{
public:
    enum class eFormat { Html, Csv, Xlsx };
    enum class eDone { Written, Failed, GivenUp };

    cReportExport(const cBookTools& tools, cReportSource& source) : m_tools(tools), m_source(source) {}

    // Lets the user choose a file, whose ending decides the format.
    eDone Run(const cReportWish& wish);

    // The kinds of files as the dialog offers them; which one a path means, and what is said of one that means none.
    [[nodiscard]] static QString Filter();
    [[nodiscard]] static std::optional<eFormat> FormatOf(const QString& path);
    [[nodiscard]] static QString NoFormat(const QString& path);

    // Writes the file and shows a message when that fails. A file that stands there already is replaced only once the
    // new one is complete.
    [[nodiscard]] eDone WriteFile(const cReportWish& wish, eFormat format, const QString& path);

private:
    [[nodiscard]] modFileWrite::cContent Content(const cReportWish& wish, eFormat format);
    [[nodiscard]] eDone Refuse(const QString& text);

    const cBookTools& m_tools;
    cReportSource& m_source;
};
