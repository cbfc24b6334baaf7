#ifndef QDCONFIG_EXPORT_H
#define QDCONFIG_EXPORT_H

#include <QtGlobal>

#ifdef QDCONFIG_BUILD
#define QDCONFIG_EXPORT Q_DECL_EXPORT
#else
#define QDCONFIG_EXPORT Q_DECL_IMPORT
#endif

#endif
