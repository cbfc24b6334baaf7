#include "fuzz.h"

#include "receiver/profileText.h"

using namespace melvox_receiver;
using melvox_fuzz::hold;

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    QByteArray const text(reinterpret_cast<char const*>(data), int(size));
    startsProfile(text);
    settings_t settings;
    if (readProfile(text, settings) != PROFILE_COMPLETE)
        return 0;
    settings_t again;
    QByteArray const written = profileText(settings);
    hold(readProfile(written, again) == PROFILE_COMPLETE, "what was read can be written and read");
    hold(profileText(again) == written, "and stays what it is");
    return 0;
}
