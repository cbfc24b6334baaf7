# melvox_test(tst_name LIBRARIES ...): a test program from tst_name.cpp (which includes "tst_name.moc"), run headless.
function(melvox_test name)
    cmake_parse_arguments(arg "" "" "SOURCES;LIBRARIES" ${ARGN})
    add_executable(${name} ${name}.cpp ${arg_SOURCES})
    target_link_libraries(${name} PRIVATE melvox_test_support ${arg_LIBRARIES})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES
        TIMEOUT 120
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/lsan.supp:print_suppressions=0;UBSAN_OPTIONS=print_stacktrace=1;LC_ALL=C.UTF-8;TZ=UTC")
endfunction()
