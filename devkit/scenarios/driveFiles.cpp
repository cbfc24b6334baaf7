#include "scenarios/driveFiles.h"

#include "firmware/firmwareFile.h"

namespace melvox_scenarios
{

namespace
{

int const PRODUCT = 8;
std::size_t const COMPONENT_SIZE = 16 * 1024; // bytes

} // namespace

QByteArray firmwarePackage(QStringList const& components, QString& why)
{
    melvox_firmware::packageWriter_t writer;
    for (QString const& component : components)
    {
        melvox_firmware::part_t part;
        part.component = melvox_firmware::componentFromName(component.section('=', 0, 0).toStdString());
        part.version = component.section('=', 1).toStdString();
        part.product = PRODUCT;
        if (part.component < 0 || part.version.empty() || component.contains(' '))
        {
            why = QString("\"%1\" is no component with its version, such as \"NAV=1.15.2\"").arg(component);
            return QByteArray();
        }
        writer.start(part);
        std::string const image(COMPONENT_SIZE, char('a' + part.component));
        writer.add(image.data(), image.size());
    }
    if (components.isEmpty())
        why = "a package needs a component, such as \"NAV=1.15.2\"";
    else
        writer.finish();
    return QByteArray::fromStdString(writer.takeText());
}

bool isDrivePath(QString const& path)
{
    for (QString const& part : path.split('/'))
    {
        if (part.isEmpty() || part == "." || part == ".." || part.contains('\\'))
            return false;
    }
    return true;
}

bool isDriveName(QString const& name)
{
    return isDrivePath(name) && !name.contains('/') && !name.startsWith('.');
}

} // namespace melvox_scenarios
