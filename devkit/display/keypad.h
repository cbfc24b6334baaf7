#ifndef MELVOX_DISPLAY_KEYPAD_H
#define MELVOX_DISPLAY_KEYPAD_H

#include <QFrame>
#include <QLineEdit>
#include <QPointer>

namespace melvox_display
{

class fullPad_t;
class lineEntry_t;
class numericPad_t;
class pad_t;

/** The on-screen keypad. It opens by itself when the operator taps a line edit of the screen that can be edited, and
 *  closes on Done, on Cancel, when the operator goes on to something else, and when the edit can no longer be edited.
 *  The host places it below the pages; hidden until needed. */
class keypad_t : public QFrame
{
    Q_OBJECT

public:
    /** Watches the line edits in `screen`, which must live as long. */
    keypad_t(QWidget* screen, QWidget* parent);
    ~keypad_t() override;

    bool isOpen() const;
    QLineEdit* edit() const;

    /** For low screens. */
    void setCompact(bool compact);

    void open(QLineEdit* edit);

    bool eventFilter(QObject* object, QEvent* event) override;

public slots:
    /** Closes; what was typed stays. */
    void accept();
    /** Closes; what stood there before comes back. */
    void cancel();

signals:
    void opened(QLineEdit* edit);
    void closed();

private:
    pad_t* numericPad();
    pad_t* fullPad();
    void addPad(pad_t* pad);
    bool canBeEdited(QLineEdit* edit) const;
    bool filterEdit(QEvent* event);
    void filterTap(QObject* object, QEvent* event);
    void followFocus();
    void forget();
    void finish();

    QWidget* m_screen;
    lineEntry_t* m_entry;
    numericPad_t* m_numericPad; //!< none before the first number
    fullPad_t* m_fullPad;       //!< none before the first text
    pad_t* m_pad;               //!< the open one
    bool m_compact;
    // Not as a line edit: while it is being destroyed it is none any more.
    QPointer<QWidget> m_edit;
    bool m_leaving;
};

} // namespace melvox_display

#endif
