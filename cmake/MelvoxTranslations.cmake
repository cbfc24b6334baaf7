# The pages' texts in other languages. Hosts load melvox_ui_LANGUAGE.qm with a QTranslator before they make a page; the
# lists to translate (.ts) go with the headers. Without Qt's translation tools the library is built all the same.
find_package(Qt${MELVOX_QT}LinguistTools QUIET)
file(GLOB translations ${PROJECT_SOURCE_DIR}/src/translations/melvox_ui_*.ts)
install(FILES ${translations} DESTINATION ${MELVOX_TRANSLATIONS_DIR} COMPONENT dev)
if(TARGET Qt${MELVOX_QT}::lrelease)
    set(MELVOX_BUILT_TRANSLATIONS_DIR ${CMAKE_BINARY_DIR}/translations)
    file(MAKE_DIRECTORY ${MELVOX_BUILT_TRANSLATIONS_DIR})
    foreach(translation ${translations})
        get_filename_component(name ${translation} NAME_WE)
        set(built ${MELVOX_BUILT_TRANSLATIONS_DIR}/${name}.qm)
        add_custom_command(OUTPUT ${built} DEPENDS ${translation}
            COMMAND Qt${MELVOX_QT}::lrelease -silent ${translation} -qm ${built})
        list(APPEND built_translations ${built})
    endforeach()
    add_custom_target(melvox_ui_translations ALL DEPENDS ${built_translations})
    install(FILES ${built_translations} DESTINATION ${MELVOX_TRANSLATIONS_DIR} COMPONENT library)
endif()
