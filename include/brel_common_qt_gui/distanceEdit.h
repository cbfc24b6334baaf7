#ifndef BREL_COMMON_QT_GUI_DISTANCE_EDIT_H
#define BREL_COMMON_QT_GUI_DISTANCE_EDIT_H

#include "brel_common_qt/units.h"
#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QWidget>

namespace brel_common_qt_gui
{

/** An edit for a distance or height: shown and entered in the operator's unit, read in metres. A change of the
 *  operator's unit converts what is shown.
 *
 *  Keys that lead to no number are refused. While the text is none it is red and the edit stands for the distance that
 *  it had when the operator came; that is shown again when he leaves.
 *
 *  Parts by name: "distanceLineEdit", "distanceUnitLabel". */
class BREL_COMMON_QT_GUI_EXPORT distanceEdit_t : public QWidget
{
    Q_OBJECT

public:
    explicit distanceEdit_t(QWidget* parent = 0);
    ~distanceEdit_t();

    void setKeypadPrompt(QString const& prompt);

    /** Shows a distance given in metres in this unit, until the operator's unit changes, and puts away what was typed.
     *  One that is no number, or beyond 1,000,000,000 of its unit, is not taken. */
    void setDistance(double metres, brel_common_qt::distanceUnit_t unit);

    /** Exactly what was set while nothing was typed. */
    double meters() const;

signals:
    /** By typing or by setDistance(). */
    void valueChanged();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private slots:
    void readField();
    void leaveField();
    void showUnit();

private:
    Q_DISABLE_COPY(distanceEdit_t)

    void showDistance(double metres);
    void takeDistance(double metres);

    struct privateData_t;
    privateData_t* m_data;
};

} // namespace brel_common_qt_gui

#endif
