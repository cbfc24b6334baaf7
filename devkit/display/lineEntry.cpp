#include "display/lineEntry.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStringList>
#include <QValidator>

namespace melvox_display
{

namespace
{

/** A composite's line edit is inside; captions and keypad properties may be on the composite. */
QWidget* compositeOf(QLineEdit* edit)
{
    QWidget* parent = edit->parentWidget();
    bool const isComposite = parent && (parent->focusProxy() == edit || qobject_cast<QAbstractSpinBox*>(parent) ||
                                        qobject_cast<QComboBox*>(parent));
    return isComposite ? parent : nullptr;
}

QString propertyOf(QLineEdit* edit, char const* name)
{
    QString const own = edit->property(name).toString();
    QWidget* composite = compositeOf(edit);
    return own.isEmpty() && composite ? composite->property(name).toString() : own;
}

QString plainCaption(QString text)
{
    text.remove('&');
    text = text.trimmed();
    if (text.endsWith(':'))
        text.chop(1);
    return text;
}

QString captionOf(QLineEdit* edit)
{
    QWidget* composite = compositeOf(edit);
    for (QLabel* label : edit->window()->findChildren<QLabel*>())
    {
        if (label->buddy() == edit || (composite && label->buddy() == composite))
            return plainCaption(label->text());
    }
    return QString();
}

QString accessibleNameOf(QLineEdit* edit)
{
    QWidget* composite = compositeOf(edit);
    return edit->accessibleName().isEmpty() && composite ? composite->accessibleName() : edit->accessibleName();
}

bool classAdmits(QChar maskClass, QChar character, bool& isClass)
{
    isClass = true;
    switch (maskClass.unicode())
    {
    case 'A':
    case 'a':
        return character.isLetter();
    case 'N':
    case 'n':
        return character.isLetterOrNumber();
    case 'X':
    case 'x':
        return character.isPrint();
    case '9':
    case '0':
        return character.isNumber();
    case 'D':
    case 'd':
        return character.isNumber() && character.digitValue() > 0;
    case '#':
        return character.isNumber() || character == '+' || character == '-';
    case 'B':
    case 'b':
        return character == '0' || character == '1';
    case 'H':
    case 'h':
        return character.isNumber() || (character.toLower() >= 'a' && character.toLower() <= 'f');
    default:
        isClass = false;
        return false;
    }
}

/** Where a sign can stand; the cursor position, not the index in text(), which has no blanks. */
int signPosition(QString const& mask)
{
    int position = 0;
    for (int i = 0; i < mask.size() && mask.at(i) != ';'; ++i)
    {
        if (mask.at(i) == '#')
            return position;
        if (mask.at(i) == '\\')
            ++i;
        if (!QString("<>!").contains(mask.at(i)))
            ++position;
    }
    return 0;
}

QChar blankOf(QString const& mask)
{
    int const delimiter = mask.indexOf(';');
    return delimiter >= 0 && delimiter + 1 < mask.size() ? mask.at(delimiter + 1) : QChar(' ');
}

/** The text of a masked edit has lost its blanks; what it shows has them. */
bool isShownWhole(QLineEdit const* edit)
{
    return !edit->inputMask().isEmpty() && edit->echoMode() == QLineEdit::Normal;
}

/** One by one, each in its place: what is put in together closes up over the blanks. */
void insertUnderMask(QPointer<QLineEdit> const& edit, QString const& text)
{
    for (int i = 0; i < text.size() && edit; ++i)
    {
        if (text.at(i) == blankOf(edit->inputMask()))
            continue;
        edit->setCursorPosition(i);
        edit->insert(text.at(i));
    }
}

} // namespace

bool maskAdmits(QString const& mask, QChar character)
{
    QString const fields = mask.left(mask.indexOf(';') < 0 ? mask.size() : mask.indexOf(';'));
    if (fields.isEmpty())
        return true;
    for (int i = 0; i < fields.size(); ++i)
    {
        bool isClass = false;
        if (fields.at(i) == '\\' && i + 1 < fields.size())
            ++i;
        else if (QString("<>!").contains(fields.at(i)))
            continue;
        else if (classAdmits(fields.at(i), character, isClass))
            return true;
        if (!isClass && fields.at(i) == character)
            return true;
    }
    return false;
}

bool validatorAdmits(QValidator const* validator, QString const& text, QChar character)
{
    if (!validator)
        return true;
    QStringList trials;
    trials << QString(character) << "1" + QString(character) << "1" + QString(character) + "1"
           << "10" + QString(character);
    for (int i = 0; i <= text.size(); ++i)
        trials << QString(text).insert(i, character);
    for (QString trial : trials)
    {
        int position = trial.size();
        if (validator->validate(trial, position) != QValidator::Invalid)
            return true;
    }
    return false;
}

lineEntry_t::lineEntry_t(QObject* parent) : QObject(parent)
{
}

QLineEdit* lineEntry_t::edit() const
{
    return qobject_cast<QLineEdit*>(m_edit.data());
}

void lineEntry_t::begin(QLineEdit* edit)
{
    end();
    m_edit = edit;
    m_before = wholeText(edit);
    connect(edit, &QLineEdit::textChanged, this, &lineEntry_t::changed);
    connect(edit, &QLineEdit::cursorPositionChanged, this, &lineEntry_t::changed);
    connect(edit, &QLineEdit::selectionChanged, this, &lineEntry_t::changed);
}

void lineEntry_t::end()
{
    if (m_edit)
        m_edit->disconnect(this);
    m_edit.clear();
    m_before.clear();
}

void lineEntry_t::restore()
{
    if (edit() && wholeText(edit()) != m_before)
        replace(edit(), m_before);
}

QString lineEntry_t::wholeText(QLineEdit const* edit)
{
    return isShownWhole(edit) ? edit->displayText() : edit->text();
}

void lineEntry_t::replace(QLineEdit* lineEdit, QString const& text)
{
    QPointer<QLineEdit> const edit = lineEdit;
    // As an edit, not setText(): composites follow textEdited() and must hear that the text is another one.
    lineEdit->selectAll();
    lineEdit->del();
    if (edit && isShownWhole(edit))
        insertUnderMask(edit, text);
    else if (edit)
        edit->insert(text);
    // A text that the validator refuses can be set all the same, as it had been.
    if (edit && wholeText(edit) != text)
        edit->setText(text);
}

bool lineEntry_t::admits(QChar character) const
{
    return edit() && maskAdmits(edit()->inputMask(), character) &&
           validatorAdmits(edit()->validator(), edit()->text(), character);
}

void lineEntry_t::sendKey(int key, QString const& text)
{
    for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
    {
        QKeyEvent event(type, key, Qt::NoModifier, text);
        if (edit())
            QCoreApplication::sendEvent(edit(), &event);
    }
}

void lineEntry_t::type(QString const& text)
{
    for (QChar character : text)
        sendKey(character.toUpper().unicode(), QString(character));
}

void lineEntry_t::backspace()
{
    sendKey(Qt::Key_Backspace);
}

void lineEntry_t::clear()
{
    if (!edit())
        return;
    edit()->selectAll();
    sendKey(Qt::Key_Delete);
    if (edit())
        edit()->home(false);
}

void lineEntry_t::moveLeft()
{
    sendKey(Qt::Key_Left);
}

void lineEntry_t::moveRight()
{
    sendKey(Qt::Key_Right);
}

void lineEntry_t::toggleSign()
{
    if (!admits('-'))
        return;
    int const position = signPosition(edit()->inputMask());
    bool const isMasked = !edit()->inputMask().isEmpty();
    bool const isNegative = edit()->displayText().mid(position, 1) == "-";
    int const cursor = edit()->hasSelectedText() ? edit()->displayText().size() : edit()->cursorPosition();
    edit()->setCursorPosition(position);
    if (isNegative)
        sendKey(Qt::Key_Delete);
    else
        type("-");
    int const after = isMasked ? qMax(cursor, position + 1) : cursor + (isNegative ? -1 : 1);
    if (edit())
        edit()->setCursorPosition(qMax(after, 0));
}

QString lineEntry_t::promptOf(QLineEdit* edit)
{
    QString const prompt = propertyOf(edit, "keypadPrompt");
    if (!prompt.isEmpty())
        return prompt;
    QString const name = accessibleNameOf(edit);
    return name.isEmpty() ? captionOf(edit) : name;
}

bool lineEntry_t::isNumeric(QLineEdit* edit)
{
    return propertyOf(edit, "keypadType") == "numeric";
}

} // namespace melvox_display
