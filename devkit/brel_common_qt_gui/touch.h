#ifndef MELVOX_KIT_TOUCH_H
#define MELVOX_KIT_TOUCH_H

namespace melvox_kit
{

/** What a finger hits without looking twice, in pixels. */
int const TOUCH_HEIGHT = 40;

} // namespace melvox_kit

#endif
