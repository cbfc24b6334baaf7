#ifndef MELVOX_UI_ANTENNA_IDENTIFICATION_H
#define MELVOX_UI_ANTENNA_IDENTIFICATION_H

#include "melvox_ui/melvoxUiExport.h"

#include "brel_common_qt/melvoxAntenna.h"

#include <QWidget>

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
}

namespace brel_common_qt_gui
{

/** The receiver's two antennas, which a dialog of their own edits, the antenna of the base station and how the two
 *  antennas are used. The receiver must outlive the page.
 *
 *  Lives like every settings page, see melvoxUiSolutionControl_t, but both settings can be sent before the receiver has
 *  told them, and each antenna name that the receiver tells brings both editors back to the receiver's values. */
class MELVOX_UI_EXPORT melvoxUiAntennaIdentification_t : public QWidget
{
    Q_OBJECT

public:
    explicit melvoxUiAntennaIdentification_t(brel_common_qt::remoteMelvoxDevice_t* device);
    ~melvoxUiAntennaIdentification_t();

public slots:
    void submit();
    void reset();
    void query();

    void updateInfo();
    void updateAdjust();
    void checkSelectedAntenna();
    void configureSelectedAntenna();

    void initAntList();
    void addAntName(QString const& name);

    void updateAntRemote();
    void resetAntRemote();
    void submitAntRemote();

    void initAntDualMode();
    void updateAntDualMode();
    void resetAntDualMode();
    void submitAntDualMode();

private:
    Q_DISABLE_COPY(melvoxUiAntennaIdentification_t)

    class item_t;
    struct privateData_t;

    item_t* itemForAntenna(brel_common_qt::melvoxAntenna_t antenna);
    item_t* selectedAntenna() const;
    void connectPage();
    void connectReceiver();

    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
