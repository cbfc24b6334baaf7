#include "firmware/firmwareFile.h"

#include <cctype>
#include <cstdlib>
#include <cstring>
#include <sstream>

namespace melvox_firmware
{

namespace
{

char const* const NAMES[] = {"BOOT1",     "BOOT2",        "NAV",     "MTEST",   "PIOBOOT1", "PIOBOOT2",
                             "PIOAPP",    "PIOBLUETOOTH", "STM8",    "MFGPIOB", "MFGGNSS",  "OCEANTIDE",
                             "GEOIDGRID", "GPB",          "GEOID99", "GGM02",   "ALL"};
int const NUM_NAMES = int(sizeof NAMES / sizeof *NAMES);

char const* const MAGIC = "MELVOX";

std::size_t const HEAD = 4; // characters before the address: S, type, count
std::size_t const LONGEST_CARRY = 64 * 1024;
unsigned int const BYTES_PER_RECORD = 32;

// More than all the bytes of a record can add up to.
unsigned int const INVALID = 1u << 24;

/** What each character adds to the sum of a record as the upper or lower digit of a byte. */
struct digits_t
{
    digits_t()
    {
        for (int c = 0; c < 256; ++c)
        {
            int value = -1;
            if (c >= '0' && c <= '9')
                value = c - '0';
            else if (c >= 'A' && c <= 'F')
                value = c - 'A' + 10;
            else if (c >= 'a' && c <= 'f')
                value = c - 'a' + 10;
            upper[c] = value < 0 ? INVALID : 16u * unsigned(value);
            lower[c] = value < 0 ? INVALID : unsigned(value);
        }
    }

    unsigned int byte(char const* text) const
    {
        return upper[static_cast<unsigned char>(text[0])] + lower[static_cast<unsigned char>(text[1])];
    }

    unsigned int upper[256];
    unsigned int lower[256];
};

digits_t const DIGITS;

/** The sum of `count` bytes; INVALID or more when a character is no digit. */
unsigned int sumOf(char const* digits, unsigned int count)
{
    unsigned int even = 0;
    unsigned int odd = 0;
    char const* const end = digits + 2 * count;
    for (; digits + 4 <= end; digits += 4)
    {
        even += DIGITS.byte(digits);
        odd += DIGITS.byte(digits + 2);
    }
    if (digits < end)
        even += DIGITS.byte(digits);
    return even + odd;
}

unsigned long long numberOf(char const* digits, unsigned int bytes)
{
    unsigned long long number = 0;
    for (unsigned int i = 0; i < bytes; ++i)
        number = number * 256 + DIGITS.byte(digits + 2 * i);
    return number;
}

bool isEndOfLine(char c)
{
    return c == '\n' || c == '\r';
}

/** The first end of line from `begin` on, `end` when there is none. */
char const* findEndOfLine(char const* begin, char const* end)
{
    // A record tells its own length: where its line ought to end is looked at first.
    if (end - begin > std::ptrdiff_t(HEAD) && *begin == 'S')
    {
        unsigned int const count = DIGITS.byte(begin + 2);
        char const* const guess = begin + HEAD + 2 * std::size_t(count);
        if (count < 256 && guess < end && isEndOfLine(*guess))
            return guess;
    }
    while (begin < end && !isEndOfLine(*begin))
        ++begin;
    return begin;
}

unsigned int addressBytes(char type)
{
    switch (type)
    {
    case '2':
    case '6':
    case '8':
        return 3;
    case '3':
    case '7':
        return 4;
    default:
        return 2;
    }
}

bool sameWithoutCase(std::string const& a, char const* b)
{
    std::size_t i = 0;
    for (; i < a.size() && b[i]; ++i)
    {
        if (std::toupper(static_cast<unsigned char>(a[i])) != b[i])
            return false;
    }
    return i == a.size() && !b[i];
}

bool readProduct(std::string const& text, int& product)
{
    if (text.empty() || text.size() > 9 || text.find_first_not_of("0123456789") != std::string::npos)
        return false;
    product = std::atoi(text.c_str());
    return true;
}

} // namespace

char const* componentName(int component)
{
    return component >= 0 && component < NUM_NAMES ? NAMES[component] : nullptr;
}

int componentFromName(std::string const& name)
{
    for (int i = 0; i < NUM_NAMES; ++i)
    {
        if (sameWithoutCase(name, NAMES[i]))
            return i;
    }
    return -1;
}

std::string headerText(part_t const& part)
{
    std::ostringstream text;
    text << MAGIC << " COMP=" << componentName(part.component) << " VER=" << part.version << " PROD=" << part.product;
    return text.str();
}

bool readHeader(std::string const& text, part_t& part)
{
    std::istringstream words(text.c_str()); // some packers fill the record up with zeros
    std::string word;
    if (!(words >> word) || word != MAGIC)
        return false;
    part_t found;
    while (words >> word)
    {
        if (word.compare(0, 5, "COMP=") == 0)
            found.component = componentFromName(word.substr(5));
        else if (word.compare(0, 4, "VER=") == 0)
            found.version = word.substr(4);
        else if (word.compare(0, 5, "PROD=") == 0 && !readProduct(word.substr(5), found.product))
            return false;
    }
    if (found.component < 0 || found.version.empty())
        return false;
    part = found;
    return true;
}

packageReader_t::packageReader_t() : m_line(0), m_lastEnd('\n'), m_records(0), m_partRecords(0), m_open(false)
{
}

bool packageReader_t::fail(std::string const& reason)
{
    std::ostringstream text;
    text << "line " << m_line << ": " << reason;
    m_error = text.str();
    return false;
}

bool packageReader_t::feed(char const* bytes, std::size_t size)
{
    if (!m_error.empty())
        return false;
    char const* const end = bytes + size;
    if (!m_carry.empty())
    {
        // Complete the line that was cut, then go on without copying.
        char const* lineEnd = bytes;
        while (lineEnd < end && !isEndOfLine(*lineEnd))
            ++lineEnd;
        m_carry.append(bytes, lineEnd);
        if (lineEnd == end)
            return m_carry.size() <= LONGEST_CARRY || fail("the line is too long for a record");
        m_carry += *lineEnd;
        std::string const line = m_carry;
        m_carry.clear();
        takeRecords(line.data(), line.data() + line.size(), false);
        bytes = lineEnd + 1;
    }
    std::size_t const taken = m_error.empty() ? takeRecords(bytes, end, false) : 0;
    if (!m_error.empty())
        return false;
    m_carry.assign(bytes + taken, end);
    return true;
}

bool packageReader_t::finish()
{
    if (!m_error.empty())
        return false;
    takeRecords(m_carry.data(), m_carry.data() + m_carry.size(), true);
    m_carry.clear();
    if (!m_error.empty())
        return false;
    if (m_open)
        return fail("the file is cut off: it has no record that ends it");
    return !m_parts.empty() || fail("there is no component's header");
}

/** Takes whole lines, and with `last` the rest too. Returns how many characters that were. */
std::size_t packageReader_t::takeRecords(char const* begin, char const* end, bool last)
{
    char const* position = begin;
    while (position < end)
    {
        char const* const lineEnd = findEndOfLine(position, end);
        if (lineEnd == end && !last)
            break;
        // CR and LF make two ends of line; the empty line between is none.
        if (lineEnd > position || lineEnd == end || *lineEnd != '\n' || m_lastEnd != '\r')
            ++m_line;
        m_lastEnd = lineEnd == end ? '\n' : *lineEnd;
        if (lineEnd > position && !takeRecord(position, lineEnd))
            break;
        position = lineEnd == end ? end : lineEnd + 1;
    }
    return std::size_t(position - begin);
}

bool packageReader_t::takeRecord(char const* begin, char const* end)
{
    while (end > begin && (end[-1] == ' ' || end[-1] == '\t'))
        --end;
    if (end == begin)
        return true;
    if (end - begin < std::ptrdiff_t(HEAD) || *begin != 'S' || begin[1] < '0' || begin[1] > '9')
        return fail("this is not an S-record");
    char const type = begin[1];
    unsigned int const count = DIGITS.byte(begin + 2);
    unsigned int const address = addressBytes(type);
    if (count > 255 || std::size_t(end - begin) != HEAD + 2 * std::size_t(count) || count < address + 1)
        return fail("the record has not the length that it tells");
    unsigned int const sum = sumOf(begin + 2, count + 1);
    if (sum >= INVALID)
        return fail("the record has characters that are no digits");
    if ((sum & 0xFF) != 0xFF)
        return fail("the checksum is wrong");
    switch (type)
    {
    case '0':
        return takeHeader(begin + HEAD, count);
    case '1':
    case '2':
    case '3':
        return takeData(count, address);
    case '5':
    case '6':
        return checkCount(begin + HEAD, address);
    case '7':
    case '8':
    case '9':
        return endPart();
    default:
        return fail("S4 is no record that can stand in a file");
    }
}

bool packageReader_t::takeHeader(char const* digits, unsigned int count)
{
    std::string text;
    for (unsigned int i = 2; i + 1 < count; ++i)
        text += static_cast<char>(DIGITS.byte(digits + 2 * i));
    part_t part;
    if (text.compare(0, std::strlen(MAGIC), MAGIC) != 0)
        return true;
    if (!readHeader(text, part))
        return fail("the header \"" + text + "\" names no component, version and product");
    if (!m_parts.empty() && m_partRecords == 0)
        return fail("the component before this one is empty");
    m_parts.push_back(part);
    m_partRecords = 0;
    m_open = true;
    return true;
}

bool packageReader_t::takeData(unsigned int count, unsigned int addressBytes)
{
    if (!m_open)
        return fail(m_parts.empty() ? "there is data before a component's header" : "there is data after the end");
    ++m_records;
    ++m_partRecords;
    m_parts.back().size += count - addressBytes - 1;
    return true;
}

bool packageReader_t::checkCount(char const* digits, unsigned int addressBytes)
{
    unsigned long long const told = numberOf(digits, addressBytes);
    unsigned long long const mask = (1ull << (8 * addressBytes)) - 1;
    return told == (m_records & mask) || told == (m_partRecords & mask) || fail("data records are missing");
}

bool packageReader_t::endPart()
{
    if (m_open && m_partRecords == 0)
        return fail("the component is empty");
    m_open = false;
    return true;
}

packageWriter_t::packageWriter_t() : m_address(0)
{
}

void packageWriter_t::start(part_t const& part)
{
    std::string const text = headerText(part);
    write('0', 0, 2, text.data(), text.size());
    // Components stand apart in the address space, each in a range of 16 MiB.
    m_address = unsigned(part.component) << 24;
}

void packageWriter_t::add(char const* bytes, std::size_t size)
{
    while (size > 0)
    {
        std::size_t const now = size < BYTES_PER_RECORD ? size : BYTES_PER_RECORD;
        write('3', m_address, 4, bytes, now);
        m_address += unsigned(now);
        bytes += now;
        size -= now;
    }
}

void packageWriter_t::finish()
{
    write('7', 0, 4, nullptr, 0);
}

std::string packageWriter_t::takeText()
{
    std::string text;
    text.swap(m_text);
    return text;
}

void packageWriter_t::write(char type, unsigned int address, unsigned int addressBytes, char const* bytes,
                            std::size_t size)
{
    static char const digits[] = "0123456789ABCDEF";
    std::string record;
    record += static_cast<char>(addressBytes + size + 1);
    for (unsigned int i = addressBytes; i > 0; --i)
        record += static_cast<char>(address >> (8 * (i - 1)));
    if (size > 0)
        record.append(bytes, size);
    unsigned int sum = 0;
    for (std::size_t i = 0; i < record.size(); ++i)
        sum += static_cast<unsigned char>(record[i]);
    record += static_cast<char>(~sum);
    m_text += 'S';
    m_text += type;
    for (std::size_t i = 0; i < record.size(); ++i)
    {
        m_text += digits[static_cast<unsigned char>(record[i]) >> 4];
        m_text += digits[static_cast<unsigned char>(record[i]) & 15];
    }
    m_text += '\n';
}

} // namespace melvox_firmware
