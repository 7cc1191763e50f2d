#include "windows/receipt/cPdfFile.h"

#include <QCoreApplication>
#include <QLibrary>

using namespace Qt::Literals::StringLiterals;

namespace {

using fnOpen = cPdfFile* (*)(const QString&);

// Beside the program where it is built, in a folder of its own where it is installed.
fnOpen FindOpen()
{
    for (const QString& folder : {u"/"_s, u"/" APP_MODULES "/"_s}) {
        QLibrary module(QCoreApplication::applicationDirPath() + folder + u"kontorelle-pdf.so"_s);
        if (const QFunctionPointer found = module.resolve("OpenPdf")) {
            return reinterpret_cast<fnOpen>(found); // the one form in which a module gives its functions
        }
    }
    return nullptr;
}

} // namespace

std::optional<std::unique_ptr<cPdfFile>> cPdfFile::Open(const QString& path)
{
    static const fnOpen open = FindOpen();
    if (open == nullptr) {
        return std::nullopt;
    }
    return std::unique_ptr<cPdfFile>(open(path));
}
