#ifndef SAMPLES_PORT_WATCH_H
#define SAMPLES_PORT_WATCH_H

#include "brel_common_qt/remoteMelvoxDevice.h"
#include "brel_common_qt/textHelpers.h"

#include <QLabel>

// begin follow
/** Shows over which port the display is connected. */
class portWatch_t : public QLabel
{
    Q_OBJECT

public:
    explicit portWatch_t(brel_common_qt::remoteMelvoxDevice_t* receiver) : m_receiver(receiver)
    {
        connect(receiver, SIGNAL(activePortUpdated(brel_common_qt::melvoxPort_t)), this, SLOT(showPort()));
        // What is known already is told by no signal.
        showPort();
    }

private slots:
    void showPort()
    {
        bool const known = m_receiver->activePortValid();
        setText(known ? brel_common_qt::melvoxPortName(m_receiver->activePort()) : brel_common_qt::NoDataString);
    }

private:
    brel_common_qt::remoteMelvoxDevice_t* m_receiver;
};
// end

#endif
