#ifndef MELVOX_ROBUSTNESS_DRIVES_H
#define MELVOX_ROBUSTNESS_DRIVES_H

#include "dice.h"
#include "support/folder.h"

#include <QString>

namespace melvox_robustness
{

/** USB drives that come and go, with files on them that are good, damaged or empty. */
class drives_t
{
public:
    drives_t();
    ~drives_t();

    QString comeAndGo(dice_t& dice);
    /** The path of a file that may be there. */
    QString anyFile(dice_t& dice) const;

private:
    QString write(dice_t& dice);

    melvox_test::folder_t m_root;
};

} // namespace melvox_robustness

#endif
