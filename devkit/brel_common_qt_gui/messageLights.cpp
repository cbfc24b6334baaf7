#include "brel_common_qt_gui/messageLights.h"

#include "brel_common_qt/remoteDevice.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QList>
#include <QPalette>
#include <QPointer>
#include <QTimer>
#include <QVariant>

namespace brel_common_qt_gui
{

namespace
{

int const LIT_MILLISECONDS = 500;
QColor const LIT(0x00, 0xc0, 0x00);
QColor const DARK(0x40, 0x40, 0x40);

struct light_t
{
    int stream;
    QPointer<QLabel> label;
    QElapsedTimer lit; //!< since the last message; invalid while dark
};

void showLight(QLabel* label, bool lit)
{
    label->setProperty("lit", lit);
    label->setAccessibleDescription(lit ? messageLights_t::tr("Active") : messageLights_t::tr("Idle"));
    // Not by a style sheet: Qt makes a style of its own for each widget that has one.
    QPalette palette = label->palette();
    palette.setColor(QPalette::Window, lit ? LIT : DARK);
    label->setPalette(palette);
    label->setAutoFillBackground(true);
}

} // namespace

struct messageLights_t::privateData_t
{
    QList<light_t> lights;
    QTimer* timer; //!< runs while a light is lit
};

messageLights_t::messageLights_t(brel_common_qt::remoteDevice_t* device, QObject* parent)
    : QObject(parent), m_data(new privateData_t)
{
    m_data->timer = new QTimer(this);
    m_data->timer->setSingleShot(true);
    connect(m_data->timer, SIGNAL(timeout()), this, SLOT(darken()));
    if (device)
        connect(device, SIGNAL(messageReceived(int)), this, SLOT(light(int)));
}

messageLights_t::~messageLights_t()
{
    delete m_data;
}

void messageLights_t::addLight(int stream, QLabel* label)
{
    for (int i = m_data->lights.size() - 1; i >= 0; --i)
    {
        if (m_data->lights.at(i).label == label || !m_data->lights.at(i).label)
            m_data->lights.removeAt(i);
    }
    light_t light;
    light.stream = stream;
    light.label = label;
    light.lit.invalidate(); // Qt 4 does not
    m_data->lights << light;
    showLight(label, false);
}

void messageLights_t::light(int stream)
{
    for (int i = 0; i < m_data->lights.size(); ++i)
    {
        light_t& light = m_data->lights[i];
        if (light.stream != stream || !light.label)
            continue;
        // A message that comes while the light is lit changes nothing.
        if (!light.lit.isValid())
            showLight(light.label, true);
        light.lit.start();
        if (!m_data->timer->isActive())
            m_data->timer->start(LIT_MILLISECONDS);
    }
}

void messageLights_t::darken()
{
    int next = -1;
    for (int i = 0; i < m_data->lights.size(); ++i)
    {
        light_t& light = m_data->lights[i];
        if (!light.lit.isValid() || !light.label)
            continue;
        int const left = LIT_MILLISECONDS - static_cast<int>(light.lit.elapsed());
        if (left > 0)
        {
            next = next < 0 ? left : qMin(next, left);
            continue;
        }
        light.lit.invalidate();
        showLight(light.label, false);
    }
    if (next > 0)
        m_data->timer->start(next);
}

} // namespace brel_common_qt_gui
