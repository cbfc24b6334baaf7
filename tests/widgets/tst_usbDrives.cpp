#include "brel_common_qt/kitUsb.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"
#include "support/folder.h"
#include "support/test.h"
#include "support/unprivileged.h"
#include "typing.h"

#include <QDir>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>

using namespace brel_common_qt;
using namespace brel_common_qt_gui;
using melvox_test::part;
using melvox_test::waitFor;

namespace
{

QString names(QList<usbDrive_t> const& drives)
{
    QStringList texts;
    for (int i = 0; i < drives.size(); ++i)
        texts << drives.at(i).name;
    return texts.join(" ");
}

QString rows(QDialog const& dialog)
{
    QTreeWidget const* const tree = part<QTreeWidget>(dialog, "driveTreeWidget");
    QStringList texts;
    for (int i = 0; i < tree->topLevelItemCount(); ++i)
        texts << tree->topLevelItem(i)->text(0);
    return texts.join(" ");
}

void choose(QDialog const& dialog, int row)
{
    QTreeWidget* const tree = part<QTreeWidget>(dialog, "driveTreeWidget");
    tree->setCurrentItem(tree->topLevelItem(row));
}

void tap(QDialog const& dialog)
{
    QTest::mouseClick(part<QPushButton>(dialog, "selectButton"), Qt::LeftButton);
}

/** A machine that mounts what the test says. */
class machine_t : public melvox_kit::mountTable_t
{
public:
    QList<melvox_kit::mount_t> mounts() const override { return m_mounts; }

    /** The kernel's folder of a disk, with one partition unless it is none on its own. */
    void addDisk(QString const& bus, QString const& name, bool removable)
    {
        QString const disk = "devices/" + bus + "/block/" + name;
        m_sys.write(disk + "/removable", removable ? "1\n" : "0\n");
        m_sys.write(disk + "/" + name + "1/partition", "1\n");
        m_sys.makeDir("class/block");
        QVERIFY(QFile::link(m_sys.path(disk), m_sys.path("class/block/" + name)));
        QVERIFY(QFile::link(m_sys.path(disk + "/" + name + "1"), m_sys.path("class/block/" + name + "1")));
    }
    void mount(QString const& device, QString const& path, QString const& name = QString())
    {
        melvox_kit::mount_t mount;
        mount.device = device;
        mount.path = path;
        mount.name = name;
        m_mounts << mount;
        emit changed();
    }
    void unmount(QString const& path)
    {
        for (int i = m_mounts.size() - 1; i >= 0; --i)
        {
            if (m_mounts.at(i).path == path)
                m_mounts.removeAt(i);
        }
        emit changed();
    }
    QString sys() const { return m_sys.path(); }

private:
    melvox_test::folder_t m_sys;
    QList<melvox_kit::mount_t> m_mounts;
};

} // namespace

class tst_usbDrives : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void foldersStandForDrives();
    void mountPointsCanBeAppendedTo();
    void filesAreNoDrives();
    void drivesThatAreWriteProtectedAreThereToReadFrom();
    void foldersThatCannotBeReadAreNoDrives();
    void drivesArePluggedInAndPulledOut();
    void unchangedDrivesAreNotTold();
    void anotherRootHasOtherDrives();
    void noRootHasNoDrives();
    void managerIsTheOneThereIs();

    void drivesOfTheMachineAreWhereDesktopsMountThem_data();
    void drivesOfTheMachineAreWhereDesktopsMountThem();
    void drivesOfTheMachineAreRemovableWhereverTheyAreMounted_data();
    void drivesOfTheMachineAreRemovableWhereverTheyAreMounted();
    void drivesOfTheMachineAreNamedAfterTheirLabels();
    void drivesOfTheMachineComeAndGo();
    void machineWithoutChangeTellsNothing();
    void foldersTakeThePlaceOfTheMachine();
    void machineThatIsGoneHasNoDrives();
    void thisMachineIsRead();

    void dialogListsTheDrives();
    void dialogFollowsTheDrives();
    void dialogTellsWhenThereIsNoDrive();
    void dialogWorksWithoutAManager();
    void onlyASelectedDriveCanBeTaken();
    void theOnlyDriveIsSelected();
    void selectionStaysWhenDrivesCome();
    void selectionGoesWithItsDrive();
    void selectTellsTheDriveAndCloses();
    void dialogIsClosedWhenItTells();
    void doubleTapSelectsToo();
    void cancelTellsNothing();
    void dialogMayDeleteItselfWhenItIsFinished();
    void dialogIsMadeForTouch();

public slots:
    void noteDrive(brel_common_qt::usbDrive_t const& drive);

private:
    void setUp() override;
    void tearDown() override;

    void plugIn(char const* name) { QVERIFY(m_root.mkdir(name)); }
    void pullOut(char const* name) { QVERIFY(m_root.rmdir(name)); }

    QDir m_root;
    QPointer<usbDriveSelectDialog_t> m_dialog;
    QStringList m_told;
    bool m_visibleWhenTold;
};

void tst_usbDrives::noteDrive(usbDrive_t const& drive)
{
    m_told << drive.name + " " + drive.mountPoint;
    m_visibleWhenTold = m_dialog && m_dialog->isVisible();
}

void tst_usbDrives::setUp()
{
    m_told.clear();
    m_root = QDir(QDir::tempPath() + QString("/tst_usbDrives_%1").arg(QCoreApplication::applicationPid()));
    QVERIFY(m_root.mkpath("."));
    melvox_kit::setUsbRoot(m_root.absolutePath());
}

void tst_usbDrives::tearDown()
{
    delete m_dialog;
    melvox_kit::setUsbRoot(QString());
    QStringList const drives = m_root.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (int i = 0; i < drives.size(); ++i)
        m_root.rmdir(drives.at(i));
    QVERIFY(QDir().rmdir(m_root.absolutePath()));
}

void tst_usbDrives::foldersStandForDrives()
{
    plugIn("STICK2");
    plugIn("STICK1");
    usbDriveManager_t const manager;
    QCOMPARE(names(manager.drives()), QString("STICK1 STICK2"));
}

void tst_usbDrives::mountPointsCanBeAppendedTo()
{
    plugIn("STICK");
    usbDriveManager_t const manager;
    QCOMPARE(manager.drives().first().mountPoint, m_root.absolutePath() + "/STICK/");
}

void tst_usbDrives::filesAreNoDrives()
{
    QFile file(m_root.absoluteFilePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    usbDriveManager_t const manager;
    QVERIFY(manager.drives().isEmpty());
    QVERIFY(file.remove());
}

void tst_usbDrives::drivesThatAreWriteProtectedAreThereToReadFrom()
{
    plugIn("STICK");
    QVERIFY(QFile::setPermissions(m_root.filePath("STICK"), QFile::Permissions(0x5555)));
    melvox_test::unprivileged_t const user;
    usbDriveManager_t const manager;
    QCOMPARE(names(manager.drives()), QString("STICK"));
}

void tst_usbDrives::foldersThatCannotBeReadAreNoDrives()
{
    plugIn("STICK");
    QVERIFY(QFile::setPermissions(m_root.filePath("STICK"), QFile::Permissions()));
    melvox_test::unprivileged_t const user;
    usbDriveManager_t const manager;
    QCOMPARE(names(manager.drives()), QString());
}

void tst_usbDrives::drivesArePluggedInAndPulledOut()
{
    usbDriveManager_t manager;
    QSignalSpy changed(&manager, SIGNAL(drivesChanged()));
    QVERIFY(manager.drives().isEmpty());
    plugIn("STICK1");
    QVERIFY(waitFor([&]() { return changed.count() == 1; }));
    QCOMPARE(names(manager.drives()), QString("STICK1"));
    plugIn("STICK2");
    QVERIFY(waitFor([&]() { return changed.count() == 2; }));
    QCOMPARE(names(manager.drives()), QString("STICK1 STICK2"));
    pullOut("STICK1");
    QVERIFY(waitFor([&]() { return changed.count() == 3; }));
    QCOMPARE(names(manager.drives()), QString("STICK2"));
}

void tst_usbDrives::unchangedDrivesAreNotTold()
{
    plugIn("STICK1");
    usbDriveManager_t manager;
    QSignalSpy changed(&manager, SIGNAL(drivesChanged()));
    QFile file(m_root.absoluteFilePath("file"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.remove());
    plugIn("STICK2");
    QVERIFY(waitFor([&]() { return names(manager.drives()) == "STICK1 STICK2"; }));
    QCOMPARE(changed.count(), 1);
}

void tst_usbDrives::anotherRootHasOtherDrives()
{
    plugIn("STICK1");
    QVERIFY(m_root.mkdir("STICK1/INNER"));
    usbDriveManager_t manager;
    QSignalSpy changed(&manager, SIGNAL(drivesChanged()));
    melvox_kit::setUsbRoot(m_root.absoluteFilePath("STICK1"));
    QCOMPARE(names(manager.drives()), QString("INNER"));
    QCOMPARE(changed.count(), 1);
    QVERIFY(m_root.rmdir("STICK1/INNER"));
    QVERIFY(waitFor([&]() { return changed.count() == 2; }));
}

void tst_usbDrives::noRootHasNoDrives()
{
    plugIn("STICK1");
    usbDriveManager_t const manager;
    melvox_kit::setUsbRoot(QString());
    QVERIFY(manager.drives().isEmpty());
    melvox_kit::setUsbRoot(m_root.absoluteFilePath("nothing"));
    QVERIFY(manager.drives().isEmpty());
}

void tst_usbDrives::managerIsTheOneThereIs()
{
    QVERIFY(!usbDriveManager_t::m_instance);
    {
        usbDriveManager_t const manager;
        QCOMPARE(static_cast<usbDriveManager_t const*>(usbDriveManager_t::m_instance), &manager);
    }
    QVERIFY(!usbDriveManager_t::m_instance);
}

void tst_usbDrives::drivesOfTheMachineAreWhereDesktopsMountThem_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("found");
    QTest::newRow("media") << "/dev/sdb1"
                           << "/media/user/STICK"
                           << "STICK";
    QTest::newRow("run") << "/dev/sdb1"
                         << "/run/media/user/STICK"
                         << "STICK";
    QTest::newRow("by hand") << "/dev/sdb1"
                             << "/mnt/stick"
                             << "stick";
    QTest::newRow("the system's own") << "/dev/sdb1"
                                      << "/"
                                      << "";
    QTest::newRow("elsewhere") << "/dev/sdb1"
                               << "/home"
                               << "";
    QTest::newRow("memory") << "tmpfs"
                            << "/mnt/memory"
                            << "";
    QTest::newRow("network") << "server:/files"
                             << "/mnt/files"
                             << "";
}

void tst_usbDrives::drivesOfTheMachineAreWhereDesktopsMountThem()
{
    QFETCH(QString, device);
    QFETCH(QString, path);
    machine_t machine;
    machine.mount(device, path);
    melvox_kit::setUsbMounts(&machine, machine.sys());
    usbDriveManager_t const manager;
    QTEST(names(manager.drives()), "found");
    for (int i = 0; i < manager.drives().size(); ++i)
        QCOMPARE(manager.drives().at(i).mountPoint, path + "/");
}

void tst_usbDrives::drivesOfTheMachineAreRemovableWhereverTheyAreMounted_data()
{
    QTest::addColumn<QString>("bus");
    QTest::addColumn<bool>("removable");
    QTest::addColumn<QString>("device");
    QTest::addColumn<QString>("found");
    QTest::newRow("stick") << "pci0/host1" << true << "/dev/sdx"
                           << "drive";
    QTest::newRow("partition of a stick") << "pci0/host1" << true << "/dev/sdx1"
                                          << "drive";
    QTest::newRow("hard disk on USB") << "pci0/usb1/1-2/host6" << false << "/dev/sdx1"
                                      << "drive";
    QTest::newRow("hard disk inside") << "pci0/ata1/host0" << false << "/dev/sdx1"
                                      << "";
    QTest::newRow("unknown device") << "pci0/usb1/1-2/host6" << true << "/dev/sdy1"
                                    << "";
}

void tst_usbDrives::drivesOfTheMachineAreRemovableWhereverTheyAreMounted()
{
    QFETCH(QString, bus);
    QFETCH(bool, removable);
    QFETCH(QString, device);
    machine_t machine;
    machine.addDisk(bus, "sdx", removable);
    machine.mount(device, "/data/drive");
    melvox_kit::setUsbMounts(&machine, machine.sys());
    usbDriveManager_t const manager;
    QTEST(names(manager.drives()), "found");
}

void tst_usbDrives::drivesOfTheMachineAreNamedAfterTheirLabels()
{
    machine_t machine;
    machine.mount("/dev/sdc1", "/media/user/1234-ABCD", "Tractor");
    machine.mount("/dev/sdb1", "/media/user/5678-ABCD", "Combine");
    melvox_kit::setUsbMounts(&machine, machine.sys());
    usbDriveManager_t const manager;
    QCOMPARE(names(manager.drives()), QString("Combine Tractor"));
}

void tst_usbDrives::drivesOfTheMachineComeAndGo()
{
    machine_t machine;
    melvox_kit::setUsbMounts(&machine, machine.sys());
    usbDriveManager_t manager;
    usbDriveSelectDialog_t const dialog(&manager, nullptr);
    QSignalSpy changed(&manager, SIGNAL(drivesChanged()));
    QVERIFY(manager.drives().isEmpty());
    machine.mount("/dev/sdb1", "/media/STICK");
    QCOMPARE(changed.count(), 1);
    QCOMPARE(rows(dialog), QString("STICK"));
    machine.unmount("/media/STICK");
    QCOMPARE(changed.count(), 2);
    QCOMPARE(rows(dialog), QString());
}

void tst_usbDrives::machineWithoutChangeTellsNothing()
{
    machine_t machine;
    machine.mount("/dev/sdb1", "/media/STICK");
    melvox_kit::setUsbMounts(&machine, machine.sys());
    usbDriveManager_t manager;
    QSignalSpy changed(&manager, SIGNAL(drivesChanged()));
    machine.mount("/dev/vda2", "/home");
    machine.unmount("/home");
    QCOMPARE(changed.count(), 0);
}

void tst_usbDrives::foldersTakeThePlaceOfTheMachine()
{
    plugIn("STICK1");
    machine_t machine;
    machine.mount("/dev/sdb1", "/media/REAL");
    usbDriveManager_t const manager;
    QCOMPARE(names(manager.drives()), QString("STICK1"));
    melvox_kit::setUsbMounts(&machine, machine.sys());
    QCOMPARE(names(manager.drives()), QString("REAL"));
    melvox_kit::setUsbRoot(m_root.absolutePath());
    QCOMPARE(names(manager.drives()), QString("STICK1"));
    machine.unmount("/media/REAL");
    QCOMPARE(names(manager.drives()), QString("STICK1"));
}

void tst_usbDrives::machineThatIsGoneHasNoDrives()
{
    QScopedPointer<machine_t> machine(new machine_t);
    machine->mount("/dev/sdb1", "/media/STICK");
    melvox_kit::setUsbMounts(machine.data(), machine->sys());
    usbDriveManager_t manager;
    QSignalSpy changed(&manager, SIGNAL(drivesChanged()));
    machine.reset();
    QCOMPARE(changed.count(), 1);
    QVERIFY(manager.drives().isEmpty());
}

void tst_usbDrives::thisMachineIsRead()
{
    QScopedPointer<melvox_kit::mountTable_t> const machine(melvox_kit::createSystemMounts());
#if QT_VERSION < 0x050400
    QVERIFY(!machine);
#else
    QList<melvox_kit::mount_t> const mounts = machine->mounts();
    bool hasRoot = false;
    for (int i = 0; i < mounts.size(); ++i)
        hasRoot = hasRoot || mounts.at(i).path == "/";
    QVERIFY(hasRoot);
#endif
}

void tst_usbDrives::dialogListsTheDrives()
{
    plugIn("STICK1");
    plugIn("STICK2");
    usbDriveManager_t manager;
    usbDriveSelectDialog_t const dialog(&manager, nullptr);
    QCOMPARE(rows(dialog), QString("STICK1 STICK2"));
}

void tst_usbDrives::dialogFollowsTheDrives()
{
    usbDriveManager_t manager;
    usbDriveSelectDialog_t dialog(&manager, nullptr);
    dialog.show();
    plugIn("STICK1");
    QVERIFY(waitFor([&]() { return rows(dialog) == "STICK1"; }));
    plugIn("STICK2");
    QVERIFY(waitFor([&]() { return rows(dialog) == "STICK1 STICK2"; }));
    pullOut("STICK1");
    QVERIFY(waitFor([&]() { return rows(dialog) == "STICK2"; }));
}

void tst_usbDrives::dialogTellsWhenThereIsNoDrive()
{
    usbDriveManager_t manager;
    usbDriveSelectDialog_t dialog(&manager, nullptr);
    dialog.show();
    QLabel* const label = part<QLabel>(dialog, "emptyLabel");
    QVERIFY(label->isVisible());
    QVERIFY(!label->text().isEmpty());
    plugIn("STICK1");
    QVERIFY(waitFor([&]() { return !label->isVisible(); }));
    pullOut("STICK1");
    QVERIFY(waitFor([&]() { return label->isVisible(); }));
}

void tst_usbDrives::dialogWorksWithoutAManager()
{
    usbDriveSelectDialog_t const none(nullptr, nullptr);
    QCOMPARE(rows(none), QString());
    plugIn("STICK1");
    usbDriveManager_t* const manager = new usbDriveManager_t;
    usbDriveSelectDialog_t const dialog(manager, nullptr);
    delete manager;
    QCOMPARE(rows(dialog), QString("STICK1"));
}

void tst_usbDrives::onlyASelectedDriveCanBeTaken()
{
    plugIn("STICK1");
    plugIn("STICK2");
    usbDriveManager_t manager;
    usbDriveSelectDialog_t const dialog(&manager, nullptr);
    QPushButton* const button = part<QPushButton>(dialog, "selectButton");
    QVERIFY(!button->isEnabled());
    choose(dialog, 1);
    QVERIFY(button->isEnabled());
    part<QTreeWidget>(dialog, "driveTreeWidget")->clearSelection();
    QVERIFY(!button->isEnabled());
}

void tst_usbDrives::theOnlyDriveIsSelected()
{
    plugIn("STICK1");
    usbDriveManager_t manager;
    usbDriveSelectDialog_t const dialog(&manager, nullptr);
    QVERIFY(part<QPushButton>(dialog, "selectButton")->isEnabled());
}

void tst_usbDrives::selectionStaysWhenDrivesCome()
{
    plugIn("STICK1");
    plugIn("STICK3");
    usbDriveManager_t manager;
    usbDriveSelectDialog_t const dialog(&manager, nullptr);
    choose(dialog, 1);
    plugIn("STICK2");
    QVERIFY(waitFor([&]() { return rows(dialog) == "STICK1 STICK2 STICK3"; }));
    QList<QTreeWidgetItem*> const selected = part<QTreeWidget>(dialog, "driveTreeWidget")->selectedItems();
    QCOMPARE(selected.size(), 1);
    QCOMPARE(selected.first()->text(0), QString("STICK3"));
}

void tst_usbDrives::selectionGoesWithItsDrive()
{
    plugIn("STICK1");
    plugIn("STICK2");
    plugIn("STICK3");
    usbDriveManager_t manager;
    usbDriveSelectDialog_t const dialog(&manager, nullptr);
    choose(dialog, 1);
    pullOut("STICK2");
    QVERIFY(waitFor([&]() { return rows(dialog) == "STICK1 STICK3"; }));
    QVERIFY(!part<QPushButton>(dialog, "selectButton")->isEnabled());
}

void tst_usbDrives::selectTellsTheDriveAndCloses()
{
    plugIn("STICK1");
    plugIn("STICK2");
    usbDriveManager_t manager;
    m_dialog = new usbDriveSelectDialog_t(&manager, nullptr);
    connect(m_dialog, SIGNAL(driveSelected(brel_common_qt::usbDrive_t)), SLOT(noteDrive(brel_common_qt::usbDrive_t)));
    m_dialog->show();
    choose(*m_dialog, 1);
    tap(*m_dialog);
    QCOMPARE(m_told.join(","), "STICK2 " + m_root.absolutePath() + "/STICK2/");
    QVERIFY(!m_dialog->isVisible());
    QCOMPARE(m_dialog->result(), int(QDialog::Accepted));
}

void tst_usbDrives::dialogIsClosedWhenItTells()
{
    plugIn("STICK1");
    usbDriveManager_t manager;
    m_dialog = new usbDriveSelectDialog_t(&manager, nullptr);
    connect(m_dialog, SIGNAL(driveSelected(brel_common_qt::usbDrive_t)), SLOT(noteDrive(brel_common_qt::usbDrive_t)));
    m_dialog->show();
    tap(*m_dialog);
    QCOMPARE(m_told.size(), 1);
    QVERIFY(!m_visibleWhenTold);
}

void tst_usbDrives::doubleTapSelectsToo()
{
    plugIn("STICK1");
    usbDriveManager_t manager;
    m_dialog = new usbDriveSelectDialog_t(&manager, nullptr);
    connect(m_dialog, SIGNAL(driveSelected(brel_common_qt::usbDrive_t)), SLOT(noteDrive(brel_common_qt::usbDrive_t)));
    QVERIFY(melvox_test::showActive(*m_dialog));
    QTreeWidget* const tree = part<QTreeWidget>(*m_dialog, "driveTreeWidget");
    QPoint const place = tree->visualItemRect(tree->topLevelItem(0)).center();
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(tree->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QCOMPARE(m_told.size(), 1);
}

void tst_usbDrives::cancelTellsNothing()
{
    plugIn("STICK1");
    usbDriveManager_t manager;
    m_dialog = new usbDriveSelectDialog_t(&manager, nullptr);
    connect(m_dialog, SIGNAL(driveSelected(brel_common_qt::usbDrive_t)), SLOT(noteDrive(brel_common_qt::usbDrive_t)));
    m_dialog->show();
    m_dialog->reject();
    QVERIFY(m_told.isEmpty());
}

void tst_usbDrives::dialogMayDeleteItselfWhenItIsFinished()
{
    plugIn("STICK1");
    usbDriveManager_t manager;
    m_dialog = new usbDriveSelectDialog_t(&manager, nullptr);
    connect(m_dialog, SIGNAL(finished(int)), m_dialog, SLOT(deleteLater()));
    connect(m_dialog, SIGNAL(driveSelected(brel_common_qt::usbDrive_t)), SLOT(noteDrive(brel_common_qt::usbDrive_t)));
    m_dialog->show();
    tap(*m_dialog);
    melvox_test::settle();
    QVERIFY(!m_dialog);
    QCOMPARE(m_told.size(), 1);
}

void tst_usbDrives::dialogIsMadeForTouch()
{
    plugIn("STICK1");
    usbDriveManager_t manager;
    usbDriveSelectDialog_t dialog(&manager, nullptr);
    QVERIFY(melvox_test::showActive(dialog));
    QList<QPushButton*> const buttons = dialog.findChildren<QPushButton*>();
    QCOMPARE(buttons.size(), 2);
    for (int i = 0; i < buttons.size(); ++i)
        QVERIFY(buttons.at(i)->height() >= 40);
    QTreeWidget* const tree = part<QTreeWidget>(dialog, "driveTreeWidget");
    QVERIFY(!tree->accessibleName().isEmpty());
    QVERIFY(!tree->rootIsDecorated());
    QVERIFY(tree->visualItemRect(tree->topLevelItem(0)).height() >= 40);
}

QTEST_MAIN(tst_usbDrives)
#include "tst_usbDrives.moc"
