#ifndef MELVOX_DISPLAY_ACTION_H
#define MELVOX_DISPLAY_ACTION_H

#include <QList>
#include <QMetaType>
#include <QString>
#include <QVariantMap>

namespace melvox_display
{

/** Something that an operator did, in terms of what it means: not where a finger came down, but which button it was. */
struct action_t
{
    enum kind_t
    {
        PAGE,       //!< had `page` shown, by the menu
        TAP,        //!< pressed the button `widget`
        TYPE,       //!< changed the text of the line edit `widget` to `text`
        LEAVE,      //!< was done with the line edit `widget`
        CHOOSE,     //!< chose the item `text` of the combo box `widget`
        SELECT,     //!< tapped the row `row` of the list `widget`, whose first column says `text`
        OPEN,       //!< the same, twice
        ANSWER,     //!< pressed `button` in the message box that says `text`
        BACK,       //!< left a dialog by the title bar
        CLOSE,      //!< left the dialog `dialog` by the keyboard
        CHOOSE_FILE //!< chose the file `text` in a file dialog; none when it is empty
    };

    kind_t kind = PAGE;
    QString page;   //!< the one that was shown
    QString dialog; //!< the one over it that `widget` is in; empty: `widget` is on the page
    QString widget; //!< as pathOf() names it
    QString text;
    bool isSecret = false; //!< `text` is not told
    QString button;
    QList<int> row; //!< row in the top level, row below that, ...
};

/** The members of a journal's line. */
QVariantMap toMap(action_t const& action);

/** False, and `reason` for people, when it is no action. */
bool fromMap(QVariantMap const& map, action_t& action, QString& reason);

} // namespace melvox_display

Q_DECLARE_METATYPE(melvox_display::action_t)

#endif
