# Debian packages, one for each component: tools/make-packages.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${MELVOX_UI_NAME})
set(CPACK_PACKAGE_CONTACT "melvox_ui maintainers <maintainers@melvox-ui.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Configuration and status pages for a Melvox GNSS receiver (Qt ${MELVOX_QT})")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/packages)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_COMPONENTS_ALL library dev kit-libraries kit)
set(CPACK_COMPONENTS_GROUPING IGNORE)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# Libraries of one package are looked for in the others of the same build.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})

set(library_package libmelvox-ui-qt${MELVOX_QT}-${MELVOX_SOVERSION})
set(dev_package libmelvox-ui-qt${MELVOX_QT}-dev)
set(kit_libraries_package libmelvox-kit-qt${MELVOX_QT})
set(kit_package melvox-kit-qt${MELVOX_QT})
set(same "(= ${PROJECT_VERSION})")

set(CPACK_DEBIAN_LIBRARY_PACKAGE_NAME ${library_package})
set(CPACK_COMPONENT_LIBRARY_DESCRIPTION "The pages' shared library, and their texts in other languages.")
# On a display unit the maker's libraries take the kit's place.
set(CPACK_DEBIAN_LIBRARY_PACKAGE_DEPENDS "${kit_libraries_package} | melvox-platform-qt${MELVOX_QT}")

set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${dev_package})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_COMPONENT_DEV_DESCRIPTION "Headers of the pages and declarations of the libraries that they stand on.")
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "${library_package} ${same}")

set(CPACK_DEBIAN_KIT-LIBRARIES_PACKAGE_NAME ${kit_libraries_package})
set(CPACK_COMPONENT_KIT-LIBRARIES_DESCRIPTION "The libraries that the pages stand on, as the development kit has them.")

set(CPACK_DEBIAN_KIT_PACKAGE_NAME ${kit_package})
set(CPACK_DEBIAN_KIT_PACKAGE_SECTION devel)
set(CPACK_COMPONENT_KIT_DESCRIPTION
    "The development kit: simulated receiver, display, and what a host on the kit is built with.")
set(CPACK_DEBIAN_KIT_PACKAGE_DEPENDS "${library_package} ${same}, ${kit_libraries_package} ${same}")
set(CPACK_DEBIAN_KIT_PACKAGE_RECOMMENDS "${dev_package} ${same}")
include(CPack)
