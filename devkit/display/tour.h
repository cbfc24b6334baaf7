#ifndef MELVOX_DISPLAY_TOUR_H
#define MELVOX_DISPLAY_TOUR_H

#include <QString>

namespace melvox_display
{

class displayWindow_t;
class unit_t;

/** Shows every page and dialog once and writes pictures of them to the folder, which is made when it is not there; prints
 *  what it wrote and what went wrong. To make the receiver's values and an error box appear it taps and types as an
 *  operator would; what it sends is what the receiver has. With a USB drive it also chooses files, and ends in the middle
 *  of a firmware update if the receiver is one of this process. 0: all went well, 1: it did not. */
int walkTour(displayWindow_t& window, unit_t& unit, QString const& folder);

} // namespace melvox_display

#endif
