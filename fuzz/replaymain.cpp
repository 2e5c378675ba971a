// Runs saved inputs through a fuzz target, as CTest does with the seed
// corpus: each argument is a file or a folder of files.
#include "fuzzing.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

int main(int argc, char **argv)
{
    LLVMFuzzerInitialize(&argc, &argv);
    int inputs = 0;
    for (int i = 1; i < argc; ++i) {
        QStringList files { QFile::decodeName(argv[i]) };
        if (QFileInfo(files.first()).isDir()) {
            files.clear();
            QDirIterator it(QFile::decodeName(argv[i]), QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext())
                files << it.next();
            files.sort();
        }
        for (const QString &name : qAsConst(files)) {
            QFile file(name);
            if (!file.open(QIODevice::ReadOnly)) {
                std::fprintf(stderr, "cannot read %s\n", qPrintable(name));
                return 1;
            }
            const QByteArray input = file.readAll();
            LLVMFuzzerTestOneInput(
                reinterpret_cast<const uint8_t *>(input.constData()), size_t(input.size()));
            ++inputs;
        }
    }
    std::printf("%d inputs ran\n", inputs);
    return inputs > 0 ? 0 : 1;
}
