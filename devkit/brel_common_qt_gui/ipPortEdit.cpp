#include "brel_common_qt_gui/ipPortEdit.h"

#include "brel_common_qt_gui/ipText.h"

#include <QLineEdit>
#include <QValidator>

namespace brel_common_qt_gui
{

namespace
{

unsigned int const PORT_MAX = 65535;

class portValidator_t : public QValidator
{
public:
    explicit portValidator_t(QObject* parent) : QValidator(parent) {}

    State validate(QString& text, int&) const override
    {
        unsigned int port;
        if (text.isEmpty())
            return Intermediate;
        return melvox_kit::readDecimal(text, PORT_MAX, port) ? Acceptable : Invalid;
    }
};

} // namespace

ipPortEdit_t::ipPortEdit_t(QLineEdit* lineEdit, QObject* parent) : QObject(parent), m_lineEdit(lineEdit)
{
    lineEdit->setValidator(new portValidator_t(lineEdit));
    melvox_kit::wantNumericKeypad(lineEdit);
}

void ipPortEdit_t::setPort(unsigned short port)
{
    m_lineEdit->setText(QString::number(port));
}

bool ipPortEdit_t::getPort(unsigned short& port) const
{
    unsigned int value;
    if (!melvox_kit::readDecimal(m_lineEdit->text().trimmed(), PORT_MAX, value))
        return false;
    port = static_cast<unsigned short>(value);
    return true;
}

} // namespace brel_common_qt_gui
