#include "display/displaySettingsPage.h"

#include "brel_common_qt/textHelpers.h"
#include "brel_common_qt_gui/guiSettings.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <QVariant>

namespace melvox_display
{

namespace
{

using namespace brel_common_qt;
using brel_common_qt_gui::guiSettings_t;

double const EXAMPLE_LATITUDE = 48.2081743;
double const EXAMPLE_LONGITUDE = 16.3738189;
double const EXAMPLE_HEIGHT = 182.435;

QLabel* createExample(QString const& name, QWidget* parent)
{
    QLabel* label = new QLabel(parent);
    label->setObjectName(name);
    label->setProperty("example", true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

displaySettingsPage_t::displaySettingsPage_t(QWidget* parent)
    : QWidget(parent), m_units(new QButtonGroup(this)), m_formats(new QButtonGroup(this)),
      m_unitExample(createExample("unitExampleLabel", this)), m_formatExample(createExample("formatExampleLabel", this))
{
    setWindowTitle(tr("Display Settings"));
    QVBoxLayout* layout = new QVBoxLayout(this);
    addChoice(layout, tr("Heights and distances"), {"metersButton", "feetButton"}, {tr("Metres"), tr("US survey feet")},
              m_units, m_unitExample);
    addChoice(layout, tr("Positions"), {"degreesButton", "minutesButton", "secondsButton"},
              {tr("Degrees"), tr("Degrees, minutes"), tr("Degrees, minutes, seconds")}, m_formats, m_formatExample);
    layout->addStretch(1);

    connect(m_units, &QButtonGroup::idClicked, this, &displaySettingsPage_t::takeUnit);
    connect(m_formats, &QButtonGroup::idClicked, this, &displaySettingsPage_t::takeFormat);
    connect(&guiSettings_t::get(), SIGNAL(distanceUnitChanged()), this, SLOT(showSettings()));
    connect(&guiSettings_t::get(), SIGNAL(latLonFormatChanged()), this, SLOT(showSettings()));
    showSettings();
}

void displaySettingsPage_t::addChoice(QVBoxLayout* layout, QString const& caption, QStringList const& names,
                                      QStringList const& texts, QButtonGroup* group, QLabel* example)
{
    QGroupBox* box = new QGroupBox(caption, this);
    QHBoxLayout* row = new QHBoxLayout;
    row->setSpacing(8);
    for (int i = 0; i < names.size(); ++i)
    {
        QPushButton* button = new QPushButton(texts.at(i), box);
        button->setObjectName(names.at(i));
        button->setProperty("choice", true);
        button->setCheckable(true);
        button->setAutoDefault(false);
        group->addButton(button, i);
        row->addWidget(button);
    }
    QVBoxLayout* inside = new QVBoxLayout(box);
    inside->addLayout(row);
    inside->addWidget(example);
    layout->addWidget(box);
}

void displaySettingsPage_t::showSettings()
{
    guiSettings_t const& settings = guiSettings_t::get();
    m_units->button(settings.distanceUnit())->setChecked(true);
    m_formats->button(settings.latLonFormat())->setChecked(true);
    m_unitExample->setText(tr("Example: %1").arg(distanceString(EXAMPLE_HEIGHT, settings.distanceUnit(), 3)));
    latLonStringOptions_t const options(settings.latLonFormat());
    m_formatExample->setText(
        tr("Example: %1, %2")
            .arg(latitudeString(EXAMPLE_LATITUDE, options), longitudeString(EXAMPLE_LONGITUDE, options)));
}

void displaySettingsPage_t::takeUnit(int id)
{
    guiSettings_t::get().setDistanceUnit(static_cast<distanceUnit_t>(id));
}

void displaySettingsPage_t::takeFormat(int id)
{
    guiSettings_t::get().setLatLonFormat(static_cast<latLonFormat_t>(id));
}

} // namespace melvox_display
