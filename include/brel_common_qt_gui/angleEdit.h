#ifndef BREL_COMMON_QT_GUI_ANGLE_EDIT_H
#define BREL_COMMON_QT_GUI_ANGLE_EDIT_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QWidget>

class QValidator;

namespace brel_common_qt_gui
{

/** An edit for an angle: entered in degrees, read in radians.
 *
 *  What was set and not typed over is given back exactly, however it is rounded on the screen. Keys that lead to no
 *  angle are refused. While the text is no angle, or one outside the limits (minutes beyond 90 degrees), it is red and
 *  the edit stands for the value that it had when the operator came; that is shown again when he leaves.
 *
 *  Parts by name: "angleDegreesLineEdit"; in a latitude or longitude edit "latitudeDegreesLineEdit",
 *  "latitudeMinutesLineEdit", "latitudeSecondsLineEdit" and "latitudeSideCombo", likewise with "longitude"; the line
 *  edits that the format does not need are hidden. */
class BREL_COMMON_QT_GUI_EXPORT angleEdit_t : public QWidget
{
    Q_OBJECT

public:
    /** Any angle from -360 to 360 degrees. */
    explicit angleEdit_t(QWidget* parent = 0);
    ~angleEdit_t();

    /** For every line edit of the edit; also what a screen reader calls them. */
    void setKeypadPrompt(QString const& prompt);

    double radians() const;
    double degrees() const;

    /** Puts away what was typed. A value outside the limits, or that is no number, is not taken. */
    void setDegrees(double degrees);

signals:
    /** By typing or by setDegrees(). */
    void valueChanged();

protected:
    struct privateData_t;
    explicit angleEdit_t(privateData_t* data, QWidget* parent);

    bool eventFilter(QObject* object, QEvent* event) override;

    privateData_t* m_data;

private slots:
    void readFields();
    void leaveFields();
    void showFormat();

private:
    Q_DISABLE_COPY(angleEdit_t)

    void createParts();
    void createField(QValidator* validator);
    void createSide();
    void showDegrees(double degrees);
    bool readDegrees(double& degrees) const;
    void takeDegrees(double degrees);
};

} // namespace brel_common_qt_gui

#endif
