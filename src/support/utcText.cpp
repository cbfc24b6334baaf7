#include "support/utcText.h"

#include "brel_common_qt/textHelpers.h"

#include <QDateTime>
#include <QLocale>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

double const SECONDS_MAX = 253402300799.0; // the end of the year 9999

} // namespace

QString utcText(double seconds)
{
    // Also false for what is not a number.
    if (!(seconds >= -SECONDS_MAX && seconds <= SECONDS_MAX))
        return NoDataString;
    qint64 const whole = static_cast<qint64>(seconds);
    // Qt's own text format prints a zone in some versions and none in others; the suffix stands once.
    QDateTime const time = QDateTime::fromMSecsSinceEpoch(whole * 1000).toUTC();
    return QLocale::c().toString(time, "ddd MMM d hh:mm:ss yyyy") + utcString;
}

} // namespace brel_common_qt_gui
