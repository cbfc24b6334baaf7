#include "brel_common_qt/timestamps.h"

#include <QDateTime>
#include <QLocale>

namespace brel_common_qt
{

double dataTimestamp()
{
    return QDateTime::currentMSecsSinceEpoch() / 1000.0;
}

QString filenameTimestamp(unsigned int seconds, int decimals)
{
    QDateTime const time = QDateTime::fromMSecsSinceEpoch(seconds * 1000LL).toUTC();
    // The C locale: a file name has plain digits wherever the unit is used.
    QString text = QLocale::c().toString(time, QLatin1String("yyyyMMdd_hhmmss"));
    if (decimals > 0)
        text += QLatin1Char('_') + QString(decimals, QLatin1Char('0'));
    return text;
}

} // namespace brel_common_qt
