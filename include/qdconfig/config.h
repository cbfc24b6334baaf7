#ifndef QDCONFIG_CONFIG_H
#define QDCONFIG_CONFIG_H

#include "qdconfig/qdconfigExport.h"

#include <QtGlobal>

#include <string>

namespace qdconfig
{

/** The host's store of user-interface settings: texts by key, kept across restarts.
 *  Keys are plain 8-bit texts whose parts are parted by "/". A key without any part, one that is empty or made of "/" alone,
 *  names nothing: there is no value of it and none can be set. */
class QDCONFIG_EXPORT config_t
{
public:
    /** Opens the store at a file path. The file, and the folders on the way to it, are created by the first value that is
     *  set. */
    explicit config_t(std::string const& path);
    ~config_t();

    /** False, and `value` untouched, when the key is not there. */
    bool getValue(std::string const& key, std::string& value) const;

    /** Written to the file at once. False when the file could not be written, or the key is none. */
    bool setValue(std::string const& key, std::string const& value);

private:
    Q_DISABLE_COPY(config_t)

    struct privateData_t;
    privateData_t* m_data;
};

/** The text under which a value is stored. */
QDCONFIG_EXPORT std::string qdConfigEncode(bool value);

/** The value of a stored text. False, and `value` untouched, when the text stands for no such value. */
QDCONFIG_EXPORT bool qdConfigDecode(std::string const& text, bool& value);

} // namespace qdconfig

#endif
