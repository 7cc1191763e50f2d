#pragma once

#include <QByteArray>
#include <QMap>
#include <QRandomGenerator>
#include <QString>

#include <vector>

// What SQLite asked of the files of a book, in its order.
struct cDiskCall
{
    enum class eKind { Create, Write, Cut, Sync, Remove };

    eKind Kind = eKind::Sync;
    QString Path;
    qint64 Offset = 0;    // of a write, or the new size of a file that is cut
    QByteArray Bytes;     // of a write
    bool IsSynced = true; // of a removal: the folder as well
};

// A layer under the program's own that writes down what reaches the system, so that a power cut can be played at every
// moment: a disk keeps what was synced, and of the rest whatever it likes.
namespace modPowerVfs {

// From now on every connection that is opened goes through the layer.
void Install();

// Empties the list, and begins to write down. Files that are there now are on the disk.
void Start();
[[nodiscard]] std::vector<cDiskCall> Calls();

} // namespace modPowerVfs

// The disk below: what would be found after a power cut.
class cPowerDisk
{
public:
    using cFiles = QMap<QString, QByteArray>; // content by path

    explicit cPowerDisk(const cFiles& synced);

    // Takes the next call.
    void Take(const cDiskCall& call);
    // What is left when the power goes now: of each write since the last sync all, nothing, or a part.
    [[nodiscard]] cFiles Cut(QRandomGenerator& random) const;

private:
    struct cFile
    {
        QByteArray Synced{};
        std::vector<cDiskCall> Pending{};
        bool IsEntrySynced = false; // the folder knows of it for sure
        bool IsRemoved = false;     // but the folder may still know of it
    };

    QMap<QString, cFile> m_files;
};
