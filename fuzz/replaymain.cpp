// Runs saved inputs through a fuzz target, as CTest does with the seed
// corpus: each argument is a file or a folder of files.
#include "fuzzing.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        const QFileInfo given(QFile::decodeName(argv[i]));
        const QFileInfoList files = given.isDir()
            ? QDir(given.filePath()).entryInfoList(QDir::Files)
            : QFileInfoList { given };
        for (const QFileInfo &file : files) {
            QFile input(file.filePath());
            if (!input.open(QIODevice::ReadOnly))
                qFatal("cannot read %s", qPrintable(file.filePath()));
            const QByteArray bytes = input.readAll();
            LLVMFuzzerTestOneInput(
                reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs ran\n", inputs);
    return inputs > 0 ? 0 : 1;
}
