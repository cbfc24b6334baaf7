#ifndef MELVOX_TEST_PAGE_CREATOR_H
#define MELVOX_TEST_PAGE_CREATOR_H

#include "brel_common_qt/remoteMelvoxDevice.h"

#include <QDialog>
#include <QWidget>

#include <type_traits>

/** Makes any class of the library that is a screen, for tests of all of them. */
namespace melvox_test
{

typedef QWidget* (*create_t)(brel_common_qt::remoteMelvoxDevice_t* device);

/** How a page, a dialog on the receiver, and one without it are built. Other classes have no screen: null. */
template <typename page_t>
typename std::enable_if<std::is_base_of<QWidget, page_t>::value &&
                            std::is_constructible<page_t, brel_common_qt::remoteMelvoxDevice_t*>::value &&
                            !std::is_base_of<QDialog, page_t>::value,
                        create_t>::type
creator()
{
    return [](brel_common_qt::remoteMelvoxDevice_t* device) -> QWidget* { return new page_t(device); };
}

template <typename page_t>
typename std::enable_if<std::is_base_of<QDialog, page_t>::value &&
                            std::is_constructible<page_t, brel_common_qt::remoteMelvoxDevice_t*, QWidget*>::value,
                        create_t>::type
creator()
{
    return [](brel_common_qt::remoteMelvoxDevice_t* device) -> QWidget* { return new page_t(device, 0); };
}

template <typename page_t>
typename std::enable_if<std::is_base_of<QDialog, page_t>::value &&
                            !std::is_constructible<page_t, brel_common_qt::remoteMelvoxDevice_t*, QWidget*>::value,
                        create_t>::type
creator()
{
    return [](brel_common_qt::remoteMelvoxDevice_t*) -> QWidget* { return new page_t(static_cast<QWidget*>(0)); };
}

template <typename page_t> typename std::enable_if<!std::is_base_of<QWidget, page_t>::value, create_t>::type creator()
{
    return 0;
}

struct page_t
{
    char const* name;
    create_t create; //!< null: no screen
};

} // namespace melvox_test

#endif
