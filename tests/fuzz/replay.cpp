#include "fuzz.h"

#include <QDir>
#include <QFile>

/** Takes each file of a folder. A folder without any is an error: nothing would be tested. */
int main(int argc, char** argv)
{
    QDir const folder(argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString("there is no folder"));
    QStringList const names = folder.entryList(QDir::Files);
    for (QString const& name : names)
    {
        QFile file(folder.filePath(name));
        if (!file.open(QIODevice::ReadOnly))
        {
            std::fprintf(stderr, "%s: %s\n", qPrintable(file.fileName()), qPrintable(file.errorString()));
            return 1;
        }
        // Before it is taken: whoever looks for the cause of a crash finds the name.
        std::printf("%s\n", qPrintable(name));
        std::fflush(stdout);
        QByteArray const bytes = file.readAll();
        LLVMFuzzerTestOneInput(reinterpret_cast<std::uint8_t const*>(bytes.constData()), std::size_t(bytes.size()));
    }
    if (names.isEmpty())
        std::fprintf(stderr, "no files in %s\n", qPrintable(folder.path()));
    return names.isEmpty() ? 1 : 0;
}
