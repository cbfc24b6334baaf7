#ifndef MELVOX_UI_PAGE_SUPPORT_H
#define MELVOX_UI_PAGE_SUPPORT_H

#include <QBitArray>
#include <QMessageBox>
#include <QString>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QPushButton;

/** The few things that every page does the same way. */
namespace brel_common_qt_gui
{

/** The smallest height, in pixels, of what a finger is meant to hit. */
int const TOUCH_HEIGHT = 40;

/** The receiver's value, or the no-data text while there is none. */
void showStatus(QLabel* label, bool valid, QString const& text);

QString yesNo(bool yes);

/** Fixed notation, such as "10.0". */
QString fixed(double value, int decimals);

/** For edits with an input mask: padded with zeros to a width that counts sign, point and decimals. */
QString zeroPadded(double value, int width, int decimals);
QString zeroPadded(unsigned int value, int width);

/** The number that stands in an edit. False, and `value` untouched, when it is none. */
bool readNumber(QLineEdit const* edit, double& value);
bool readNumber(QLineEdit const* edit, float& value);
bool readNumber(QLineEdit const* edit, unsigned int& value);

/** The same, and within limits that both count as inside. */
template <typename number_t> bool readWithin(QLineEdit const* edit, number_t lowest, number_t highest, number_t& value)
{
    number_t number;
    if (!readNumber(edit, number) || !(number >= lowest && number <= highest))
        return false;
    value = number;
    return true;
}

/** Runs a page's reset function for a group the first time the group is valid. Later answers must not overwrite what
 *  the operator is typing. */
template <typename page_t> void fillOnce(QBitArray& setUi, int group, bool valid, page_t* page, void (page_t::*reset)())
{
    if (!valid || setUi.testBit(group))
        return;
    (page->*reset)();
    setUi.setBit(group);
}

/** Selects the item of an enumeration's value; a value that the combo does not offer leaves it without a current item,
 *  so that Apply does not send another. */
void setChoice(QComboBox* combo, int index);

/** Adds a button in the action role, and connects its clicked() when there is a receiver. */
QPushButton* addActionButton(QDialogButtonBox* box, QString const& text, QObject* receiver, char const* slot);

/** Wires the life cycle of a settings page: Apply to submit(), Reset to reset(), and an added "Query" to query(). */
void addPageButtons(QDialogButtonBox* box, QObject* page);

/** Connects the clicked() of one of the box's standard buttons, and makes it large enough for a finger. */
void connectButton(QDialogButtonBox* box, int standardButton, QObject* receiver, char const* slot);

/** A question with Yes and No; its finished(int) carries QMessageBox::Yes or something else. */
QMessageBox* createQuestion(QMessageBox::Icon icon, QString const& title, QString const& text, QWidget* parent);

} // namespace brel_common_qt_gui

#endif
