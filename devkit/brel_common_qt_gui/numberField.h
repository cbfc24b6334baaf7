#ifndef MELVOX_KIT_NUMBER_FIELD_H
#define MELVOX_KIT_NUMBER_FIELD_H

#include <QValidator>

class QLineEdit;

namespace melvox_kit
{

/** Lets decimal numbers from -limit (or 0) to limit be typed, key by key. */
class numberValidator_t : public QValidator
{
public:
    enum sign_t
    {
        UNSIGNED,
        SIGNED
    };

    enum limit_t
    {
        UP_TO_LIMIT,
        BELOW_LIMIT
    };

    numberValidator_t(double limit, limit_t kind, sign_t sign, QObject* parent);

    /** Digits after the point; 0: no point either. */
    void setDecimals(int decimals) { m_decimals = decimals; }

    State validate(QString& text, int& position) const override;

private:
    double m_limit;
    limit_t m_kind;
    sign_t m_sign;
    int m_decimals;
};

/** A line edit for numbers, large enough for a finger and for the text. */
QLineEdit* createNumberField(QString const& name, QString const& widestText, QWidget* parent);

/** What the keypad shows for the field, and what a reader of the screen says. */
void setFieldPrompt(QLineEdit* field, QString const& prompt, QString const& accessibleName);

/** Shows whether what stands in the field is taken. */
void showTaken(QLineEdit* field, bool taken);

/** False when the text is no number that the field's validator takes. */
bool readNumber(QLineEdit const* field, double& number);

/** True when this event takes the focus from the field to a widget outside of `edit`. Popups and other windows, such
 *  as a keypad, only borrow it. */
bool isLeaving(QWidget const* edit, QEvent* event);

} // namespace melvox_kit

#endif
