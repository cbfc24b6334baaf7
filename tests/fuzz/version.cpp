#include "fuzz.h"

#include "brel_common_qt/version.h"

#include <QString>

using namespace brel_common_qt;
using melvox_fuzz::hold;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    std::vector<unsigned int> version;
    if (!parseVersion(std::string(reinterpret_cast<char const*>(data), size), version))
    {
        hold(version.empty(), "a text that is no version leaves it as it was");
        return 0;
    }
    hold(!version.empty() && version.size() <= 8, "a version has one to eight parts");
    QString text;
    std::vector<unsigned int> again;
    hold(buildVersion(text, version), "a version has a text");
    hold(parseVersion(text.toStdString(), again) && again == version, "which is read as the same version");
    hold(versionCompare(version, again) == 0, "and compares equal");
    return 0;
}
