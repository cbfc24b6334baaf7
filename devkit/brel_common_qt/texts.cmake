# What needs no receiver: texts, versions, timestamps, USB drives. Included where the library brel_common_qt is made.
find_path(MELVOX_GEOGRAPHICLIB_INCLUDE_DIR GeographicLib/DMS.hpp)
find_library(MELVOX_GEOGRAPHICLIB_LIBRARY NAMES GeographicLib Geographic)
if(NOT MELVOX_GEOGRAPHICLIB_INCLUDE_DIR OR NOT MELVOX_GEOGRAPHICLIB_LIBRARY)
    message(FATAL_ERROR "GeographicLib was not found; on Debian install libgeographiclib-dev")
endif()

target_sources(brel_common_qt PRIVATE
    kitFormat.h
    melvoxNames.cpp
    textHelpers.cpp
    timestamps.cpp
    kitUsb.h
    systemMounts.cpp
    usbDriveManager.cpp ${PROJECT_SOURCE_DIR}/include/brel_common_qt/usbDriveManager.h
    version.cpp
)
target_include_directories(brel_common_qt SYSTEM PRIVATE ${MELVOX_GEOGRAPHICLIB_INCLUDE_DIR})
target_link_libraries(brel_common_qt PRIVATE ${MELVOX_GEOGRAPHICLIB_LIBRARY})
