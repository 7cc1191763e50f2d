#pragma once

#include <QImage>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>

// An open PDF file, whose pages become pictures. What reads it is a module beside the program, loaded with the first
// such file: it brings thirty libraries with it, which would take a good part of every start.
class cPdfFile
{
public:
    cPdfFile() = default;
    cPdfFile(const cPdfFile&) = delete;
    cPdfFile& operator=(const cPdfFile&) = delete;
    virtual ~cPdfFile() = default;

    // Null for a file that is damaged or no PDF. None when the module is not there.
    [[nodiscard]] static std::optional<std::unique_ptr<cPdfFile>> Open(const QString& path);

    [[nodiscard]] virtual bool IsLocked() const = 0; // by a password
    [[nodiscard]] virtual int Pages() const = 0;
    [[nodiscard]] virtual QSizeF SizeOf(int page) const = 0; // in points; nothing for a page that cannot be read
    // Null when it cannot be painted, or is not wanted any more.
    [[nodiscard]] virtual QImage Paint(int page, double dotsPerInch, const std::atomic_bool& isStale) const = 0;
};
