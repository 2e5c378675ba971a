// Runs saved inputs through a fuzz target, as CTest does with the seed
// corpus: each argument is a file or a folder of files.
#include "fuzzing.h"

#include <QDir>
#include <QFile>

#include <cstdio>

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        const QDir folder(QFile::decodeName(argv[i]));
        const QStringList files
            = folder.exists() ? folder.entryList(QDir::Files) : QStringList { folder.path() };
        for (const QString &file : files) {
            const QString name = folder.exists() ? folder.filePath(file) : file;
            QFile input(name);
            if (!input.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(name));
                return 1;
            }
            const QByteArray bytes = input.readAll();
            LLVMFuzzerTestOneInput(
                reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs ran\n", inputs);
    return inputs > 0 ? 0 : 1;
}
