# melvox_ui_page(Name): one line makes a page or dialog of the library from
#   include/melvox_ui/Name.h, src/pages/Name.cpp, src/pages/Name_p.h (if there), src/forms/Name.ui (if there),
# and its test from tests/pages/tst_Name.cpp.
set_property(GLOBAL PROPERTY MELVOX_UI_PAGES "")

function(melvox_ui_page name)
    set_property(GLOBAL APPEND PROPERTY MELVOX_UI_PAGES ${name})
    set(sources ${PROJECT_SOURCE_DIR}/include/melvox_ui/${name}.h ${PROJECT_SOURCE_DIR}/src/pages/${name}.cpp)
    foreach(optional src/pages/${name}_p.h src/forms/${name}.ui)
        if(EXISTS ${PROJECT_SOURCE_DIR}/${optional})
            list(APPEND sources ${PROJECT_SOURCE_DIR}/${optional})
        endif()
    endforeach()
    target_sources(melvox_ui PRIVATE ${sources})
endfunction()

# melvox_names_header(File Macro Include Name...): writes a header that includes one for each name, Include with NAME
# in place of it, and defines Macro(DO), a DO(name) for each.
function(melvox_names_header file macro include)
    set(text "")
    foreach(name ${ARGN})
        string(REPLACE "NAME" "${name}" header "${include}")
        string(APPEND text "#include \"${header}\"\n")
    endforeach()
    string(APPEND text "#define ${macro}(DO)")
    foreach(name ${ARGN})
        string(APPEND text " DO(${name})")
    endforeach()
    file(CONFIGURE OUTPUT ${file} CONTENT "${text}\n" @ONLY)
endfunction()

# melvox_all_pages(Target): the target may include "allPages.h", which has the headers of all pages and
# MELVOX_ALL_PAGES(DO), a DO(name) for each.
function(melvox_all_pages target)
    get_property(pages GLOBAL PROPERTY MELVOX_UI_PAGES)
    melvox_names_header(${CMAKE_CURRENT_BINARY_DIR}/allPages.h MELVOX_ALL_PAGES "melvox_ui/NAME.h" ${pages})
    target_include_directories(${target} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
endfunction()
