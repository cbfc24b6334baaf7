#ifndef MELVOX_DISPLAY_PAGE_REGISTRY_H
#define MELVOX_DISPLAY_PAGE_REGISTRY_H

#include <QString>
#include <QStringList>

#include <vector>

class QWidget;

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace melvox_display
{

/** The headings of the menu, in its order. */
enum class subsystem_t
{
    POSITIONING,
    CORRECTIONS,
    PORTS,
    FIRMWARE,
    DISPLAY
};

/** Something that the menu offers. What the factory makes is shown as a page, or as a dialog over the page when it is
 *  one. */
struct pageEntry_t
{
    char const* name;  //!< as --page takes it
    char const* title; //!< to be translated in the context "pages"
    subsystem_t subsystem;
    QWidget* (*create)(brel_common_qt::remoteMelvoxDevice_t* device);

    /** Something to do rather than to see: the page of the name `on` is shown, and this is done on it. */
    char const* on = nullptr;
    void (*act)(QWidget* page) = nullptr;
};

typedef std::vector<pageEntry_t> pageRegistry_t;

/** All pages of this display, in the order of the menu. */
pageRegistry_t const& allPages();

/** Null when there is none of this name. */
pageEntry_t const* findPage(pageRegistry_t const& pages, QString const& name);
QStringList pageNames(pageRegistry_t const& pages);
QString titleOf(pageEntry_t const& page);
QString headingOf(subsystem_t subsystem);

} // namespace melvox_display

#endif
