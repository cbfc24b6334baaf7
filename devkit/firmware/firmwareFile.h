#ifndef MELVOX_FIRMWARE_FILE_H
#define MELVOX_FIRMWARE_FILE_H

#include <cstddef>
#include <string>
#include <vector>

/** Firmware packages: Motorola S-record files that hold one or more components.
 *
 *  Each component starts with an S0 record whose bytes are the text
 *
 *      MELVOX COMP=NAV VER=1.14.33 PROD=8
 *
 *  COMP is the component's name, VER its version (anything without a blank), PROD the number of the product that it is
 *  made for, 0 when it is left out. Words that nobody knows are passed over, and so are S0 records of other text. The
 *  component's bytes follow in S1, S2 or S3 records. One S7, S8 or S9 record ends the file; a file may also end each
 *  component with one. S5 and S6 count the data records, of the component or of the file so far. Lines end with a line
 *  feed, a carriage return or both. */
namespace melvox_firmware
{

struct part_t
{
    part_t() : component(-1), product(0), size(0) {}

    int component; //!< the receiver's number for it
    int product;
    std::string version;
    unsigned long long size; //!< bytes
};

/** "BOOT1", "NAV", ...; null when there is no such number. */
char const* componentName(int component);
/** Without regard to case; -1 when there is none of that name. */
int componentFromName(std::string const& name);

std::string headerText(part_t const& part);
/** False, and `part` untouched, when the text is not the header of a component. */
bool readHeader(std::string const& text, part_t& part);

/** Reads a package piece by piece, however it is cut. Every record is checked: its digits, its length, its checksum. */
class packageReader_t
{
public:
    packageReader_t();

    /** False from the first damage on. */
    bool feed(char const* bytes, std::size_t size);

    /** To be called at the end of the file. False when it is damaged, cut off, or holds no component. */
    bool finish();

    /** What was found wrong, with the number of the line; empty when nothing was. */
    std::string const& error() const { return m_error; }

    /** In the order of the file; the last one may still be growing. */
    std::vector<part_t> const& parts() const { return m_parts; }

private:
    std::size_t takeRecords(char const* begin, char const* end, bool last);
    bool takeRecord(char const* begin, char const* end);
    bool takeHeader(char const* digits, unsigned int count);
    bool takeData(unsigned int count, unsigned int addressBytes);
    bool checkCount(char const* digits, unsigned int addressBytes);
    bool endPart();
    bool fail(std::string const& reason);

    std::string m_carry; //!< the piece of a line that the last piece ended with
    std::string m_error;
    std::vector<part_t> m_parts;
    unsigned long long m_line;
    char m_lastEnd;
    unsigned long long m_records;     //!< data records of the file so far
    unsigned long long m_partRecords; //!< of the component
    bool m_open;                      //!< no ending record since the last header
};

/** Writes a package as text. */
class packageWriter_t
{
public:
    packageWriter_t();

    /** Starts a component; the sizes of its bytes need not be known. */
    void start(part_t const& part);
    void add(char const* bytes, std::size_t size);
    /** Ends the file; nothing may be added after it. */
    void finish();

    /** What was written since the last time. */
    std::string takeText();

private:
    void write(char type, unsigned int address, unsigned int addressBytes, char const* bytes, std::size_t size);

    std::string m_text;
    unsigned int m_address;
};

} // namespace melvox_firmware

#endif
