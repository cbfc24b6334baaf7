#ifndef MELVOX_UI_DEGREES_H
#define MELVOX_UI_DEGREES_H

namespace brel_common_qt_gui
{

/** The receiver speaks of positions in radians, people do in degrees. */
inline double degreesFromRadians(double radians)
{
    return radians * (180 / 3.14159265358979323846);
}

} // namespace brel_common_qt_gui

#endif
