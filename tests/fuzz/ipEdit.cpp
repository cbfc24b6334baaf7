#include "fuzz.h"

#include "application.h"

#include "brel_common_qt_gui/ipAddressEdit.h"
#include "brel_common_qt_gui/ipPortEdit.h"

#include <QLineEdit>

using namespace brel_common_qt_gui;
using melvox_fuzz::hold;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    melvox_fuzz::needApplication();
    QString const text = QString::fromUtf8(reinterpret_cast<char const*>(data), int(size));
    QLineEdit line;
    ipAddressEdit_t edit(&line, nullptr);
    line.insert(text);
    line.setText(text);
    unsigned int address = 0;
    if (edit.getAddress(address))
    {
        unsigned int again = ~address;
        edit.setAddress(address);
        hold(edit.getAddress(again) && again == address, "an address that was read is shown as the same one");
    }

    QLineEdit portLine;
    ipPortEdit_t portEdit(&portLine, nullptr);
    portLine.insert(text);
    portLine.setText(text);
    unsigned short port = 0;
    if (portEdit.getPort(port))
    {
        unsigned short again = static_cast<unsigned short>(~port);
        portEdit.setPort(port);
        hold(portEdit.getPort(again) && again == port, "a port that was read is shown as the same one");
    }
    return 0;
}
