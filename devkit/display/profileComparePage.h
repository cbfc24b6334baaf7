#ifndef MELVOX_DISPLAY_PROFILE_COMPARE_PAGE_H
#define MELVOX_DISPLAY_PROFILE_COMPARE_PAGE_H

#include "display/profileComparison.h"

#include <QTemporaryDir>
#include <QWidget>

#include <string>

class QBoxLayout;
class QLabel;
class QPushButton;
class QTreeWidget;

namespace brel_common_qt
{
class remoteMelvoxDevice_t;
struct usbDrive_t;
} // namespace brel_common_qt

namespace brel_common_qt_gui
{
class dialogPage_t;
class melvoxUiProfileLoader_t;
class melvoxUiUsbProfileListDialog_t;
} // namespace brel_common_qt_gui

namespace melvox_display
{

/** Shows what a profile file would change on the receiver before it is loaded, and loads it when the operator wants
 *  that. The receiver's settings are those that it dumps when it is asked; it may be anywhere. The receiver must live as
 *  long. */
class profileComparePage_t : public QWidget
{
    Q_OBJECT

public:
    explicit profileComparePage_t(brel_common_qt::remoteMelvoxDevice_t* device, QWidget* parent = nullptr);
    ~profileComparePage_t() override;

    bool eventFilter(QObject* object, QEvent* event) override;

public slots:
    /** Reads the chosen file again and asks the receiver for its settings. */
    void query();

protected:
    /** What the receiver has may have changed meanwhile, by a load too. */
    void showEvent(QShowEvent* event) override;

private slots:
    void chooseFile();
    void takeDrive(brel_common_qt::usbDrive_t const& drive);
    void takeFile(QString const& path);
    void takeDump(std::string const& path, bool success, std::string const& description);
    void showComparison();
    void load();

private:
    void createParts();
    QBoxLayout* createButtons();
    QPushButton* createButton(QString const& name, QString const& text, void (profileComparePage_t::*pressed)());
    void createUsbDialogs();
    void arrangeColumns();
    void clearComparison(QString const& status);

    brel_common_qt::remoteMelvoxDevice_t* m_device;
    brel_common_qt_gui::melvoxUiProfileLoader_t* m_loader;
    brel_common_qt_gui::melvoxUiUsbProfileListDialog_t* m_listDialog;
    brel_common_qt_gui::dialogPage_t* m_drivesPage; //!< null on units without USB drives
    brel_common_qt_gui::dialogPage_t* m_listPage;
    QLabel* m_fileLabel;
    QLabel* m_status;
    QTreeWidget* m_tree;
    QPushButton* m_query;
    QPushButton* m_load;

    QTemporaryDir m_folder;
    QString m_path; //!< empty: none was chosen
    profileFile_t m_profile;
    melvox_receiver::settings_t m_now; //!< empty: not known
    int m_asked;                       //!< how often, so that an old answer is told from the one that is waited for
    bool m_waiting;
};

} // namespace melvox_display

#endif
