#ifndef BREL_COMMON_QT_ENDIAN_TYPES_H
#define BREL_COMMON_QT_ENDIAN_TYPES_H

#include <QMetaType>
#include <QtEndian>

#include <cstring>

namespace endian
{

/** A number as it stands in a receiver message: little-endian bytes, whatever the machine.
 *  Converts to and from the plain number without a word. */
template <typename number_t, typename bits_t> class wire_t
{
public:
    wire_t() : m_bits(0) {}
    wire_t(number_t value) : m_bits(qToLittleEndian(bitsOf(value))) {}

    operator number_t() const
    {
        bits_t const bits = qFromLittleEndian(m_bits);
        number_t value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }

private:
    static_assert(sizeof(number_t) == sizeof(bits_t), "a wire number keeps its size");

    static bits_t bitsOf(number_t value)
    {
        bits_t bits;
        std::memcpy(&bits, &value, sizeof bits);
        return bits;
    }

    bits_t m_bits;
};

typedef wire_t<double, quint64> f64_t;
typedef wire_t<float, quint32> f32_t;
typedef wire_t<quint32, quint32> u32_t;
typedef wire_t<qint32, quint32> s32_t;

} // namespace endian

Q_DECLARE_METATYPE(endian::f64_t)
Q_DECLARE_METATYPE(endian::f32_t)
Q_DECLARE_METATYPE(endian::u32_t)
Q_DECLARE_METATYPE(endian::s32_t)

#endif
