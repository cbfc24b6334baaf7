#include "brel_common_qt_gui/numberField.h"

#include "brel_common_qt_gui/touch.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontMetrics>
#include <QLineEdit>
#include <QVariant>

#include <cmath>

namespace melvox_kit
{

namespace
{

int const FRAME_WIDTH = 24;

/** The digits from `position` on; moves behind them. */
int skipDigits(QString const& text, int& position)
{
    int const start = position;
    while (position < text.size() && text.at(position) >= QLatin1Char('0') && text.at(position) <= QLatin1Char('9'))
        ++position;
    return position - start;
}

} // namespace

numberValidator_t::numberValidator_t(double limit, limit_t kind, sign_t sign, QObject* parent)
    : QValidator(parent), m_limit(limit), m_kind(kind), m_sign(sign), m_decimals(0)
{
}

QValidator::State numberValidator_t::validate(QString& text, int&) const
{
    int position = m_sign == SIGNED && text.startsWith(QLatin1Char('-')) ? 1 : 0;
    int const before = skipDigits(text, position);
    int after = 0;
    if (m_decimals > 0 && position < text.size() && text.at(position) == QLatin1Char('.'))
    {
        ++position;
        after = skipDigits(text, position);
    }
    if (position < text.size() || after > m_decimals || before > QString::number(m_limit, 'f', 0).size())
        return Invalid;
    if (before + after == 0)
        return Intermediate;
    double const size = std::fabs(text.toDouble());
    return size < m_limit || (size == m_limit && m_kind == UP_TO_LIMIT) ? Acceptable : Invalid;
}

QLineEdit* createNumberField(QString const& name, QString const& widestText, QWidget* parent)
{
    QLineEdit* const field = new QLineEdit(parent);
    field->setObjectName(name);
    field->setProperty("keypadType", QLatin1String("numeric"));
    field->setMinimumHeight(TOUCH_HEIGHT);
    field->setMinimumWidth(QFontMetrics(field->font()).boundingRect(widestText).width() + FRAME_WIDTH);
    return field;
}

void setFieldPrompt(QLineEdit* field, QString const& prompt, QString const& accessibleName)
{
    field->setProperty("keypadPrompt", prompt);
    field->setAccessibleName(accessibleName);
}

void showTaken(QLineEdit* field, bool taken)
{
    QString const style = QLatin1String(taken ? "" : "QLineEdit { color:#b3261e; }");
    if (field->styleSheet() != style)
        field->setStyleSheet(style);
}

bool readNumber(QLineEdit const* field, double& number)
{
    if (!field->hasAcceptableInput())
        return false;
    number = field->text().toDouble();
    return true;
}

bool isLeaving(QWidget const* edit, QEvent* event)
{
    if (event->type() != QEvent::FocusOut)
        return false;
    switch (static_cast<QFocusEvent*>(event)->reason())
    {
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return false;
    default:
        return !edit->isAncestorOf(QApplication::focusWidget());
    }
}

} // namespace melvox_kit
