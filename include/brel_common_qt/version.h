#ifndef BREL_COMMON_QT_VERSION_H
#define BREL_COMMON_QT_VERSION_H

#include "brel_common_qt/brelCommonQtExport.h"

#include <QString>

#include <string>
#include <vector>

/** Versions as lists of numbers, the most significant first. */
namespace brel_common_qt
{

/** Reads one to eight decimal numbers parted by single dots, such as "1.14.33". False, and `version` untouched, for
 *  any other text. */
BREL_COMMON_QT_EXPORT bool parseVersion(std::string const& text, std::vector<unsigned int>& version);

/** Negative when `a` is lower than `b`, 0 when equal, positive when higher. Missing parts count as 0. */
BREL_COMMON_QT_EXPORT int versionCompare(std::vector<unsigned int> const& a, std::vector<unsigned int> const& b);

/** The numbers in decimal, joined by dots. False, and `text` untouched, for an empty list. */
BREL_COMMON_QT_EXPORT bool buildVersion(QString& text, std::vector<unsigned int> const& version);

} // namespace brel_common_qt

#endif
