#include "melvox_ui/melvoxUiFirmwarePackage.h"

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

melvoxUiFirmwarePackage_t::melvoxUiFirmwarePackage_t(QFileInfo const& fileInfo)
    : scanFile_t(fileInfo), name(fileInfo.fileName())
{
}

melvoxUiFirmwarePackage_t::~melvoxUiFirmwarePackage_t()
{
}

} // namespace brel_common_qt_gui
