#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

// A page of a receipt as a picture.
struct cPreview
{
    enum class eState { Shown, Unknown, Damaged, TooLarge, Locked };

    eState State = eState::Unknown;
    QImage Image;
    int Page = 0; // from 0
    int Pages = 1;
};
Q_DECLARE_METATYPE(cPreview)

// Makes previews beside the window: receipts come from anywhere, so a file that takes long must not keep the window
// from answering, and none may ask for more memory than a page on the screen needs. Only the newest wish counts.
class cPreviewReader final : public QObject
{
    Q_OBJECT

public:
    explicit cPreviewReader(QObject* parent = nullptr);
    cPreviewReader(const cPreviewReader&) = delete;
    cPreviewReader& operator=(const cPreviewReader&) = delete;
    ~cPreviewReader() override; // gives up what is being read

    struct cWish
    {
        QString Path;
        int Page = 0;
        QSize Size; // in pixels of the screen; the picture fits into it
    };
    void Read(const cWish& wish); // the answer comes as Done, unless another wish follows
    void Forget();                // no answer is wanted any more

Q_SIGNALS:
    void Done(const cPreview& preview);

private:
    struct cOpened; // the file of the last wish

    void Work();
    [[nodiscard]] cPreview Make(const cWish& wish);
    [[nodiscard]] cPreview MakePage(const cWish& wish);
    [[nodiscard]] cPreview MakePicture(const cWish& wish);
    void Answer(const cPreview& preview, int number);

    std::unique_ptr<cOpened> m_opened; // of the worker alone
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::optional<cWish> m_wish; // these three under the mutex
    int m_number = 0;            // of the newest wish
    bool m_isEnding = false;
    std::atomic_bool m_isStale = false; // what is being made is wanted no more
    std::thread m_worker;               // started by the first wish
};
