#include "melvoxUiExtendedNavInfo_p.h"

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"
#include "support/pageSupport.h"

#include <cstddef>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

namespace
{

int const STALE_AFTER = 2000; // milliseconds; the receiver tells every second
double const MILLIMETRES = 1000;

// What the receiver's numbers stand for. The words are those of its manual, not those of the enumerators.
char const* const DIFFERENTIAL_SOURCES[] = {
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "WAAS"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "WAAS Test Mode"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "MRV (C1)"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTCM1"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTCM9"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "EGNOS"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "MSAS"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "GAGAN"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "LEO"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "MRV (C3)"),
};

char const* const RTK_SOURCES[] = {
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTK 5B"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Reserved"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "LEO"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTCM 20/21"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "CMR"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "CMR+"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTCM3-L1 Compact"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTCM3-L1 Full"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTCM3-Dual Compact"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTCM3-Dual Full"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTCM3.2 MSM"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "RTK 62"),
};

char const* const FAILURES[] = {
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Unknown"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Navigation solution available"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Too few measurements for navigation init"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Initialization failed"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Navigation initialization completing"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Too few measurements for navigation"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Navigation PDOP too high"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "No velocity solution"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Navigation update too large"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Export height/velocity limits exceeded"),
    // The trailing blank is part of the receiver's text.
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Available navigation modes are disabled "),
};

char const* const DATUMS[] = {
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "WGS84"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "ITRF 2020"),
    QT_TRANSLATE_NOOP("brel_common_qt_gui::melvoxUiExtendedNavInfo_t", "Non default"),
};

/** The word for a number that the receiver told, which may be one that nobody knows. */
template <std::size_t COUNT> QString word(char const* const (&words)[COUNT], unsigned int number)
{
    return number < COUNT ? melvoxUiExtendedNavInfo_t::tr(words[number]) : UnknownString;
}

QString geoidText(unsigned int geoid)
{
    if (geoid == 0)
        return NoneString;
    return geoid == 1 ? melvoxUiExtendedNavInfo_t::tr("EGM84") : UnknownString;
}

QString sourceText(melvoxNavMode_t mode, unsigned int source)
{
    switch (mode)
    {
    case MELVOX_NAV_MODE_DGPS:
    case MELVOX_NAV_MODE_STARFIRE_DUAL:
    case MELVOX_NAV_MODE_STARFIRE_LP:
        return word(DIFFERENTIAL_SOURCES, source);
    case MELVOX_NAV_MODE_RTK_FLOAT:
    case MELVOX_NAV_MODE_RTK_X:
    case MELVOX_NAV_MODE_RTK_WL_FIXED:
    case MELVOX_NAV_MODE_RTK_L1_FIXED:
    case MELVOX_NAV_MODE_RTK_DUAL_FIXED:
        return word(RTK_SOURCES, source);
    default:
        return UnknownString;
    }
}

QString numbered(unsigned int number, QString const& text)
{
    return QString::number(number) + ':' + text;
}

QString sourceTypeText(melvoxNavMode_t mode, melvoxNavSource_t source)
{
    return mode == MELVOX_NAV_MODE_NON_DIFF ? NoneString : numbered(mode, sourceText(mode, source));
}

typedef QLabel* Ui_melvoxUiExtendedNavInfo::*label_t;
label_t const VALUES[] = {
    &Ui_melvoxUiExtendedNavInfo::gpsWeekLabel,      &Ui_melvoxUiExtendedNavInfo::gpsTimeLabel,
    &Ui_melvoxUiExtendedNavInfo::navValidLabel,     &Ui_melvoxUiExtendedNavInfo::datumLabel,
    &Ui_melvoxUiExtendedNavInfo::sourceTypeLabel,   &Ui_melvoxUiExtendedNavInfo::stationIdLabel,
    &Ui_melvoxUiExtendedNavInfo::failureCodeLabel,  &Ui_melvoxUiExtendedNavInfo::setDeltaNorthLabel,
    &Ui_melvoxUiExtendedNavInfo::setDeltaEastLabel, &Ui_melvoxUiExtendedNavInfo::setDeltaUpLabel,
    &Ui_melvoxUiExtendedNavInfo::latErrorLabel,     &Ui_melvoxUiExtendedNavInfo::lonErrorLabel,
    &Ui_melvoxUiExtendedNavInfo::heightErrorLabel,  &Ui_melvoxUiExtendedNavInfo::velocityNorthLabel,
    &Ui_melvoxUiExtendedNavInfo::velocityEastLabel, &Ui_melvoxUiExtendedNavInfo::velocityUpLabel,
};

} // namespace

melvoxUiExtendedNavInfo_t::privateData_t::privateData_t(remoteMelvoxDevice_t* device_) : device(device_)
{
}

melvoxUiExtendedNavInfo_t::melvoxUiExtendedNavInfo_t(remoteMelvoxDevice_t* device) : m_data(new privateData_t(device))
{
    m_data->ui.setupUi(this);
    connect(device, SIGNAL(extendedNavInfoUpdated()), SLOT(updateExtendedNavInfo()));
    m_data->clearTimer.setParent(this);
    m_data->clearTimer.setObjectName("clearTimer");
    m_data->clearTimer.setSingleShot(true);
    connect(&m_data->clearTimer, SIGNAL(timeout()), SLOT(clearExtendedNavInfo()));
    updateExtendedNavInfo();
}

melvoxUiExtendedNavInfo_t::~melvoxUiExtendedNavInfo_t()
{
    delete m_data;
}

void melvoxUiExtendedNavInfo_t::updateExtendedNavInfo()
{
    if (!m_data->device->extendedNavInfoValid())
    {
        clearExtendedNavInfo();
        return;
    }
    showSummary();
    showDetails();
    m_data->clearTimer.start(STALE_AFTER);
}

void melvoxUiExtendedNavInfo_t::showSummary()
{
    Ui_melvoxUiExtendedNavInfo& ui = m_data->ui;
    melvoxExtendedNavInfo_t const& info = m_data->device->extendedNavInfo();
    ui.gpsWeekLabel->setText(QString::number(info.gpsWeek));
    ui.gpsTimeLabel->setText(fixed(info.gpsTime, 0));
    ui.navValidLabel->setText(yesNo(info.navValid != 0));
    ui.datumLabel->setText(word(DATUMS, info.datum) + '/' + geoidText(info.geoid));
    ui.sourceTypeLabel->setText(sourceTypeText(info.navMode, info.navSource));
    ui.stationIdLabel->setText(QString::number(info.stationId));
    ui.failureCodeLabel->setText(numbered(info.failureCode, word(FAILURES, info.failureCode)));
}

void melvoxUiExtendedNavInfo_t::showDetails()
{
    Ui_melvoxUiExtendedNavInfo& ui = m_data->ui;
    melvoxExtendedNavInfo_t const& info = m_data->device->extendedNavInfo();
    ui.setDeltaNorthLabel->setText(fixed(info.setDeltaNorth * MILLIMETRES, 0));
    ui.setDeltaEastLabel->setText(fixed(info.setDeltaEast * MILLIMETRES, 0));
    ui.setDeltaUpLabel->setText(fixed(info.setDeltaUp * MILLIMETRES, 0));
    ui.latErrorLabel->setText(errorString(info.latError));
    ui.lonErrorLabel->setText(errorString(info.lonError));
    ui.heightErrorLabel->setText(errorString(info.heightError));
    ui.velocityNorthLabel->setText(velocityString(info.velocityNorth));
    ui.velocityEastLabel->setText(velocityString(info.velocityEast));
    ui.velocityUpLabel->setText(velocityString(info.velocityUp));
}

void melvoxUiExtendedNavInfo_t::clearExtendedNavInfo()
{
    for (label_t label : VALUES)
        (m_data->ui.*label)->setText(NoDataString);
}

QString melvoxUiExtendedNavInfo_t::errorString(double metres)
{
    return fixed(metres, 4);
}

QString melvoxUiExtendedNavInfo_t::velocityString(double metresPerSecond)
{
    return fixed(metresPerSecond, 4);
}

} // namespace brel_common_qt_gui
