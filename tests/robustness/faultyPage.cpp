#include "faultyPage.h"

#include <QPushButton>
#include <QVBoxLayout>
#include <QtDebug>

#include <cstdlib>

using namespace brel_common_qt;

namespace melvox_robustness
{

namespace
{

QString theFault;
int const TAPS = 3;

} // namespace

faultyPage_t::faultyPage_t(remoteMelvoxDevice_t* device)
    : m_device(device), m_choice(new QComboBox), m_dialog(new QDialog),
      m_dialogPage(new brel_common_qt_gui::dialogPage_t(m_dialog)), m_taps(0)
{
    setObjectName("faultyPage");
    m_choice->setObjectName("armedCombo");
    m_choice->addItems({"Safe", "Armed"});
    QPushButton* const button = new QPushButton("Tap");
    button->setObjectName("tapButton");
    connect(button, &QPushButton::clicked, this, &faultyPage_t::tapped);
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->addWidget(m_choice);
    layout->addWidget(button);
}

faultyPage_t::~faultyPage_t()
{
    delete m_dialogPage;
}

void faultyPage_t::setFault(QString const& name)
{
    theFault = name;
}

void faultyPage_t::tapped()
{
    if (m_choice->currentIndex() == 1 && ++m_taps >= TAPS)
        fail();
}

void faultyPage_t::fail()
{
    QExplicitlySharedDataPointer<buffer_t> const block(new buffer_t(1));
    block->setLength(1);
    if (theFault == "unasked")
        m_device->setPdopLimit(3);
    else if (theFault == "warning")
        qWarning("something is wrong");
    else if (theFault == "crash")
        std::abort();
    else if (theFault == "lock")
        m_device->port()->setLockState(PORT_LOCK_PLUGIN);
    else if (theFault == "unlocked")
        m_device->port()->uploadData(block);
    else if (theFault == "blocks")
    {
        m_device->port()->setLockState(PORT_LOCK_FRAMEWORK);
        m_device->port()->uploadData(block);
        m_device->port()->uploadData(block);
    }
    else if (theFault == "dialog")
    {
        // Out of the host's sight.
        m_dialogPage->show();
        m_dialog->blockSignals(true);
        QObject* const host = dynamic_cast<QObject*>(brel_common_qt_gui::dialogPage_t::host());
        m_dialog->removeEventFilter(host);
        m_dialog->hide();
    }
    else if (theFault == "growth")
        new QDialog(this);
}

} // namespace melvox_robustness
