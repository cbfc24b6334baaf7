#ifndef MELVOX_DISPLAY_SCROLL_VIEW_H
#define MELVOX_DISPLAY_SCROLL_VIEW_H

class QAbstractScrollArea;
class QScrollArea;
class QWidget;

namespace melvox_display
{

/** A place for a page: as wide as there is room, scrolled up and down with a finger when it is higher. Takes the
 *  content over; content that is destroyed or taken elsewhere leaves the view empty. */
QScrollArea* createScrollView(QWidget* content, QWidget* parent);

/** Lets a finger scroll these contents. */
void scrollByFinger(QAbstractScrollArea* area);

/** Groups keep no room for a title that they do not have; a style sheet alone cannot tell them. Done by
 *  createScrollView(). */
void leaveOutMissingTitles(QWidget* content);

} // namespace melvox_display

#endif
