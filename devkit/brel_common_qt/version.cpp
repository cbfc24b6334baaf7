#include "brel_common_qt/version.h"

#include <QStringList>

#include <algorithm>
#include <limits>

namespace brel_common_qt
{

namespace
{

std::size_t const MAX_PARTS = 8;

/** One decimal number from `position` on; moves behind it. */
bool parseNumber(std::string const& text, std::size_t& position, unsigned int& number)
{
    std::size_t const start = position;
    unsigned long long value = 0;
    for (; position < text.size() && text[position] >= '0' && text[position] <= '9'; ++position)
    {
        value = value * 10 + (text[position] - '0');
        if (value > std::numeric_limits<unsigned int>::max())
            return false;
    }
    number = static_cast<unsigned int>(value);
    return position > start;
}

unsigned int partOf(std::vector<unsigned int> const& version, std::size_t index)
{
    return index < version.size() ? version[index] : 0;
}

} // namespace

bool parseVersion(std::string const& text, std::vector<unsigned int>& version)
{
    std::vector<unsigned int> parts;
    std::size_t position = 0;
    do
    {
        if (!parts.empty())
            ++position; // the dot
        unsigned int number;
        if (parts.size() == MAX_PARTS || !parseNumber(text, position, number))
            return false;
        parts.push_back(number);
    } while (position < text.size() && text[position] == '.');
    if (position != text.size())
        return false;
    version.swap(parts);
    return true;
}

int versionCompare(std::vector<unsigned int> const& a, std::vector<unsigned int> const& b)
{
    for (std::size_t i = 0; i < std::max(a.size(), b.size()); ++i)
    {
        unsigned int const left = partOf(a, i);
        unsigned int const right = partOf(b, i);
        if (left != right)
            return left < right ? -1 : 1;
    }
    return 0;
}

bool buildVersion(QString& text, std::vector<unsigned int> const& version)
{
    if (version.empty())
        return false;
    QStringList parts;
    for (std::size_t i = 0; i < version.size(); ++i)
        parts << QString::number(version[i]);
    text = parts.join(QLatin1String("."));
    return true;
}

} // namespace brel_common_qt
