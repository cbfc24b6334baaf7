#ifndef MELVOX_UI_EXPORT_H
#define MELVOX_UI_EXPORT_H

#include <QtGlobal>

/** Everything the library does not mark with this stays hidden in it. */
#ifdef MELVOX_UI_BUILD
#define MELVOX_UI_EXPORT Q_DECL_EXPORT
#else
#define MELVOX_UI_EXPORT Q_DECL_IMPORT
#endif

/** What is declared within an exported class and is yet nobody else's: its private record, its rows. */
#ifdef __GNUC__
#define MELVOX_UI_HIDDEN __attribute__((visibility("hidden")))
#else
#define MELVOX_UI_HIDDEN
#endif

#endif
