#include "windows/receipt/cPreviewReader.h"

#include "windows/receipt/cPdfFile.h"

#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 mostBytes = 200'000'000; // of a file
constexpr double mostPixels = 16e6;       // of a preview
constexpr int mostMegabytes = 320;        // while a picture is unpacked: 80 million pixels

// The size within `most` that keeps the form, and never more pixels than a preview may have.
QSizeF Fitting(QSizeF size, QSize most)
{
    size.scale(most, Qt::KeepAspectRatio);
    const double pixels = size.width() * size.height();
    return pixels > mostPixels ? size * std::sqrt(mostPixels / pixels) : size;
}

} // namespace

struct cPreviewReader::cOpened
{
    QString Path;
    std::unique_ptr<cPdfFile> Document;
    QImage Picture;
};

cPreviewReader::cPreviewReader(QObject* parent) : QObject(parent), m_opened(std::make_unique<cOpened>())
{
    qRegisterMetaType<cPreview>();
    QImageReader::setAllocationLimit(mostMegabytes);
}

cPreviewReader::~cPreviewReader()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        m_isStale = true;
    }
    m_wake.notify_one();
    if (m_worker.joinable()) {
        m_worker.join();
    }
}

void cPreviewReader::Read(const cWish& wish)
{
    {
        const std::lock_guard lock(m_mutex);
        m_wish = wish;
        ++m_number;
        m_isStale = true;
    }
    if (!m_worker.joinable()) {
        m_worker = std::thread([this] { Work(); });
    }
    m_wake.notify_one();
}

void cPreviewReader::Forget()
{
    const std::lock_guard lock(m_mutex);
    m_wish.reset();
    ++m_number;
    m_isStale = true;
}

void cPreviewReader::Work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_isEnding || m_wish; });
        if (m_isEnding) {
            return;
        }
        const cWish wish = *m_wish;
        const int number = m_number;
        m_wish.reset();
        m_isStale = false;
        lock.unlock();
        const cPreview preview = Make(wish);
        if (!m_isStale) {
            QMetaObject::invokeMethod(
                this, [this, preview, number] { Answer(preview, number); }, Qt::QueuedConnection);
        }
        lock.lock();
    }
}

// A wish that came after the picture was made makes it old as well.
void cPreviewReader::Answer(const cPreview& preview, int number)
{
    if (number == m_number) {
        Q_EMIT Done(preview);
    }
}

cPreview cPreviewReader::Make(const cWish& wish)
{
    if (m_opened->Path != wish.Path) {
        *m_opened = {wish.Path, {}, {}};
    }
    if (QFileInfo(wish.Path).size() > mostBytes) {
        return {cPreview::eState::TooLarge, {}, 0, 1};
    }
    return wish.Path.endsWith(u".pdf"_s, Qt::CaseInsensitive) ? MakePage(wish) : MakePicture(wish);
}

cPreview cPreviewReader::MakePage(const cWish& wish)
{
    cPdfFile* document = m_opened->Document.get();
    if (document == nullptr) {
        auto opened = cPdfFile::Open(wish.Path);
        if (!opened) {
            return {cPreview::eState::Unknown, {}, 0, 1};
        }
        m_opened->Document = *std::move(opened);
        document = m_opened->Document.get();
    }
    if (document == nullptr) {
        return {cPreview::eState::Damaged, {}, 0, 1};
    }
    if (document->IsLocked()) {
        return {cPreview::eState::Locked, {}, 0, 1};
    }
    const int pages = document->Pages();
    const int number = std::clamp(wish.Page, 0, std::max(0, pages - 1));
    const QSizeF size = document->SizeOf(number);
    if (size.width() < 1 || size.height() < 1) {
        return {cPreview::eState::Damaged, {}, number, std::max(1, pages)};
    }
    constexpr double pointsPerInch = 72;
    const double dots = Fitting(size, wish.Size).width() / size.width() * pointsPerInch;
    QImage image = document->Paint(number, dots, m_isStale);
    const auto state = image.isNull() ? cPreview::eState::Damaged : cPreview::eState::Shown;
    return {state, std::move(image), number, pages};
}

cPreview cPreviewReader::MakePicture(const cWish& wish)
{
    if (m_opened->Picture.isNull()) {
        QImageReader reader(wish.Path);
        reader.setDecideFormatFromContent(true);
        reader.setAutoTransform(true); // cameras lie on their side
        if (!reader.canRead()) {
            return {cPreview::eState::Unknown, {}, 0, 1};
        }
        const QSizeF size = reader.size();
        if (size.width() * size.height() > mostPixels) {
            reader.setScaledSize(Fitting(size, reader.size()).toSize());
        }
        m_opened->Picture = reader.read();
        if (m_opened->Picture.isNull()) {
            const bool isLarge = size.width() * size.height() * 4 > mostMegabytes * 1e6;
            return {isLarge ? cPreview::eState::TooLarge : cPreview::eState::Damaged, {}, 0, 1};
        }
    }
    const QSize size = Fitting(m_opened->Picture.size(), wish.Size).toSize().expandedTo({1, 1});
    return {cPreview::eState::Shown, m_opened->Picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), 0,
            1};
}
