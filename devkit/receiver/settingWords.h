#ifndef MELVOX_RECEIVER_SETTING_WORDS_H
#define MELVOX_RECEIVER_SETTING_WORDS_H

#include <QString>

#include <vector>

namespace melvox_receiver
{

/** How a value is meant to be read. */
enum class reading_t
{
    PLAIN, //!< numbers and texts as they are
    FLAG,
    WORDS, //!< a number that stands for one of the words
    PORT,
    ADDRESS,   //!< IPv4
    LATITUDE,  //!< radians
    LONGITUDE, //!< radians
    DISTANCE   //!< metres
};

/** One field of one setting in words that an operator knows. All texts are to be translated in the context
 *  "settings". */
struct settingWords_t
{
    char const* group;
    char const* field; //!< empty: the group is a single value; INDEX: which of the records it is
    char const* name;
    reading_t reading;
    char const* unit; //!< empty: none
    std::vector<char const*> words;
    bool isKey; //!< tells the records of the group apart, so it goes before the names of the other fields
};

/** Stands for the place in a list whose records have no field that tells them apart. */
extern char const* const INDEX;

/** Every field of every setting that a display can change. */
std::vector<settingWords_t> const& settingWords();

/** Null when there is none. */
settingWords_t const* findWords(QString const& group, QString const& field);

/** What tells the records of a group apart; null for a group without such records. */
settingWords_t const* findKey(QString const& group);

} // namespace melvox_receiver

#endif
