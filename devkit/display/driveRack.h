#ifndef MELVOX_DISPLAY_DRIVE_RACK_H
#define MELVOX_DISPLAY_DRIVE_RACK_H

#include <QByteArray>
#include <QMap>
#include <QObject>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

namespace brel_common_qt
{
class usbDriveManager_t;
}

namespace melvox_kit
{
class mountTable_t;
}

namespace melvox_display
{

/** The USB drives that can be plugged into the unit, each a folder in one folder. What is pulled out keeps its files: its
 *  folder is hidden, by a dot before its name. Without a folder of the user's the unit has no drives until one is plugged
 *  in; then they are in a temporary folder, which goes with the rack. */
class driveRack_t : public QObject
{
    Q_OBJECT

public:
    /** Empty: none. */
    explicit driveRack_t(QString const& folder, QObject* parent = nullptr);
    ~driveRack_t() override;

    /** From now on the unit has places for drives, be they empty. False: no temporary folder could be made. */
    bool open();

    /** The drives are those of this machine, which only a hand can plug in and pull out. */
    void openReal();
    bool isReal() const { return bool(m_mounts); }

    QString folder() const { return m_folder; } //!< empty: not open
    bool isTemporary() const { return bool(m_temporary); }
    QStringList pluggedIn() const;
    QStringList pulledOut() const;

    /** Files that are on the drive already stay as they are. False when the drive or a file could not be written. */
    bool plugIn(QString const& name, QMap<QString, QByteArray> const& files = {});
    bool pullOut(QString const& name);

    /** A name that no drive has. */
    QString newName() const;

signals:
    void changed();

private:
    QString hidden(QString const& name) const;
    QString path(QString const& name) const;
    void createManager();

    QString m_folder;
    std::unique_ptr<QTemporaryDir> m_temporary;
    std::unique_ptr<melvox_kit::mountTable_t> m_mounts;
    std::unique_ptr<brel_common_qt::usbDriveManager_t> m_manager;
};

} // namespace melvox_display

#endif
