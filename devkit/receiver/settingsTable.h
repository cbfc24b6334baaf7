#ifndef MELVOX_RECEIVER_SETTINGS_TABLE_H
#define MELVOX_RECEIVER_SETTINGS_TABLE_H

#include "receiver/rule.h"

#include <QMap>

namespace melvox_receiver
{

typedef QMap<QString, QVariant> settings_t;

enum access_t
{
    READ_ONLY,
    READ_WRITE
};

/** What depends on more than the field itself: sees the receiver's other settings and the old value, may change the new
 *  one, and returns false to refuse it. */
typedef bool (*adjust_t)(settings_t const& settings, QVariant const& old, QVariant& taken);

/** One group that the receiver keeps and answers by itself. */
struct setting_t
{
    QString group;
    access_t access;
    QVariant start; //!< of a keyed group: the list of its records, in the order of their reports
    rule_t rule;    //!< of one record when the group is keyed
    QString key;    //!< the field that tells the records of a keyed group apart; empty for the others
    adjust_t adjust;
};

/** A group that needs no more than what a line says is a line here. */
QList<setting_t> const& settingsTable();

/** Null when there is no such group. */
setting_t const* findSetting(QString const& group);

/** What the receiver was delivered with. */
settings_t startSettings();

/** The antennas that the receiver knows by name, without "NONE". */
QStringList const& antennaNames();

unsigned int const NUM_PORTS = 14;
unsigned int const FIRST_USB_PORT = 4;
unsigned int const NUM_PHYSICAL_PORTS = 6;
unsigned int const FIRST_VIRTUAL_PORT = NUM_PHYSICAL_PORTS;

} // namespace melvox_receiver

#endif
