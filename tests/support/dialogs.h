#ifndef MELVOX_TEST_DIALOGS_H
#define MELVOX_TEST_DIALOGS_H

#include "brel_common_qt/kitUsb.h"
#include "brel_common_qt/usbDriveManager.h"
#include "support/folder.h"
#include "support/operator.h"
#include "support/test.h"

#include <QApplication>
#include <QFileDialog>

namespace melvox_test
{

/** The dialog of that object name which is open now; null when there is none. */
inline QDialog* openDialog(QString const& name)
{
    QWidgetList const all = QApplication::topLevelWidgets();
    for (int i = 0; i < all.size(); ++i)
    {
        QDialog* const dialog = qobject_cast<QDialog*>(all.at(i));
        if (dialog && dialog->isVisible() && dialog->objectName() == name)
            return dialog;
    }
    return 0;
}

/** The file dialog that is open now; null when there is none. */
inline QFileDialog* openFileDialog()
{
    QWidgetList const all = QApplication::topLevelWidgets();
    for (int i = 0; i < all.size(); ++i)
    {
        QFileDialog* const dialog = qobject_cast<QFileDialog*>(all.at(i));
        if (dialog && dialog->isVisible())
            return dialog;
    }
    return 0;
}

/** Types a path into the file dialog that is open now, and presses Enter. */
inline void chooseFile(QString const& path)
{
    QFileDialog* const dialog = openFileDialog();
    if (!dialog)
        qFatal("no file dialog is open");
    QLineEdit* const edit = find<QLineEdit>(dialog, "fileNameEdit");
    edit->setText(path);
    QTest::keyClick(edit, Qt::Key_Return);
    settle();
}

inline void cancelFileDialog()
{
    QFileDialog* const dialog = openFileDialog();
    if (!dialog)
        qFatal("no file dialog is open");
    dialog->reject();
    settle();
}

/** A unit with USB drives: the folders in one folder, while this lives. Made before the page. */
class usb_t
{
public:
    usb_t() { melvox_kit::setUsbRoot(m_root.path()); }
    ~usb_t() { melvox_kit::setUsbRoot(QString()); }

    /** Plugs a drive in. Returns its mount point, with a separator at the end. */
    QString plugIn(QString const& name) { return m_root.makeDir(name) + "/"; }
    void pullOut(QString const& name) { folder_t::remove(m_root.path(name)); }
    QString write(QString const& name, QByteArray const& bytes = QByteArray()) { return m_root.write(name, bytes); }

    /** Chooses a drive in the drive dialog that is open now. */
    void choose(QString const& drive)
    {
        QDialog* const dialog = openDialog("usbDriveSelectDialog");
        if (!dialog)
            qFatal("no drive dialog is open");
        QTreeWidget* const tree = find<QTreeWidget>(dialog, "driveTreeWidget");
        if (!waitFor([&] { return !tree->findItems(drive, Qt::MatchExactly).isEmpty(); }))
            qFatal("there is no such drive");
        tree->setCurrentItem(tree->findItems(drive, Qt::MatchExactly).first());
        tap(dialog, "selectButton");
    }

private:
    folder_t m_root;
    brel_common_qt::usbDriveManager_t m_manager;
};

/** The process's current directory as it was before, in the end. */
class currentDir_t
{
public:
    currentDir_t() : m_path(QDir::currentPath()) {}
    ~currentDir_t() { QDir::setCurrent(m_path); }

private:
    QString m_path;
};

} // namespace melvox_test

#endif
