#include "brel_common_qt_gui/angleEdit_p.h"

#include "brel_common_qt/kitFormat.h"
#include "brel_common_qt_gui/guiSettings.h"
#include "brel_common_qt_gui/numberField.h"
#include "brel_common_qt_gui/touch.h"

#include <QComboBox>
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

double const FULL_TURN = 360;
double const PI = 3.14159265358979323846;

// What comes of turning radians into degrees at the limit.
double const ROUNDING = 1e-9;

char const* const FIELD_NAMES[] = {"DegreesLineEdit", "MinutesLineEdit", "SecondsLineEdit"};
char const* const SYMBOL_NAMES[] = {"DegreesSymbol", "MinutesSymbol", "SecondsSymbol"};
char const* const SYMBOLS[] = {"\xC2\xB0", "'", "\""};
char const* const WIDEST_TEXTS[] = {"-000.000000000", "00.0000000", "00.00000"};

/** Without the zeros at the end that say nothing. */
QString shortened(QString const& number)
{
    int size = number.size();
    while (number.contains(QLatin1Char('.')) && number.at(size - 1) == QLatin1Char('0'))
        --size;
    return number.left(number.at(size - 1) == QLatin1Char('.') ? size - 1 : size);
}

} // namespace

angleEdit_t::angleEdit_t(QWidget* parent)
    : QWidget(parent), m_data(new privateData_t(QLatin1String("angle"), FULL_TURN))
{
    createParts();
}

angleEdit_t::angleEdit_t(privateData_t* data, QWidget* parent) : QWidget(parent), m_data(data)
{
    createParts();
    connect(&guiSettings_t::get(), SIGNAL(latLonFormatChanged()), this, SLOT(showFormat()));
}

angleEdit_t::~angleEdit_t()
{
    delete m_data;
}

void angleEdit_t::createParts()
{
    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    bool const hasSides = !m_data->positiveSide.isEmpty();
    createField(new numberValidator_t(m_data->limit, numberValidator_t::UP_TO_LIMIT,
                                      hasSides ? numberValidator_t::UNSIGNED : numberValidator_t::SIGNED, this));
    if (hasSides)
    {
        for (int i = 0; i < 2; ++i)
            createField(new numberValidator_t(60, numberValidator_t::BELOW_LIMIT, numberValidator_t::UNSIGNED, this));
        createSide();
    }
    setFocusProxy(m_data->fields.first());
    setKeypadPrompt(QString());
    showDegrees(0);
}

void angleEdit_t::createField(QValidator* validator)
{
    int const index = m_data->fields.size();
    QLineEdit* const field = melvox_kit::createNumberField(m_data->name + QLatin1String(FIELD_NAMES[index]),
                                                           QLatin1String(WIDEST_TEXTS[index]), this);
    field->setValidator(validator);
    field->installEventFilter(this);
    connect(field, SIGNAL(textChanged(QString)), this, SLOT(readFields()));
    connect(field, SIGNAL(returnPressed()), this, SLOT(leaveFields()));
    QLabel* const symbol = new QLabel(QString::fromUtf8(SYMBOLS[index]), this);
    symbol->setObjectName(m_data->name + QLatin1String(SYMBOL_NAMES[index]));
    static_cast<QHBoxLayout*>(layout())->addWidget(field, 1);
    layout()->addWidget(symbol);
    m_data->fields << field;
    m_data->symbols << symbol;
}

void angleEdit_t::createSide()
{
    m_data->side = new QComboBox(this);
    m_data->side->setObjectName(m_data->name + QLatin1String("SideCombo"));
    m_data->side->setMinimumHeight(melvox_kit::TOUCH_HEIGHT);
    m_data->side->addItem(m_data->positiveSide);
    m_data->side->addItem(m_data->negativeSide);
    m_data->side->installEventFilter(this);
    connect(m_data->side, SIGNAL(currentIndexChanged(int)), this, SLOT(readFields()));
    layout()->addWidget(m_data->side);
}

void angleEdit_t::setKeypadPrompt(QString const& prompt)
{
    QString const parts[] = {tr("Degrees"), tr("Minutes"), tr("Seconds")};
    QString const start = prompt.isEmpty() ? QString() : prompt + QLatin1String(", ");
    for (int i = 0; i < m_data->fields.size(); ++i)
        melvox_kit::setFieldPrompt(m_data->fields.at(i), prompt, start + parts[i]);
    if (m_data->side)
        m_data->side->setAccessibleName(start + tr("Hemisphere"));
    setAccessibleName(prompt);
}

double angleEdit_t::radians() const
{
    return m_data->value * PI / 180;
}

double angleEdit_t::degrees() const
{
    return m_data->value;
}

void angleEdit_t::setDegrees(double degrees)
{
    if (m_data->wraps && std::fabs(degrees) > m_data->limit && std::fabs(degrees) <= FULL_TURN)
        degrees -= degrees > 0 ? FULL_TURN : -FULL_TURN;
    if (!(std::fabs(degrees) <= m_data->limit + ROUNDING))
        return;
    degrees = qBound(-m_data->limit, degrees, m_data->limit);
    m_data->committed = degrees;
    if (m_data->side)
    {
        m_data->filling = true;
        m_data->side->setCurrentIndex(0);
        m_data->filling = false;
    }
    showDegrees(degrees);
    takeDegrees(degrees);
}

bool angleEdit_t::eventFilter(QObject* object, QEvent* event)
{
    if (!m_data->filling && melvox_kit::isLeaving(this, event))
        leaveFields();
    return QWidget::eventFilter(object, event);
}

void angleEdit_t::showDegrees(double degrees)
{
    m_data->filling = true;
    m_data->format = m_data->side ? guiSettings_t::get().latLonFormat() : LATLON_FORMAT_DEGREE;
    QStringList parts = melvox_kit::angleParts(std::fabs(degrees), m_data->format, -1);
    if (!m_data->side)
        parts[0] = (degrees < 0 ? QLatin1String("-") : QLatin1String("")) + shortened(parts.at(0));
    for (int i = 0; i < m_data->fields.size(); ++i)
    {
        bool const isUsed = i < parts.size();
        bool const isLast = i + 1 == parts.size();
        QLineEdit* const field = m_data->fields.at(i);
        // Only this class gives the fields their validators.
        static_cast<numberValidator_t*>(const_cast<QValidator*>(field->validator()))
            ->setDecimals(isLast ? melvox_kit::defaultAnglePrecision(m_data->format) : 0);
        field->setText(isUsed ? parts.at(i) : QString());
        field->setVisible(isUsed);
        m_data->symbols.at(i)->setVisible(isUsed);
        melvox_kit::showTaken(field, true);
    }
    // Nothing is north and south alike: what the operator chose stays, as he may be about to type the number.
    if (m_data->side && degrees != 0)
        m_data->side->setCurrentIndex(degrees < 0 ? 1 : 0);
    m_data->shown = degrees;
    m_data->shownTexts = parts;
    m_data->filling = false;
}

bool angleEdit_t::readDegrees(double& degrees) const
{
    QStringList texts;
    for (int i = 0; i < m_data->shownTexts.size(); ++i)
        texts << m_data->fields.at(i)->text();
    double size = std::fabs(m_data->shown);
    if (texts != m_data->shownTexts)
    {
        double parts[] = {0, 0, 0};
        for (int i = 0; i < texts.size(); ++i)
        {
            if (!melvox_kit::readNumber(m_data->fields.at(i), parts[i]))
                return false;
        }
        size = std::fabs(parts[0]) + (parts[1] + parts[2] / 60) / 60;
    }
    bool const isNegative = m_data->side ? m_data->side->currentIndex() == 1 : texts.at(0).startsWith(QLatin1Char('-'));
    degrees = isNegative && size != 0 ? -size : size;
    return size <= m_data->limit;
}

void angleEdit_t::takeDegrees(double degrees)
{
    if (degrees == m_data->value)
        return;
    m_data->value = degrees;
    emit valueChanged();
}

void angleEdit_t::readFields()
{
    if (m_data->filling)
        return;
    double degrees;
    bool const taken = readDegrees(degrees);
    for (int i = 0; i < m_data->fields.size(); ++i)
        melvox_kit::showTaken(m_data->fields.at(i), taken);
    takeDegrees(taken ? degrees : m_data->committed);
}

void angleEdit_t::leaveFields()
{
    m_data->committed = m_data->value;
    showDegrees(m_data->value);
}

void angleEdit_t::showFormat()
{
    leaveFields();
}

} // namespace brel_common_qt_gui
