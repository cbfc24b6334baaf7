#ifndef BREL_COMMON_QT_GUI_ANGLE_EDIT_P_H
#define BREL_COMMON_QT_GUI_ANGLE_EDIT_P_H

#include "brel_common_qt/units.h"
#include "brel_common_qt_gui/angleEdit.h"

#include <QList>
#include <QString>
#include <QStringList>

class QComboBox;
class QLabel;
class QLineEdit;

namespace brel_common_qt_gui
{

struct angleEdit_t::privateData_t
{
    privateData_t(QString const& name_, double limit_)
        : name(name_), limit(limit_), wraps(false), side(nullptr), format(brel_common_qt::LATLON_FORMAT_DEGREE),
          value(0), committed(0), shown(0), filling(false)
    {
    }

    QString name; //!< what the names of the parts begin with
    double limit; //!< degrees
    bool wraps;   //!< a full turn leads to the same place
    QString positiveSide;
    QString negativeSide;

    QList<QLineEdit*> fields; //!< degrees, then minutes and seconds where the format is the operator's choice
    QList<QLabel*> symbols;
    QComboBox* side; //!< null: the sign is typed

    brel_common_qt::latLonFormat_t format;
    double value;     //!< degrees
    double committed; //!< what the edit goes back to when it is left with nothing good in it
    double shown;     //!< what the texts were made from, which they tell only roughly
    QStringList shownTexts;
    bool filling; //!< the edit itself changes its fields
};

} // namespace brel_common_qt_gui

#endif
