#ifndef MELVOX_UI_FIRMWARE_SELECTOR_H
#define MELVOX_UI_FIRMWARE_SELECTOR_H

#include "melvox_ui/melvoxUiExport.h"

#include <QObject>

namespace brel_common_qt
{
struct usbDrive_t;
}

namespace brel_common_qt_gui
{

class melvoxUiFirmwarePackage_t;

/** Gets a firmware package, wherever it comes from: from a USB drive where the unit has a USB drive manager when this is
 *  made, from a file dialog otherwise. What has no firmware in it is refused with a message, and the file dialog comes
 *  back. Needs no receiver. */
class MELVOX_UI_EXPORT melvoxUiFirmwareSelector_t : public QObject
{
    Q_OBJECT

public:
    explicit melvoxUiFirmwareSelector_t(QObject* parent);
    ~melvoxUiFirmwareSelector_t();

    /** The package found last, the caller's from now on; null when there is none or it was taken. */
    melvoxUiFirmwarePackage_t* takePackage();

public slots:
    /** Begins a selection and returns at once; packageSelected() follows unless the operator gives up. Components made
     *  for the product code come first in the package. */
    void selectPackage(int productCode);

signals:
    /** A package is ready to be taken. */
    void packageSelected();

private slots:
    void handleDriveSelected(brel_common_qt::usbDrive_t const& drive);
    void handlePackageSelected();
    void handleFileSelected(QString const& path);
    void showFileDialog();

private:
    Q_DISABLE_COPY(melvoxUiFirmwareSelector_t)

    struct privateData_t;

    void showInvalid();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
