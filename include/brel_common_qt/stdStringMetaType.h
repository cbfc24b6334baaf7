#ifndef BREL_COMMON_QT_STD_STRING_META_TYPE_H
#define BREL_COMMON_QT_STD_STRING_META_TYPE_H

#include <QMetaType>

#include <string>

/** Signals carry std::string; whoever queues or records them needs its meta type. */
Q_DECLARE_METATYPE(std::string)

#endif
