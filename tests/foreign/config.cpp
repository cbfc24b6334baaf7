#include "qdconfig/config.h"

#include <map>

namespace qdconfig
{

// Keeps nothing across restarts.
struct config_t::privateData_t
{
    std::map<std::string, std::string> values;
};

config_t::config_t(std::string const&) : m_data(new privateData_t)
{
}

config_t::~config_t()
{
    delete m_data;
}

bool config_t::getValue(std::string const& key, std::string& value) const
{
    auto const found = m_data->values.find(key);
    if (found == m_data->values.end())
        return false;
    value = found->second;
    return true;
}

bool config_t::setValue(std::string const& key, std::string const& value)
{
    m_data->values[key] = value;
    return true;
}

std::string qdConfigEncode(bool value)
{
    return value ? "yes" : "no";
}

bool qdConfigDecode(std::string const& text, bool& value)
{
    if (text != "yes" && text != "no")
        return false;
    value = text == "yes";
    return true;
}

} // namespace qdconfig
