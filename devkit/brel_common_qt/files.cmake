# Files on drives: the scanner, and what it finds firmware by. Included where the library brel_common_qt is made.
target_sources(brel_common_qt PRIVATE
    fileScanner.cpp ${headers}/fileScanner.h
    firmwareScan.cpp firmwareScan.h
    scanStop.h
)
target_link_libraries(brel_common_qt PRIVATE melvox_firmware_file)
