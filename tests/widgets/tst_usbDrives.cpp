#include "brel_common_qt/kitUsb.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"
#include "support/test.h"
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

} // namespace

class tst_usbDrives : public melvox_test::test_t
{
    Q_OBJECT

private slots:
    void foldersStandForDrives();
    void mountPointsCanBeAppendedTo();
    void filesAreNoDrives();
    void drivesArePluggedInAndPulledOut();
    void unchangedDrivesAreNotTold();
    void anotherRootHasOtherDrives();
    void noRootHasNoDrives();
    void managerIsTheOneThereIs();

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
