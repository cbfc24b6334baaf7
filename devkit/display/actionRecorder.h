#ifndef MELVOX_DISPLAY_ACTION_RECORDER_H
#define MELVOX_DISPLAY_ACTION_RECORDER_H

#include "display/action.h"

#include <QLineEdit>
#include <QObject>
#include <QPointer>

class QAbstractButton;
class QAbstractItemView;

namespace melvox_display
{

class displayWindow_t;
class screen_t;

/** Tells what the operator does on the screen of a window, whatever he does it with: finger, keypad, mouse or keyboard. What the pages do
 *  by themselves is not told. A press of a button is told before it takes effect, so that whoever writes it down has it
 *  even when the display does not survive it.
 *
 *  The text of an edit that hides it, or whose name is that of a secret, is not told. The keypad's keys are not told
 *  either, but what they change. */
class actionRecorder_t : public QObject
{
    Q_OBJECT

public:
    /** To be made before the screen: what the keypad and the cards take for themselves is then not seen here. */
    explicit actionRecorder_t(QObject* parent = nullptr);
    ~actionRecorder_t() override;

    void watch(displayWindow_t* window);

    bool eventFilter(QObject* object, QEvent* event) override;

signals:
    void acted(melvox_display::action_t const& action);

private slots:
    void tellReleased();
    void tellClicked();
    void tellEdited();
    void tellChosen(int index);
    void tellFile(int result);

private:
    void attach(QWidget* widget);
    void filter(QWidget* widget, QEvent* event);
    void filterRelease(QWidget* widget, QEvent* event);
    void filterKey(QWidget* widget, QEvent* event);
    void tellButton(QAbstractButton* button);
    void tellRow(QWidget* viewport, QEvent* event, action_t::kind_t kind);
    void tellCurrentRow(QAbstractItemView* view);
    void tellLeft(QWidget* widget, QEvent* event);
    screen_t* screen() const;
    bool placed(QWidget* widget, action_t& action) const;
    action_t on(action_t::kind_t kind) const;

    QPointer<displayWindow_t> m_window;
    QPointer<QWidget> m_touched; //!< the mouse went down on it
    QPointer<QWidget> m_pressed; //!< told already; its click follows
    QPointer<QWidget> m_typed;
};

} // namespace melvox_display

#endif
