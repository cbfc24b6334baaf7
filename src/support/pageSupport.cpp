#include "support/pageSupport.h"

#include "support/dialogButtons.h"

#include "brel_common_qt/textHelpers.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace brel_common_qt;

namespace brel_common_qt_gui
{

void showStatus(QLabel* label, bool valid, QString const& text)
{
    label->setText(valid ? text : NoDataString);
}

QString yesNo(bool yes)
{
    return yes ? YesString : NoString;
}

QString fixed(double value, int decimals)
{
    return QString::number(value, 'f', decimals);
}

QString zeroPadded(double value, int width, int decimals)
{
    return QString("%1").arg(value, width, 'f', decimals, QChar('0'));
}

QString zeroPadded(unsigned int value, int width)
{
    return QString("%1").arg(value, width, 10, QChar('0'));
}

bool readNumber(QLineEdit const* edit, double& value)
{
    bool good = false;
    double const number = edit->text().toDouble(&good);
    if (good)
        value = number;
    return good;
}

bool readNumber(QLineEdit const* edit, float& value)
{
    bool good = false;
    float const number = edit->text().toFloat(&good);
    if (good)
        value = number;
    return good;
}

bool readNumber(QLineEdit const* edit, unsigned int& value)
{
    bool good = false;
    unsigned int const number = edit->text().toUInt(&good);
    if (good)
        value = number;
    return good;
}

void setChoice(QComboBox* combo, int index)
{
    int const wanted = index >= 0 && index < combo->count() ? index : -1;
    // Qt 6 tells of a change to no item though there was none before: whoever chooses again when told would never end.
    if (wanted != combo->currentIndex())
        combo->setCurrentIndex(wanted);
}

QPushButton* addActionButton(QDialogButtonBox* box, QString const& text, QObject* receiver, char const* slot)
{
    QPushButton* const button = box->addButton(text, QDialogButtonBox::ActionRole);
    button->setMinimumHeight(TOUCH_HEIGHT);
    keepTabOrder(box);
    if (receiver)
        QObject::connect(button, SIGNAL(clicked()), receiver, slot);
    return button;
}

void addPageButtons(QDialogButtonBox* box, QObject* page)
{
    connectButton(box, QDialogButtonBox::Apply, page, SLOT(submit()));
    connectButton(box, QDialogButtonBox::Reset, page, SLOT(reset()));
    addActionButton(box, QObject::tr("Query"), page, SLOT(query()));
}

void connectButton(QDialogButtonBox* box, int standardButton, QObject* receiver, char const* slot)
{
    QPushButton* const button = box->button(QDialogButtonBox::StandardButton(standardButton));
    button->setMinimumHeight(TOUCH_HEIGHT);
    QObject::connect(button, SIGNAL(clicked()), receiver, slot);
}

QMessageBox* createQuestion(QMessageBox::Icon icon, QString const& title, QString const& text, QWidget* parent)
{
    return new QMessageBox(icon, title, text, QMessageBox::Yes | QMessageBox::No, parent);
}

} // namespace brel_common_qt_gui
