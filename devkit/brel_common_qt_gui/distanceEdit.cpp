#include "brel_common_qt_gui/distanceEdit.h"

#include "brel_common_qt/kitFormat.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/numberField.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

#include <cmath>

namespace brel_common_qt_gui
{

using namespace brel_common_qt;
using melvox_kit::numberValidator_t;

namespace
{

double const LIMIT = 1e9; // in either unit
int const DECIMALS = 4;

} // namespace

struct distanceEdit_t::privateData_t
{
    privateData_t()
        : field(nullptr), unitLabel(nullptr), unit(DISTANCE_UNIT_METER), value(0), committed(0), shown(0),
          filling(false)
    {
    }

    QLineEdit* field;
    QLabel* unitLabel;
    distanceUnit_t unit;
    double value;     //!< metres
    double committed; //!< what the edit goes back to when it is left with nothing good in it
    double shown;     //!< what the text was made from, which it tells only roughly
    QString shownText;
    bool filling; //!< the edit itself changes its field
};

distanceEdit_t::distanceEdit_t(QWidget* parent) : QWidget(parent), m_data(new privateData_t)
{
    m_data->field =
        melvox_kit::createNumberField(QLatin1String("distanceLineEdit"), QLatin1String("-00000.0000"), this);
    numberValidator_t* const validator =
        new numberValidator_t(LIMIT, numberValidator_t::UP_TO_LIMIT, numberValidator_t::SIGNED, m_data->field);
    validator->setDecimals(DECIMALS);
    m_data->field->setValidator(validator);
    m_data->field->installEventFilter(this);
    m_data->unitLabel = new QLabel(this);
    m_data->unitLabel->setObjectName(QLatin1String("distanceUnitLabel"));

    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_data->field, 1);
    layout->addWidget(m_data->unitLabel);
    setFocusProxy(m_data->field);
    setKeypadPrompt(QString());

    connect(m_data->field, SIGNAL(textChanged(QString)), this, SLOT(readField()));
    connect(m_data->field, SIGNAL(returnPressed()), this, SLOT(leaveField()));
    connect(&guiSettings_t::get(), SIGNAL(distanceUnitChanged()), this, SLOT(showUnit()));
    showUnit();
}

distanceEdit_t::~distanceEdit_t()
{
    delete m_data;
}

void distanceEdit_t::setKeypadPrompt(QString const& prompt)
{
    melvox_kit::setFieldPrompt(m_data->field, prompt, prompt.isEmpty() ? tr("Distance") : prompt);
    setAccessibleName(prompt);
}

void distanceEdit_t::setDistance(double metres, distanceUnit_t unit)
{
    if (!(std::fabs(melvox_kit::fromMetres(metres, unit)) <= LIMIT))
        return;
    m_data->unit = unit;
    m_data->committed = metres;
    showDistance(metres);
    takeDistance(metres);
}

double distanceEdit_t::meters() const
{
    return m_data->value;
}

bool distanceEdit_t::eventFilter(QObject* object, QEvent* event)
{
    if (melvox_kit::isLeaving(this, event))
        leaveField();
    return QWidget::eventFilter(object, event);
}

void distanceEdit_t::showDistance(double metres)
{
    m_data->filling = true;
    QString text = QString::number(melvox_kit::fromMetres(metres, m_data->unit), 'f', DECIMALS);
    if (text.toDouble() == 0 && text.startsWith(QLatin1Char('-')))
        text.remove(0, 1);
    m_data->field->setText(text);
    m_data->unitLabel->setText(melvox_kit::unitSymbol(m_data->unit));
    melvox_kit::showTaken(m_data->field, true);
    m_data->shown = metres;
    m_data->shownText = text;
    m_data->filling = false;
}

void distanceEdit_t::takeDistance(double metres)
{
    if (metres == m_data->value)
        return;
    m_data->value = metres;
    emit valueChanged();
}

void distanceEdit_t::readField()
{
    if (m_data->filling)
        return;
    double metres = m_data->shown;
    bool taken = m_data->field->text() == m_data->shownText;
    double number;
    if (!taken && melvox_kit::readNumber(m_data->field, number))
    {
        metres = melvox_kit::toMetres(number, m_data->unit);
        taken = true;
    }
    melvox_kit::showTaken(m_data->field, taken);
    takeDistance(taken ? metres : m_data->committed);
}

void distanceEdit_t::leaveField()
{
    m_data->committed = m_data->value;
    showDistance(m_data->value);
}

void distanceEdit_t::showUnit()
{
    m_data->unit = guiSettings_t::get().distanceUnit();
    leaveField();
}

} // namespace brel_common_qt_gui
