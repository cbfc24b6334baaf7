#ifndef BREL_COMMON_QT_GUI_DISTANCE_EDIT_H
#define BREL_COMMON_QT_GUI_DISTANCE_EDIT_H

#include "brel_common_qt/units.h"
#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QWidget>

namespace brel_common_qt_gui
{

/** An edit for a distance or height: shown and entered in the operator's unit, read in metres. A change of the
 *  operator's unit converts what it holds. Text that is no number is not taken. */
class BREL_COMMON_QT_GUI_EXPORT distanceEdit_t : public QWidget
{
    Q_OBJECT

public:
    explicit distanceEdit_t(QWidget* parent = 0);
    ~distanceEdit_t();

    void setKeypadPrompt(QString const& prompt);

    /** Shows a distance given in metres in this unit. */
    void setDistance(double metres, brel_common_qt::distanceUnit_t unit);

    /** The exact value that was set while nothing was typed. */
    double meters() const;

signals:
    void valueChanged();

private slots:
    void readField();
    void leaveField();
    void showUnit();

private:
    Q_DISABLE_COPY(distanceEdit_t)

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
