#include "fuzz.h"

#include "brel_common_qt/melvoxFirmware.h"
#include "firmware/firmwareFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

using melvox_firmware::packageReader_t;
using melvox_fuzz::hold;

namespace
{

int const PRODUCT = 8;
std::size_t const SCANNED_OF = 16;

/** The components that are found when the file comes in pieces of this size; none in one that is damaged. */
std::vector<melvox_firmware::part_t> partsOf(char const* bytes, std::size_t size, std::size_t piece)
{
    packageReader_t reader;
    bool good = true;
    for (std::size_t i = 0; i < size && good; i += piece)
        good = reader.feed(bytes + i, std::min(piece, size - i));
    return good && reader.finish() ? reader.parts() : std::vector<melvox_firmware::part_t>();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    static QTemporaryDir const folder;
    static QString const path = folder.filePath("package.srec");
    char const* const bytes = reinterpret_cast<char const*>(data);
    std::vector<melvox_firmware::part_t> const parts = partsOf(bytes, size, size + 1);
    for (std::size_t piece : {std::size_t(1), std::size_t(7), std::size_t(64)})
    {
        std::vector<melvox_firmware::part_t> const others = partsOf(bytes, size, piece);
        hold(others.size() == parts.size(), "a package is the same however it is cut");
        for (std::size_t i = 0; i < parts.size(); ++i)
            hold(others[i].size == parts[i].size && others[i].version == parts[i].version, "and so are its components");
    }

    // Most input is damaged, and a file costs more than all the rest: of those only some are scanned.
    if (parts.empty() && size % SCANNED_OF != 0)
        return 0;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes, qint64(size)) != qint64(size))
        std::abort();
    file.close();
    QList<brel_common_qt::melvoxFirmwareScanRecord_t> records;
    brel_common_qt::melvoxFirmwareScanFile(path, records, PRODUCT);
    hold(std::size_t(records.size()) == parts.size(), "a scan finds what is in the file");
    return 0;
}
