#ifndef MELVOX_UI_CORRECTIONS_RECEIVER_P_H
#define MELVOX_UI_CORRECTIONS_RECEIVER_P_H

#include "melvox_ui/melvoxUiCorrectionsReceiver.h"

#include "brel_common_qt/melvoxCorrections.h"
#include "ui_melvoxUiCorrectionsReceiver.h"

#include <QBitArray>

class QTimer;

namespace brel_common_qt_gui
{

class dialogPage_t;
class melvoxUiCorrectionSatSelectDialog_t;

/** The row of one satellite in the status table. */
class MELVOX_UI_HIDDEN melvoxUiCorrectionsReceiver_t::item_t : public QTreeWidgetItem
{
public:
    enum
    {
        COLUMN_ID = 0,
        COLUMN_ACTIVE = 1,
        COLUMN_SIGNAL_STATUS = 2,
        COLUMN_SNR = 3,
        COLUMN_AGC = 4,
        COLUMN_IDLE = 5,
        COLUMN_BAD = 6,
        COLUMN_RESYNC = 7
    };

    item_t(brel_common_qt::melvoxCorrectionSatStats_t const& stat, unsigned int inUse);
    ~item_t();

    bool operator<(QTreeWidgetItem const& other) const override;

    unsigned int id() const { return m_stat.id; }
    bool shows(brel_common_qt::melvoxCorrectionSatStats_t const& stat, unsigned int inUse) const;
    void update(brel_common_qt::melvoxCorrectionSatStats_t const& stat, unsigned int inUse);

private:
    brel_common_qt::melvoxCorrectionSatStats_t m_stat;
    bool m_active; //!< this satellite is the one in use
};

struct MELVOX_UI_HIDDEN melvoxUiCorrectionsReceiver_t::privateData_t
{
    explicit privateData_t(brel_common_qt::remoteMelvoxDevice_t* device_);

    brel_common_qt::remoteMelvoxDevice_t* device;
    Ui_melvoxUiCorrectionsReceiver ui;
    melvoxUiCorrectionSatSelectDialog_t* satSelectDialog;
    dialogPage_t* satSelectDialogPage; //!< owned
    QTimer* statsTimer;                //!< for when old statistics are to be cleared; nothing starts it yet
    QBitArray setUi;
};

} // namespace brel_common_qt_gui

#endif
