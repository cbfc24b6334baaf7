#include "brel_common_qt_gui/dialogPage.h"
#include "brel_common_qt_gui/distanceEdit.h"
#include "brel_common_qt_gui/errorText.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/ipAddressEdit.h"
#include "brel_common_qt_gui/ipPortEdit.h"
#include "brel_common_qt_gui/latitudeEdit.h"
#include "brel_common_qt_gui/longitudeEdit.h"
#include "brel_common_qt_gui/messageLights.h"
#include "brel_common_qt_gui/scrollBarTreeWidget.h"
#include "brel_common_qt_gui/usbDriveSelectDialog.h"

#include <QHBoxLayout>
#include <QHostAddress>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QtMath>

namespace brel_common_qt_gui
{

namespace
{

/** One line edit that fills the widget. */
QLineEdit* fillWithLineEdit(QWidget* widget)
{
    QLineEdit* const edit = new QLineEdit(widget);
    QHBoxLayout* const layout = new QHBoxLayout(widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(edit);
    return edit;
}

} // namespace

QString const errorText_t::defaultTitle("Error");

void errorText_t::report()
{
    flush();
    if (m_text.isEmpty())
        return;
    QMessageBox* const box =
        new QMessageBox(QMessageBox::Warning, m_customTitle.isEmpty() ? defaultTitle : m_customTitle, m_text);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->show();
}

dialogPage_t::dialogPage_t(QDialog* dialog) : m_dialog(dialog)
{
}

dialogPage_t::~dialogPage_t()
{
    delete m_dialog;
}

void dialogPage_t::show()
{
    if (m_dialog)
        m_dialog->show();
}

guiSettings_t::guiSettings_t()
    : m_latLonFormat(brel_common_qt::LATLON_FORMAT_DEGREE), m_distanceUnit(brel_common_qt::DISTANCE_UNIT_METER)
{
}

guiSettings_t::~guiSettings_t()
{
}

guiSettings_t& guiSettings_t::get()
{
    static guiSettings_t settings;
    return settings;
}

brel_common_qt::latLonFormat_t guiSettings_t::latLonFormat() const
{
    return m_latLonFormat;
}

brel_common_qt::distanceUnit_t guiSettings_t::distanceUnit() const
{
    return m_distanceUnit;
}

// Degrees, whatever the operator prefers.
struct angleEdit_t::privateData_t
{
    QLineEdit* edit;
};

angleEdit_t::angleEdit_t(privateData_t* data, QWidget* parent) : QWidget(parent), m_data(data)
{
    m_data->edit = fillWithLineEdit(this);
    connect(m_data->edit, &QLineEdit::textEdited, this, &angleEdit_t::readFields);
}

angleEdit_t::angleEdit_t(QWidget* parent) : angleEdit_t(new privateData_t, parent)
{
}

angleEdit_t::~angleEdit_t()
{
    delete m_data;
}

void angleEdit_t::setKeypadPrompt(QString const& prompt)
{
    m_data->edit->setProperty("keypadPrompt", prompt);
}

double angleEdit_t::radians() const
{
    return qDegreesToRadians(degrees());
}

double angleEdit_t::degrees() const
{
    return m_data->edit->text().toDouble();
}

void angleEdit_t::setDegrees(double degrees)
{
    m_data->edit->setText(QString::number(degrees, 'g', 15));
    emit valueChanged();
}

bool angleEdit_t::eventFilter(QObject* object, QEvent* event)
{
    return QWidget::eventFilter(object, event);
}

void angleEdit_t::readFields()
{
    emit valueChanged();
}

void angleEdit_t::leaveFields()
{
}

void angleEdit_t::showFormat()
{
}

latitudeEdit_t::latitudeEdit_t(QWidget* parent) : angleEdit_t(parent)
{
}

void latitudeEdit_t::setLatitude(double degrees)
{
    setDegrees(degrees);
}

longitudeEdit_t::longitudeEdit_t(QWidget* parent) : angleEdit_t(parent)
{
}

void longitudeEdit_t::setLongitude(double degrees)
{
    setDegrees(degrees);
}

// Metres, whatever the operator prefers.
struct distanceEdit_t::privateData_t
{
    QLineEdit* edit;
};

distanceEdit_t::distanceEdit_t(QWidget* parent) : QWidget(parent), m_data(new privateData_t)
{
    m_data->edit = fillWithLineEdit(this);
}

distanceEdit_t::~distanceEdit_t()
{
    delete m_data;
}

void distanceEdit_t::setKeypadPrompt(QString const& prompt)
{
    m_data->edit->setProperty("keypadPrompt", prompt);
}

void distanceEdit_t::setDistance(double metres, brel_common_qt::distanceUnit_t)
{
    m_data->edit->setText(QString::number(metres, 'g', 15));
}

double distanceEdit_t::meters() const
{
    return m_data->edit->text().toDouble();
}

bool distanceEdit_t::eventFilter(QObject* object, QEvent* event)
{
    return QWidget::eventFilter(object, event);
}

void distanceEdit_t::readField()
{
}

void distanceEdit_t::leaveField()
{
}

void distanceEdit_t::showUnit()
{
}

ipAddressEdit_t::ipAddressEdit_t(QLineEdit* lineEdit, QObject* parent) : QObject(parent), m_lineEdit(lineEdit)
{
}

void ipAddressEdit_t::setAddress(unsigned int address)
{
    m_lineEdit->setText(QHostAddress(address).toString());
}

bool ipAddressEdit_t::getAddress(unsigned int& address) const
{
    QHostAddress const read(m_lineEdit->text());
    if (read.isNull())
        return false;
    address = read.toIPv4Address();
    return true;
}

ipPortEdit_t::ipPortEdit_t(QLineEdit* lineEdit, QObject* parent) : QObject(parent), m_lineEdit(lineEdit)
{
}

void ipPortEdit_t::setPort(unsigned short port)
{
    m_lineEdit->setText(QString::number(port));
}

bool ipPortEdit_t::getPort(unsigned short& port) const
{
    bool good = false;
    unsigned short const read = m_lineEdit->text().toUShort(&good);
    if (good)
        port = read;
    return good;
}

// Lights that stay dark: nothing comes in over this port.
struct messageLights_t::privateData_t
{
};

messageLights_t::messageLights_t(brel_common_qt::remoteDevice_t*, QObject* parent)
    : QObject(parent), m_data(new privateData_t)
{
}

messageLights_t::~messageLights_t()
{
    delete m_data;
}

void messageLights_t::addLight(int, QLabel* label)
{
    label->setProperty("lit", false);
}

void messageLights_t::light(int)
{
}

void messageLights_t::darken()
{
}

scrollBarTreeWidget_t::scrollBarTreeWidget_t(QWidget* parent) : QTreeWidget(parent)
{
}

struct usbDriveSelectDialog_t::privateData_t
{
};

usbDriveSelectDialog_t::usbDriveSelectDialog_t(brel_common_qt::usbDriveManager_t*, QWidget* parent)
    : QDialog(parent), m_data(new privateData_t)
{
}

usbDriveSelectDialog_t::~usbDriveSelectDialog_t()
{
    delete m_data;
}

void usbDriveSelectDialog_t::updateDrives()
{
}

void usbDriveSelectDialog_t::checkSelection()
{
}

void usbDriveSelectDialog_t::selectDrive()
{
}

} // namespace brel_common_qt_gui
