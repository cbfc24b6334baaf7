#ifndef MELVOX_DISPLAY_TOUR_SCENES_H
#define MELVOX_DISPLAY_TOUR_SCENES_H

#include <QList>
#include <QString>
#include <QStringList>

class QWidget;

namespace melvox_display
{

class screen_t;
class unit_t;

/** What an operator does on a page until there is more to see than the page itself. */
struct scene_t
{
    enum need_t
    {
        NOTHING,
        DRIVE,    //!< a USB drive
        PROFILE,  //!< a USB drive with a profile file that can be loaded
        WEB_UI,   //!< a USB drive with a package for the web interface
        FIRMWARE, //!< a USB drive with a firmware package
        LAST      //!< likewise, and nobody who wants to go on afterwards
    };

    QString page;
    need_t need;
    /** "row TREE NUMBER", "find TREE TEXT", "pick COMBO NUMBER", "type EDIT TEXT", "press BUTTON TEXT", "shoot NAME",
     *  "oldFirmware" (the receiver reports it), "otherSettings" (gives the receiver three that no profile of the tour
     *  has); and to wait for something: "offers COMBO TEXT", "read LABEL TEXT", "reach BAR VALUE". */
    QStringList steps;
};

QList<scene_t> const& tourScenes();

bool isMet(scene_t::need_t need);

/** The hands that play a scene on what is on top of the screen. */
class tourHands_t
{
public:
    tourHands_t(screen_t& screen, unit_t& unit) : m_screen(screen), m_unit(unit) {}

    /** False while there is nothing yet to take the step with. */
    bool take(QString const& step) const;

private:
    QWidget* top() const;
    template <typename widget_t> widget_t* find(QString const& name) const;
    bool select(QString const& tree, int row) const;
    bool press(QString const& text) const;
    bool sendOtherSettings() const;

    screen_t& m_screen;
    unit_t& m_unit;
};

} // namespace melvox_display

#endif
