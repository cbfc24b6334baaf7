#include "values.h"

#include <cmath>
#include <limits>

namespace melvox_kit
{

namespace
{

bool readNumber(QVariant const& value, double lowest, double highest, double& number)
{
    switch (value.userType())
    {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        break;
    default:
        return false;
    }
    double const read = value.toDouble();
    if (!(read >= lowest && read <= highest)) // also refuses what is no number
        return false;
    number = read;
    return true;
}

// Streams know but one kind of number, so a whole number may come as a floating one.
template <typename whole_t> bool readWhole(QVariant const& value, double lowest, double highest, whole_t& number)
{
    double read = 0;
    if (!readNumber(value, lowest, highest, read) || std::floor(read) != read)
        return false;
    number = whole_t(read);
    return true;
}

template <typename whole_t> bool readWhole(QVariant const& value, whole_t& number)
{
    return readWhole(value, double(std::numeric_limits<whole_t>::min()), double(std::numeric_limits<whole_t>::max()),
                     number);
}

} // namespace

bool read(QVariant const& value, bool& flag)
{
    if (value.userType() != QMetaType::Bool)
        return false;
    flag = value.toBool();
    return true;
}

bool read(QVariant const& value, double& number)
{
    return readNumber(value, -std::numeric_limits<double>::max(), std::numeric_limits<double>::max(), number);
}

bool read(QVariant const& value, float& number)
{
    double read = 0;
    if (!readNumber(value, -double(std::numeric_limits<float>::max()), double(std::numeric_limits<float>::max()), read))
        return false;
    number = float(read);
    return true;
}

bool read(QVariant const& value, int& number)
{
    return readWhole(value, number);
}

bool read(QVariant const& value, unsigned int& number)
{
    return readWhole(value, number);
}

bool read(QVariant const& value, unsigned short& number)
{
    return readWhole(value, number);
}

bool read(QVariant const& value, unsigned char& number)
{
    return readWhole(value, number);
}

bool read(QVariant const& value, std::string& text)
{
    if (value.userType() != QMetaType::QString)
        return false;
    text = textFrom(value.toString());
    return true;
}

bool read(QVariant const& value, QString& text)
{
    if (value.userType() != QMetaType::QString)
        return false;
    text = value.toString();
    return true;
}

bool read(QVariant const& value, QByteArray& bytes)
{
    if (value.userType() != QMetaType::QByteArray)
        return false;
    bytes = value.toByteArray();
    return true;
}

bool read(QVariant const& value, qint64& number)
{
    double const limit = 9007199254740992.0;
    return readWhole(value, -limit, limit, number);
}

// QString's own way there is not UTF-8 on Qt 4.
std::string textFrom(QString const& text)
{
    QByteArray const bytes = text.toUtf8();
    return std::string(bytes.constData(), std::size_t(bytes.size()));
}

QVariant write(bool flag)
{
    return QVariant(flag);
}

QVariant write(double number)
{
    return QVariant(number);
}

// Not by way of a double: who reads it would see 359.989990234375 where somebody typed 359.99.
QVariant write(float number)
{
    return QVariant(number);
}

QVariant write(int number)
{
    return QVariant(number);
}

QVariant write(unsigned int number)
{
    return QVariant(number);
}

QVariant write(std::string const& text)
{
    return QVariant(QString::fromUtf8(text.data(), int(text.size())));
}

fieldReader_t::fieldReader_t(QVariant const& value)
    : m_map(value.toMap()), m_good(value.userType() == QMetaType::QVariantMap)
{
}

} // namespace melvox_kit
