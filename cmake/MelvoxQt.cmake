# One set of names for the modules of Qt 4, 5 and 6: melvox_qt_core, _widgets, _network, _test, _serialport.

function(melvox_qt_module name)
    add_library(melvox_qt_${name} INTERFACE)
    target_link_libraries(melvox_qt_${name} INTERFACE ${ARGN})
endfunction()

if(MELVOX_QT EQUAL 4)
    find_package(Qt4 4.8 REQUIRED QtCore QtGui QtNetwork QtTest)
    melvox_qt_module(core Qt4::QtCore)
    melvox_qt_module(widgets Qt4::QtGui)
    melvox_qt_module(network Qt4::QtNetwork)
    melvox_qt_module(test Qt4::QtTest)
else()
    find_package(Qt${MELVOX_QT} REQUIRED COMPONENTS Core Widgets Network Test SerialPort)
    melvox_qt_module(core Qt${MELVOX_QT}::Core)
    melvox_qt_module(widgets Qt${MELVOX_QT}::Widgets)
    melvox_qt_module(network Qt${MELVOX_QT}::Network)
    melvox_qt_module(test Qt${MELVOX_QT}::Test)
    melvox_qt_module(serialport Qt${MELVOX_QT}::SerialPort)
endif()

# String-based connects only: the same sources must build on Qt 4.
add_compile_definitions(QT_NO_CAST_TO_ASCII)
