#include "fuzz.h"

#include "link/jsonLine.h"

using melvox_fuzz::hold;
using melvox_link::message_t;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    message_t message;
    QString reason;
    if (!melvox_link::fromLine(QByteArray(reinterpret_cast<char const*>(data), int(size)), message, reason))
    {
        hold(!reason.isEmpty(), "whatever is refused is refused for a reason");
        return 0;
    }
    melvox_link::toText(message);
    QByteArray const line = melvox_link::toLine(message);
    hold(line.count('\n') == 1 && line.endsWith('\n'), "a message is one line");
    message_t again;
    hold(melvox_link::fromLine(line, again, reason), "what was read can be written and read");
    hold(melvox_link::toLine(again) == line, "and stays what it is");
    return 0;
}
