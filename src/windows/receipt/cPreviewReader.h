#pragma once

#include <QImage>
#include <QObject>
#include <QSize>
#include <QString>

#include <memory>

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
    ~cPreviewReader() override; // gives up what is being read, and does not wait for it

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
    class cWorker;

    std::shared_ptr<cWorker> m_worker; // with the thread that it works in
};
