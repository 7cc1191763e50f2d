#include "windows/receipt/cPreviewReader.h"

#include "views/receipt/cReceiptFolder.h"
#include "windows/receipt/cPdfFile.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double mostPixels = 16e6; // of a preview
constexpr int mostMegabytes = 320;  // while a picture is unpacked: 80 million pixels

// The size within `most` that keeps the form, and never more pixels than a preview may have.
QSizeF Fitting(QSizeF size, QSize most)
{
    size.scale(most, Qt::KeepAspectRatio);
    const double pixels = size.width() * size.height();
    return pixels > mostPixels ? size * std::sqrt(mostPixels / pixels) : size;
}

// Makes one picture after the other, and keeps the file of the last one open.
class cPainter
{
public:
    [[nodiscard]] cPreview Make(const cPreviewReader::cWish& wish);

    std::atomic_bool Unwanted = false; // what is being made

private:
    struct cOpened
    {
        QString Path;
        qint64 Size = -1; // as it was read
        QDateTime Modified;
        std::unique_ptr<cPdfFile> Document;
        QImage Picture;
    };

    [[nodiscard]] cPreview MakePage(const cPreviewReader::cWish& wish);
    [[nodiscard]] cPreview MakePicture(const cPreviewReader::cWish& wish);

    cOpened m_opened;
};

// Opening a file cannot be interrupted. Threads that were still at it when their window went are waited for at the end
// of the program, where they have not ended long before: before the application goes, because what they work with, the
// formats of pictures and the module for PDF, may go with it.
class cLeftBehind
{
public:
    [[nodiscard]] static cLeftBehind& Instance()
    {
        static cLeftBehind instance;
        return instance;
    }
    cLeftBehind(const cLeftBehind&) = delete;
    cLeftBehind& operator=(const cLeftBehind&) = delete;
    ~cLeftBehind() { Join(); }

    void Take(std::thread thread, std::shared_ptr<const std::atomic_bool> hasEnded)
    {
        m_threads.push_back({std::move(thread), std::move(hasEnded)});
        std::erase_if(m_threads, [](cThread& each) {
            const bool hasThreadEnded = *each.HasEnded;
            if (hasThreadEnded) {
                each.Thread.join();
            }
            return hasThreadEnded;
        });
    }

private:
    struct cThread
    {
        std::thread Thread;
        std::shared_ptr<const std::atomic_bool> HasEnded;
    };

    cLeftBehind()
    {
        qAddPostRoutine([] { Instance().Join(); });
    }

    void Join()
    {
        for (cThread& each : m_threads) {
            each.Thread.join();
        }
        m_threads.clear();
    }

    std::vector<cThread> m_threads;
};

cPreview cPainter::Make(const cPreviewReader::cWish& wish)
{
    const QFileInfo file(wish.Path);
    const QDateTime modified = file.lastModified();
    if (m_opened.Path != wish.Path || m_opened.Size != file.size() || m_opened.Modified != modified) {
        m_opened = {wish.Path, file.size(), modified, {}, {}};
    }
    if (file.size() > cReceiptFolder::MostBytes) {
        return {cPreview::eState::TooLarge, {}, 0, 1};
    }
    return wish.Path.endsWith(u".pdf"_s, Qt::CaseInsensitive) ? MakePage(wish) : MakePicture(wish);
}

cPreview cPainter::MakePage(const cPreviewReader::cWish& wish)
{
    if (m_opened.Document == nullptr) {
        auto opened = cPdfFile::Open(wish.Path);
        if (!opened) {
            return {cPreview::eState::Unknown, {}, 0, 1};
        }
        m_opened.Document = *std::move(opened);
    }
    const cPdfFile* const document = m_opened.Document.get();
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
    QImage image = document->Paint(number, dots, Unwanted);
    const auto state = image.isNull() ? cPreview::eState::Damaged : cPreview::eState::Shown;
    return {state, std::move(image), number, pages};
}

cPreview cPainter::MakePicture(const cPreviewReader::cWish& wish)
{
    if (m_opened.Picture.isNull()) {
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
        m_opened.Picture = reader.read();
        if (m_opened.Picture.isNull()) {
            const bool isLarge = size.width() * size.height() * 4 > mostMegabytes * 1e6;
            return {isLarge ? cPreview::eState::TooLarge : cPreview::eState::Damaged, {}, 0, 1};
        }
    }
    const QSize size = Fitting(m_opened.Picture.size(), wish.Size).toSize().expandedTo({1, 1});
    return {cPreview::eState::Shown, m_opened.Picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation), 0,
            1};
}

} // namespace

// Outlives the reader while its thread is at work.
class cPreviewReader::cWorker : public std::enable_shared_from_this<cWorker>
{
public:
    explicit cWorker(cPreviewReader& reader) : m_reader(&reader) {}

    void Wish(std::optional<cWish> wish);
    void Leave(); // the reader goes

private:
    void Work();
    void Answer(const cPreview& preview, int number);

    cPainter m_painter; // of the thread alone, but for its flag
    std::mutex m_mutex;
    std::condition_variable m_wake;
    cPreviewReader* m_reader; // these three under the mutex
    std::optional<cWish> m_wish;
    int m_number = 0;     // of the newest wish
    std::thread m_thread; // started by the first wish
    std::shared_ptr<std::atomic_bool> m_hasEnded = std::make_shared<std::atomic_bool>(false);
};

void cPreviewReader::cWorker::Wish(std::optional<cWish> wish)
{
    const bool isWork = wish.has_value();
    {
        const std::lock_guard lock(m_mutex);
        m_wish = std::move(wish);
        ++m_number;
        m_painter.Unwanted = true;
    }
    if (isWork && !m_thread.joinable()) {
        m_thread = std::thread([self = shared_from_this(), hasEnded = m_hasEnded]() mutable {
            self->Work();
            self.reset();
            *hasEnded = true;
        });
    }
    m_wake.notify_one();
}

void cPreviewReader::cWorker::Leave()
{
    {
        const std::lock_guard lock(m_mutex);
        m_reader = nullptr;
        m_painter.Unwanted = true;
    }
    m_wake.notify_one();
    if (m_thread.joinable()) {
        cLeftBehind::Instance().Take(std::move(m_thread), m_hasEnded);
    }
}

void cPreviewReader::cWorker::Work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [this] { return m_reader == nullptr || m_wish; });
        if (m_reader == nullptr) {
            return;
        }
        const cWish wish = *m_wish;
        const int number = m_number;
        m_wish.reset();
        m_painter.Unwanted = false;
        lock.unlock();
        const cPreview preview = m_painter.Make(wish);
        lock.lock();
        if (m_reader != nullptr && number == m_number) {
            Answer(preview, number);
        }
    }
}

// A wish that came after the picture was made makes it old as well.
void cPreviewReader::cWorker::Answer(const cPreview& preview, int number)
{
    const auto tell = [self = shared_from_this(), preview, number] {
        if (number == self->m_number && self->m_reader != nullptr) {
            Q_EMIT self->m_reader->Done(preview);
        }
    };
    QMetaObject::invokeMethod(m_reader, tell, Qt::QueuedConnection);
}

cPreviewReader::cPreviewReader(QObject* parent) : QObject(parent), m_worker(std::make_shared<cWorker>(*this))
{
    qRegisterMetaType<cPreview>();
    QImageReader::setAllocationLimit(mostMegabytes);
}

cPreviewReader::~cPreviewReader()
{
    m_worker->Leave();
}

void cPreviewReader::Read(const cWish& wish)
{
    m_worker->Wish(wish);
}

void cPreviewReader::Forget()
{
    m_worker->Wish(std::nullopt);
}
