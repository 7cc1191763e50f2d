#include "windows/receipt/cPdfFile.h"

#include <QVariant>

#include <poppler-qt6.h>

#include <utility>

namespace {

bool IsStale(const QVariant& flag)
{
    return static_cast<const std::atomic_bool*>(flag.value<const void*>())->load();
}

class cPopplerFile final : public cPdfFile
{
public:
    explicit cPopplerFile(std::unique_ptr<Poppler::Document> document) : m_document(std::move(document))
    {
        if (!m_document->isLocked()) {
            m_document->setRenderHint(Poppler::Document::Antialiasing);
            m_document->setRenderHint(Poppler::Document::TextAntialiasing);
        }
    }

    [[nodiscard]] bool IsLocked() const override { return m_document->isLocked(); }
    [[nodiscard]] int Pages() const override { return m_document->numPages(); }

    [[nodiscard]] QSizeF SizeOf(int page) const override
    {
        const std::unique_ptr<Poppler::Page> found = m_document->page(page);
        return found == nullptr ? QSizeF() : found->pageSizeF();
    }

    [[nodiscard]] QImage Paint(int page, double dotsPerInch, const std::atomic_bool& isStale) const override
    {
        const std::unique_ptr<Poppler::Page> found = m_document->page(page);
        return found == nullptr
            ? QImage()
            : found->renderToImage(dotsPerInch, dotsPerInch, -1, -1, -1, -1, Poppler::Page::Rotate0, nullptr, nullptr,
                                   IsStale, QVariant::fromValue(static_cast<const void*>(&isStale)));
    }

private:
    std::unique_ptr<Poppler::Document> m_document;
};

} // namespace

// What cPdfFile looks for in this module; whoever calls it owns the file.
extern "C" Q_DECL_EXPORT cPdfFile* OpenPdf(const QString& path);

cPdfFile* OpenPdf(const QString& path)
{
    std::unique_ptr<Poppler::Document> document = Poppler::Document::load(path);
    return document == nullptr ? nullptr : new cPopplerFile(std::move(document));
}
