#ifndef BREL_COMMON_QT_GUI_ANGLE_EDIT_H
#define BREL_COMMON_QT_GUI_ANGLE_EDIT_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QWidget>

namespace brel_common_qt_gui
{

/** An edit for an angle: entered in degrees, read in radians. Text that is no angle, or one outside the limits, is
 *  not taken: the edit goes back to the last good value when it loses the focus. */
class BREL_COMMON_QT_GUI_EXPORT angleEdit_t : public QWidget
{
    Q_OBJECT

public:
    /** Any angle from -360 to 360 degrees. */
    explicit angleEdit_t(QWidget* parent = 0);
    ~angleEdit_t();

    void setKeypadPrompt(QString const& prompt);

    double radians() const;
    double degrees() const;
    void setDegrees(double degrees);

signals:
    void valueChanged();

protected:
    struct privateData_t;
    explicit angleEdit_t(privateData_t* data, QWidget* parent);

    privateData_t* m_data;

private slots:
    void readFields();
    void leaveFields();
    void showFormat();

private:
    Q_DISABLE_COPY(angleEdit_t)
};

} // namespace brel_common_qt_gui

#endif
