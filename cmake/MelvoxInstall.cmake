# What an installation consists of, and where it lies. Builds for different Qt versions stand side by side: what is no
# file of Qt's own folders bears the Qt version in its name, or lies in a folder that does.
#   library        the pages, and their texts in other languages
#   dev            what a host is built with: headers, declarations, CMake package, pkg-config and qmake files
#   kit-libraries  the declared libraries made true. They keep the maker's names, and so lie where they hide no other.
#   kit            the kit's programs, and what a host on the kit is built with
if(CMAKE_LIBRARY_ARCHITECTURE AND NOT DEFINED CMAKE_INSTALL_LIBDIR)
    # Where Debian has libraries, and where its Qt looks for plug-ins and qmake features, also below /usr/local. Said before
    # Qt is looked for, which would say otherwise.
    set(CMAKE_INSTALL_LIBDIR lib/${CMAKE_LIBRARY_ARCHITECTURE} CACHE PATH "Libraries, below the prefix")
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(MELVOX_UI_NAME melvox_ui_qt${MELVOX_QT})
set(MELVOX_KIT_NAME melvox_kit_qt${MELVOX_QT})
set(MELVOX_UI_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/${MELVOX_UI_NAME})
set(MELVOX_KIT_INCLUDE_DIR ${CMAKE_INSTALL_INCLUDEDIR}/${MELVOX_KIT_NAME})
set(MELVOX_KIT_DIR ${CMAKE_INSTALL_LIBDIR}/${MELVOX_KIT_NAME})
set(MELVOX_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/${MELVOX_UI_NAME})
set(MELVOX_PKGCONFIG_DIR ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(MELVOX_QMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/qt${MELVOX_QT}/mkspecs/features)
set(MELVOX_DESIGNER_DIR ${CMAKE_INSTALL_LIBDIR}/qt${MELVOX_QT}/plugins/designer)
set(MELVOX_TRANSLATIONS_DIR ${CMAKE_INSTALL_DATADIR}/${MELVOX_UI_NAME}/translations)

# Until 1.0.0 every step of the second number may break hosts; docs/releasing.md.
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(MELVOX_SOVERSION 0.${PROJECT_VERSION_MINOR})
    set(MELVOX_COMPATIBILITY SameMinorVersion)
else()
    set(MELVOX_SOVERSION ${PROJECT_VERSION_MAJOR})
    set(MELVOX_COMPATIBILITY SameMajorVersion)
endif()

# melvox_install_kit_library(target...): libraries of the kit, which find one another beside themselves.
function(melvox_install_kit_library)
    set_target_properties(${ARGN} PROPERTIES INSTALL_RPATH "$ORIGIN")
    install(TARGETS ${ARGN} EXPORT melvox_kit LIBRARY DESTINATION ${MELVOX_KIT_DIR} COMPONENT kit-libraries)
endfunction()

# melvox_install_kit_program(target): the program, and a name for it on the path of programs that tells its Qt.
function(melvox_install_kit_program target)
    file(RELATIVE_PATH up /${MELVOX_KIT_DIR}/bin /${CMAKE_INSTALL_LIBDIR})
    set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN/..;$ORIGIN/${up}")
    install(TARGETS ${target} RUNTIME DESTINATION ${MELVOX_KIT_DIR}/bin COMPONENT kit)
    file(RELATIVE_PATH program /${CMAKE_INSTALL_BINDIR} /${MELVOX_KIT_DIR}/bin/${target})
    set(link ${CMAKE_BINARY_DIR}/links/${target}_qt${MELVOX_QT})
    file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/links)
    file(CREATE_LINK ${program} ${link} SYMBOLIC)
    install(PROGRAMS ${link} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT kit)
endfunction()

# melvox_install_configured(TEMPLATE NAME DESTINATION COMPONENT): a file that names folders and versions.
function(melvox_install_configured template name destination component)
    configure_file(${PROJECT_SOURCE_DIR}/cmake/${template} ${CMAKE_BINARY_DIR}/package/${name} @ONLY)
    install(FILES ${CMAKE_BINARY_DIR}/package/${name} DESTINATION ${destination} COMPONENT ${component})
endfunction()

function(melvox_install_headers)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/melvox_ui DESTINATION ${MELVOX_UI_INCLUDE_DIR} COMPONENT dev)
    if(NOT MELVOX_PLATFORM_DIR)
        foreach(declared brel_common_qt brel_common_qt_gui qdconfig)
            install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/${declared} DESTINATION ${MELVOX_UI_INCLUDE_DIR}
                COMPONENT dev)
        endforeach()
        install(DIRECTORY ${PROJECT_SOURCE_DIR}/devkit/link DESTINATION ${MELVOX_KIT_INCLUDE_DIR} COMPONENT kit
            FILES_MATCHING PATTERN "*.h")
        install(FILES ${PROJECT_SOURCE_DIR}/devkit/brel_common_qt/kitPort.h
            ${PROJECT_SOURCE_DIR}/devkit/brel_common_qt/kitUsb.h
            DESTINATION ${MELVOX_KIT_INCLUDE_DIR}/brel_common_qt COMPONENT kit)
    endif()
endfunction()

function(melvox_install_cmake_package)
    configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/melvox_uiConfig.cmake.in
        ${CMAKE_BINARY_DIR}/package/melvox_uiConfig.cmake INSTALL_DESTINATION ${MELVOX_CMAKE_DIR})
    write_basic_package_version_file(${CMAKE_BINARY_DIR}/package/melvox_uiVersion.cmake
        COMPATIBILITY ${MELVOX_COMPATIBILITY})
    install(FILES ${CMAKE_BINARY_DIR}/package/melvox_uiConfig.cmake ${CMAKE_BINARY_DIR}/package/melvox_uiVersion.cmake
        DESTINATION ${MELVOX_CMAKE_DIR} COMPONENT dev)
    melvox_install_configured(melvox_uiConfigVersion.cmake.in melvox_uiConfigVersion.cmake ${MELVOX_CMAKE_DIR} dev)
    foreach(set melvox_qt melvox_ui)
        install(EXPORT ${set} NAMESPACE ${MELVOX_UI_NAME}:: FILE ${set}Targets.cmake
            DESTINATION ${MELVOX_CMAKE_DIR} COMPONENT dev)
    endforeach()
    if(NOT MELVOX_PLATFORM_DIR)
        install(EXPORT melvox_kit NAMESPACE ${MELVOX_UI_NAME}:: FILE melvox_kitTargets.cmake
            DESTINATION ${MELVOX_CMAKE_DIR} COMPONENT kit)
    endif()
endfunction()

function(melvox_install_pkgconfig_and_qmake)
    # From where the files lie to what they name, so that an installation can be moved.
    file(RELATIVE_PATH MELVOX_PREFIX_FROM_PKGCONFIG /${MELVOX_PKGCONFIG_DIR} /)
    file(RELATIVE_PATH MELVOX_PREFIX_FROM_QMAKE /${MELVOX_QMAKE_DIR} /)
    if(MELVOX_QT EQUAL 4)
        set(MELVOX_PKGCONFIG_QT "QtCore QtGui QtNetwork")
    else()
        set(MELVOX_PKGCONFIG_QT "Qt${MELVOX_QT}Core Qt${MELVOX_QT}Widgets Qt${MELVOX_QT}Network")
    endif()
    melvox_install_configured(melvox_ui.pc.in ${MELVOX_UI_NAME}.pc ${MELVOX_PKGCONFIG_DIR} dev)
    melvox_install_configured(melvox_ui.prf.in melvox_ui.prf ${MELVOX_QMAKE_DIR} dev)
    if(NOT MELVOX_PLATFORM_DIR)
        melvox_install_configured(melvox_kit.pc.in ${MELVOX_KIT_NAME}.pc ${MELVOX_PKGCONFIG_DIR} kit)
    endif()
endfunction()

# melvox_install_package(): once all targets are there.
function(melvox_install_package)
    melvox_install_headers()
    melvox_install_cmake_package()
    melvox_install_pkgconfig_and_qmake()
endfunction()
