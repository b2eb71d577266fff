// Runs a fuzz target once for each file of the folders given, where libFuzzer is not linked.
#include <QByteArray>
#include <QDirIterator>
#include <QFile>
#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

int ReplayFolder(const QString& folder)
{
    int count = 0;
    QDirIterator files(folder, QDir::Files);
    while (files.hasNext()) {
        QFile file(files.next());
        if (file.open(QIODevice::ReadOnly)) {
            const QByteArray content = file.readAll();
            LLVMFuzzerTestOneInput(
                reinterpret_cast<const std::uint8_t*>(content.constData()), static_cast<std::size_t>(content.size()));
            ++count;
        }
    }
    return count;
}

} // namespace

int main(int argc, char** argv)
{
    int count = 0;
    for (int i = 1; i < argc; ++i) {
        count += ReplayFolder(QString::fromLocal8Bit(argv[i]));
    }
    std::printf("%d inputs replayed\n", count);
    return count > 0 ? 0 : 1;
}
