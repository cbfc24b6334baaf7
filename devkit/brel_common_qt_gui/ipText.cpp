#include "brel_common_qt_gui/ipText.h"

#include <QLineEdit>
#include <QVariant>

namespace melvox_kit
{

bool readDecimal(QString const& text, unsigned int max, unsigned int& number)
{
    if (text.isEmpty() || text.size() > QString::number(max).size())
        return false;
    for (int i = 0; i < text.size(); ++i)
    {
        // Not QChar::isDigit(), which knows the digits of every script, nor toUInt(), which takes signs and blanks.
        if (text.at(i) < QLatin1Char('0') || text.at(i) > QLatin1Char('9'))
            return false;
    }
    unsigned int const value = text.toUInt();
    if (value > max)
        return false;
    number = value;
    return true;
}

void wantNumericKeypad(QLineEdit* lineEdit)
{
    if (!lineEdit->property("keypadType").isValid())
        lineEdit->setProperty("keypadType", QLatin1String("numeric"));
}

} // namespace melvox_kit
