#include "drives.h"

#include "brel_common_qt/kitUsb.h"
#include "support/firmware.h"

namespace melvox_robustness
{

namespace
{

char const* const DRIVES[] = {"A", "B", "C"};
char const* const FILES[] = {"profile_1.melvox", "profile_2.melvox", "profile_3.dravel", "nav.srec",
                             "all.srec",         "updates/nav.srec", "web.webui",        "updates/web.webui"};
int const LARGEST = 4000; // bytes

QByteArray contents(dice_t& dice, QString const& name)
{
    if (name.endsWith("srec"))
    {
        melvox_test::package_t package;
        for (int i = dice.choice(3); i >= 0; --i)
            package.add(dice.choice(8), "1.14.40", 8, 1 + dice.choice(300));
        QByteArray bytes = package.bytes();
        if (dice.chance(30))
            bytes.truncate(dice.choice(bytes.size()));
        if (dice.chance(30) && !bytes.isEmpty())
            bytes[dice.choice(bytes.size())] = char(dice.roll());
        return bytes;
    }
    return QByteArray(dice.chance(20) ? 0 : dice.choice(LARGEST), 'p');
}

} // namespace

drives_t::drives_t()
{
    melvox_kit::setUsbRoot(m_root.path());
}

drives_t::~drives_t()
{
    melvox_kit::setUsbRoot(QString());
}

QString drives_t::comeAndGo(dice_t& dice)
{
    QString const drive = dice.oneOf(DRIVES);
    switch (dice.choice(4))
    {
    case 0:
        melvox_test::folder_t::remove(m_root.path(drive));
        return "drive " + drive + " goes";
    case 1:
        m_root.makeDir(drive);
        return "drive " + drive + " comes";
    default:
        return write(dice);
    }
}

QString drives_t::write(dice_t& dice)
{
    QString const name = anyFile(dice).mid(m_root.path().size() + 1);
    m_root.write(name, contents(dice, name));
    return "file " + name + " is written";
}

QString drives_t::anyFile(dice_t& dice) const
{
    return m_root.path(QString("%1/%2").arg(dice.oneOf(DRIVES)).arg(dice.oneOf(FILES)));
}

} // namespace melvox_robustness
