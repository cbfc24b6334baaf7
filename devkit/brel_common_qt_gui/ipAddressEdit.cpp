#include "brel_common_qt_gui/ipAddressEdit.h"

#include "brel_common_qt_gui/ipText.h"

#include <QLineEdit>
#include <QStringList>
#include <QValidator>
#include <QVariant>

namespace brel_common_qt_gui
{

namespace
{

int const NUM_BYTES = 4;
unsigned int const BYTE_MAX = 255;

/** Takes the beginnings of addresses while they are typed. */
class addressValidator_t : public QValidator
{
public:
    explicit addressValidator_t(QObject* parent) : QValidator(parent) {}

    State validate(QString& text, int&) const override
    {
        QStringList const parts = text.split(QLatin1Char('.'));
        if (parts.size() > NUM_BYTES)
            return Invalid;
        bool complete = parts.size() == NUM_BYTES;
        for (int i = 0; i < parts.size(); ++i)
        {
            unsigned int byte;
            if (parts.at(i).isEmpty())
                complete = false;
            else if (!melvox_kit::readDecimal(parts.at(i), BYTE_MAX, byte))
                return Invalid;
        }
        return complete ? Acceptable : Intermediate;
    }
};

} // namespace

ipAddressEdit_t::ipAddressEdit_t(QLineEdit* lineEdit, QObject* parent) : QObject(parent), m_lineEdit(lineEdit)
{
    lineEdit->setValidator(new addressValidator_t(lineEdit));
    melvox_kit::wantNumericKeypad(lineEdit);
}

void ipAddressEdit_t::setAddress(unsigned int address)
{
    QStringList parts;
    for (int shift = 24; shift >= 0; shift -= 8)
        parts << QString::number((address >> shift) & BYTE_MAX);
    m_lineEdit->setText(parts.join(QLatin1String(".")));
}

bool ipAddressEdit_t::getAddress(unsigned int& address) const
{
    QStringList const parts = m_lineEdit->text().trimmed().split(QLatin1Char('.'));
    if (parts.size() != NUM_BYTES)
        return false;
    unsigned int value = 0;
    for (int i = 0; i < NUM_BYTES; ++i)
    {
        unsigned int byte;
        if (!melvox_kit::readDecimal(parts.at(i), BYTE_MAX, byte))
            return false;
        value = value << 8 | byte;
    }
    address = value;
    return true;
}

} // namespace brel_common_qt_gui
