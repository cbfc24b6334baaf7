#ifndef MELVOX_DISPLAY_OPTIONS_H
#define MELVOX_DISPLAY_OPTIONS_H

#include "brel_common_qt/units.h"
#include "scenarios/scenario.h"

#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace melvox_link
{
struct journal_t;
}

namespace melvox_display
{

/** Where the receiver is. */
struct connection_t
{
    enum kind_t
    {
        SIMULATED, //!< in this very process
        TCP,
        SERIAL,
        REPLAY //!< what a journal says that it told
    };

    kind_t kind = SIMULATED;
    QString host;
    int port = 0;
    QString device;
    int baud = 115200;
    std::shared_ptr<melvox_link::journal_t const> journal;
    double replaySpeed = 1.0;
};

/** What the command line asks for. */
struct options_t
{
    QString page; //!< empty: the last one, or the first
    connection_t connection;
    QSize size = QSize(1024, 600);
    QString usbDir;                                      //!< whose folders stand for USB drives; empty: there is none
    bool realDrives = false;                             //!< the USB drives are those of the machine
    QString tourDir;                                     //!< empty: no tour
    std::optional<brel_common_qt::distanceUnit_t> units; //!< not given: as stored
    std::optional<brel_common_qt::latLonFormat_t> format;
    std::optional<melvox_scenarios::scenario_t> scenario;
    std::optional<double> speed; //!< of the simulated receiver's clock
    QString settingsFile;        //!< empty: the user's own
    QString profileFolder;       //!< where the simulated receiver keeps its profiles; empty: nowhere
    QString recordFile;          //!< empty: no journal is written
    QString replayFile;          //!< empty: none is played
    bool replayActions = false;
    bool hasDrives = false; //!< USB drives even without a folder for them
};

/** What to do with a command line. */
struct parsedOptions_t
{
    enum result_t
    {
        RUN,
        SHOW,  //!< print the text and leave with success
        REFUSE //!< print the text as an error and leave with 2
    };

    result_t result = RUN;
    QString text;
    options_t options;
};

/** `arguments` begin with the program's name. `pages` are the names that --page takes. Needs no application object. */
parsedOptions_t parseOptions(QStringList const& arguments, QStringList const& pages);

} // namespace melvox_display

#endif
