#ifndef BREL_COMMON_QT_GUI_ERROR_TEXT_H
#define BREL_COMMON_QT_GUI_ERROR_TEXT_H

#include "brel_common_qt_gui/brelCommonQtGuiExport.h"

#include <QIODevice>
#include <QString>
#include <QTextStream>

namespace brel_common_qt_gui
{

/** Collects the lines of what was wrong with the operator's input and shows them together.
 *  Write to it as to any text stream and end each line with endl. */
class BREL_COMMON_QT_GUI_EXPORT errorText_t : public QTextStream
{
public:
    static QString const defaultTitle;

    errorText_t() { setString(&m_text, QIODevice::ReadWrite); }
    explicit errorText_t(QString const& title) : m_customTitle(title) { setString(&m_text, QIODevice::ReadWrite); }
    virtual ~errorText_t() {}

    /** True while nothing was written. */
    bool isEmpty() const { return m_text.isEmpty(); }

    /** The default title is used while this is empty. */
    QString const& customTitle() const { return m_customTitle; }
    void setCustomTitle(QString const& title) { m_customTitle = title; }

    /** Shows the text in a message box, through the host of dialogPage_t if there is one, and returns at once; shows
     *  nothing when there is no text. The box is on its own from then on and goes away when the operator closes it. */
    void report();

private:
    Q_DISABLE_COPY(errorText_t)

    QString m_customTitle;
    QString m_text;
};

} // namespace brel_common_qt_gui

#endif
