#include "windows/receipt/cPdfFile.h"

#include "base/modModule.h"

using namespace Qt::Literals::StringLiterals;

std::optional<std::unique_ptr<cPdfFile>> cPdfFile::Open(const QString& path)
{
    using fnOpen = cPdfFile* (*)(const QString&);
    static const auto open = modModule::Find<fnOpen>(u"kontorelle-pdf.so"_s, "OpenPdf");
    if (open == nullptr) {
        return std::nullopt;
    }
    return std::unique_ptr<cPdfFile>(open(path));
}
