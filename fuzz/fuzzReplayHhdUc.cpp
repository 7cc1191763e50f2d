// Runs the target of fuzzHhdUc over every file of a folder, without libFuzzer.

#include <QDir>
#include <QFile>

#include <cstdint>
#include <cstdio>

// libFuzzer calls it by this name. NOLINTNEXTLINE(readability-redundant-declaration)
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv)
{
    const QDir folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString());
    int files = 0;
    for (const QFileInfo& entry : folder.entryInfoList(QDir::Files)) {
        QFile file(entry.filePath());
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray bytes = file.readAll();
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.constData()),
                                   static_cast<std::size_t>(bytes.size()));
            ++files;
        }
    }
    std::printf("%d files\n", files);
    return files == 0 ? 1 : 0;
}
