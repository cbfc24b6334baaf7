#ifndef MELVOX_DISPLAY_LINE_ENTRY_H
#define MELVOX_DISPLAY_LINE_ENTRY_H

#include <QChar>
#include <QLineEdit>
#include <QObject>
#include <QPointer>
#include <QString>

class QValidator;

namespace melvox_display
{

/** True when the character can stand anywhere in a text under this input mask (QLineEdit::inputMask()). Without a
 *  mask everything can. */
bool maskAdmits(QString const& mask, QChar character);

/** True when some text with this character, made from the given one, is not refused by the validator. Without a
 *  validator everything is taken. */
bool validatorAdmits(QValidator const* validator, QString const& text, QChar character);

/** Types into a line edit as a keyboard would, so that its mask, length, validator and echo mode hold as they do for a
 *  real one, and can put back what stood there before. */
class lineEntry_t : public QObject
{
    Q_OBJECT

public:
    explicit lineEntry_t(QObject* parent = nullptr);

    /** Starts with this edit; the one before is left as typed. The edit may be destroyed at any time. */
    void begin(QLineEdit* edit);
    /** Leaves what was typed. */
    void end();
    /** Puts back what stood there at begin(), so that whoever follows what is typed hears of it. */
    void restore();

    /** Null when there is none (any more). */
    QLineEdit* edit() const;

    /** True when the edit's mask and validator let this character through somewhere. */
    bool admits(QChar character) const;

    void type(QString const& text);
    void backspace();
    void clear();
    void moveLeft();
    void moveRight();
    /** Puts a minus sign before the number, or takes it away. */
    void toggleSign();

    /** The text with the blanks of a mask. */
    static QString wholeText(QLineEdit const* edit);
    /** Puts this text, as wholeText() gives it, in place of the edit's as if it had been typed. */
    static void replace(QLineEdit* edit, QString const& text);

    /** What the operator is to enter: the edit's "keypadPrompt", else its accessible name, else its caption. */
    static QString promptOf(QLineEdit* edit);
    static bool isNumeric(QLineEdit* edit);

signals:
    /** Text, cursor or selection of the edit changed, from whatever cause. */
    void changed();

private:
    void sendKey(int key, QString const& text = QString());

    // Not as a line edit: while it is being destroyed it is none any more.
    QPointer<QObject> m_edit;
    QString m_before;
};

} // namespace melvox_display

#endif
