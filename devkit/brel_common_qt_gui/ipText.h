#ifndef MELVOX_KIT_IP_TEXT_H
#define MELVOX_KIT_IP_TEXT_H

class QLineEdit;
class QString;

namespace melvox_kit
{

/** Reads a decimal number of no more digits than `max` has. False, and `number` untouched, for any other text. */
bool readDecimal(QString const& text, unsigned int max, unsigned int& number);

/** Has the keypad for numbers shown, unless the form asks for another. */
void wantNumericKeypad(QLineEdit* lineEdit);

} // namespace melvox_kit

#endif
