#ifndef MELVOX_TEST_FIRMWARE_H
#define MELVOX_TEST_FIRMWARE_H

#include "firmware/firmwareFile.h"

#include <QByteArray>

namespace melvox_test
{

/** Makes a firmware file, one component after the other: package_t().add(2, "1.14.40").bytes(). */
class package_t
{
public:
    package_t& add(int component, char const* version, int product = 8, int size = 100)
    {
        melvox_firmware::part_t part;
        part.component = component;
        part.version = version;
        part.product = product;
        m_writer.start(part);
        std::string const image(std::size_t(size), 'x');
        m_writer.add(image.data(), image.size());
        return *this;
    }
    QByteArray bytes()
    {
        m_writer.finish();
        std::string const text = m_writer.takeText();
        return QByteArray(text.data(), int(text.size()));
    }

private:
    melvox_firmware::packageWriter_t m_writer;
};

} // namespace melvox_test

#endif
