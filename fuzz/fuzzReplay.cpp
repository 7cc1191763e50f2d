// Runs the readers over every file of the corpus, or over one: fuzzReplay FOLDER, fuzzReplay FORMAT FILE.

#include "modFuzz.h"

#include <QDir>
#include <QFile>

#include <cstdio>

namespace {

// False when something is wrong with what came out.
bool Replay(const modFuzz::cTarget& target, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s cannot be read\n", qUtf8Printable(path));
        return false;
    }
    const QByteArray bytes = file.readAll();
    bool isSound = true;
    for (int set = 0; set < modFuzz::optionSets; ++set) {
        const QString fault = modFuzz::Fault(target, bytes, set);
        if (!fault.isEmpty()) {
            std::fprintf(stderr, "%s, options %d: %s\n", qUtf8Printable(path), set, qUtf8Printable(fault));
            isSound = false;
        }
    }
    return isSound;
}

// The number of files with faults. An empty corpus is one as well.
int ReplayAll(const QDir& corpus)
{
    int files = 0;
    int faults = 0;
    for (const QString& name : corpus.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        const modFuzz::cTarget* const target = modFuzz::Find(name);
        if (target == nullptr) {
            std::fprintf(stderr, "no reader for the folder %s\n", qUtf8Printable(name));
            return 1;
        }
        for (const QFileInfo& file : QDir(corpus.filePath(name)).entryInfoList(QDir::Files)) {
            ++files;
            faults += Replay(*target, file.filePath()) ? 0 : 1;
        }
    }
    std::printf("%d files, %d with faults\n", files, faults);
    return files == 0 ? 1 : faults;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3) {
        const modFuzz::cTarget* const target = modFuzz::Find(QString::fromLocal8Bit(argv[1]));
        return target != nullptr && Replay(*target, QString::fromLocal8Bit(argv[2])) ? 0 : 1;
    }
    return argc == 2 && ReplayAll(QDir(QString::fromLocal8Bit(argv[1]))) == 0 ? 0 : 1;
}
