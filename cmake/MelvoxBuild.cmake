# How everything here is compiled.

set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTOUIC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_STANDARD_REQUIRED ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "" FORCE)
endif()

set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_compile_options(-Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual)
# Warnings stop those who work on this, not those who only build it with a compiler that knows more of them. Qt 4 headers,
# and what its moc and uic write, are older than some warnings. Clang, which the fuzz targets need, warns of other things;
# tools/analyze is where its word counts.
if(MELVOX_TESTS AND NOT MELVOX_QT EQUAL 4 AND NOT CMAKE_CXX_COMPILER_ID MATCHES Clang)
    add_compile_options(-Werror)
endif()

if(MELVOX_SANITIZE)
    # Without optimization: it compiles in less than half the time, and reports point at the right line.
    add_compile_options(-O0 -g1 -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# The library, the declared libraries of the kit and the page tests keep to C++11; Qt 6 headers need C++17 all the same.
if(MELVOX_QT EQUAL 6)
    set(CMAKE_CXX_STANDARD 17)
else()
    set(CMAKE_CXX_STANDARD 11)
endif()
