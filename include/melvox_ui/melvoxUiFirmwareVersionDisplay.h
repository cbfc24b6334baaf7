#ifndef MELVOX_UI_FIRMWARE_VERSION_DISPLAY_H
#define MELVOX_UI_FIRMWARE_VERSION_DISPLAY_H

#include "melvox_ui/melvoxUiExport.h"

#include <QObject>

class QTextEdit;

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** Keeps a text box filled with the version of every firmware component that the receiver has told, in its order, and
 *  makes the box read-only. The receiver and the box must live as long. */
class MELVOX_UI_EXPORT melvoxUiFirmwareVersionDisplay_t : public QObject
{
    Q_OBJECT

public:
    melvoxUiFirmwareVersionDisplay_t(brel_common_qt::remoteMelvoxDevice_t* device, QTextEdit* textEdit,
                                     QObject* parent);
    ~melvoxUiFirmwareVersionDisplay_t();

public slots:
    /** Runs once at construction and whenever the receiver has told a version. */
    void updateText();

private:
    Q_DISABLE_COPY(melvoxUiFirmwareVersionDisplay_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
