#ifndef MELVOX_DISPLAY_ACTION_PLAYER_H
#define MELVOX_DISPLAY_ACTION_PLAYER_H

#include "display/action.h"

#include <QLineEdit>
#include <QPointer>
#include <QString>

class QAbstractItemView;

namespace melvox_display
{

class displayWindow_t;
class screen_t;

/** Does on the screen of a window what an operator did. */
class actionPlayer_t
{
public:
    /** The window must live as long. */
    explicit actionPlayer_t(displayWindow_t* window);

    /** False, and `reason` for people, when it cannot be done as the screen is now. */
    bool perform(action_t const& action, QString& reason);

private:
    bool showPage(action_t const& action, QString& reason);
    bool answer(action_t const& action, QString& reason);
    bool closeDialog(action_t const& action, QString& reason);
    bool chooseFile(action_t const& action, QString& reason);
    bool operate(action_t const& action, QString& reason);
    bool tap(QWidget* widget, QString& reason);
    bool type(action_t const& action, QWidget* widget, QString& reason);
    bool choose(action_t const& action, QWidget* widget, QString& reason);
    bool select(action_t const& action, QWidget* widget, QString& reason);
    void leave();

    screen_t* screen() const;
    QWidget* rootOf(action_t const& action, QString& reason) const;
    QWidget* target(action_t const& action, QString& reason) const;

    displayWindow_t* m_window;
    QPointer<QLineEdit> m_edit; //!< the one that was typed into and not left
};

} // namespace melvox_display

#endif
