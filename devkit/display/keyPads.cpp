#include "display/keyPads.h"

#include "display/entryMirror.h"
#include "display/lineEntry.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <QVariant>

namespace melvox_display
{

namespace
{

int const GAP = 6;
int const FIRST_ROW = 10;
int const SECOND_ROW = 9;
int const THIRD_ROW = 7;

/** The characters of the three changing rows, one after the other; a blank is no key. */
char const* const LETTERS = "qwertyuiop"
                            "asdfghjkl"
                            "zxcvbnm";
char const* const SYMBOLS = "1234567890"
                            "@#$%&*()+"
                            "!\"':;?/";
char const* const MORE_SYMBOLS = "1234567890"
                                 "~`^|\\<>{}"
                                 "[]=,   ";
/** Below a row of digits. */
char const* const WIDE_SYMBOLS = "!\"#$%&'()*"
                                 "+,/:;<=>?"
                                 "@[\\]^`{";
char const* const MORE_WIDE_SYMBOLS = "|}~       "
                                      "         "
                                      "       ";

} // namespace

pad_t::pad_t(lineEntry_t* entry, QWidget* parent)
    : QWidget(parent), m_entry(entry), m_prompt(new QLabel(this)), m_mirror(new entryMirror_t(this))
{
    m_prompt->setObjectName("keypadPromptLabel");
    m_prompt->setTextFormat(Qt::PlainText);
}

void pad_t::start(QString const& prompt)
{
    m_prompt->setText(prompt);
    m_mirror->follow(m_entry->edit());
}

void pad_t::stop()
{
    m_mirror->follow(nullptr);
}

void pad_t::refresh()
{
    m_mirror->refresh();
}

QPushButton* pad_t::makeKey(QString const& name, QString const& text)
{
    QPushButton* key = new QPushButton(this);
    key->setObjectName("key_" + name);
    key->setText(QString(text).replace('&', "&&"));
    key->setFocusPolicy(Qt::NoFocus);
    key->setAutoDefault(false);
    key->setProperty("key", true);
    key->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    return key;
}

QPushButton* pad_t::makeKey(QString const& name, glyph_t glyph, QString const& accessibleName)
{
    QPushButton* key = makeKey(name, QString());
    key->setIcon(glyphIcon(glyph));
    key->setIconSize(QSize(24, 24));
    key->setAccessibleName(accessibleName);
    return key;
}

QPushButton* pad_t::makeRepeatingKey(QString const& name, glyph_t glyph, QString const& accessibleName,
                                     void (lineEntry_t::*action)())
{
    QPushButton* key = makeKey(name, glyph, accessibleName);
    key->setAutoRepeat(true);
    connect(key, &QPushButton::clicked, m_entry, action);
    return key;
}

QPushButton* pad_t::makeClearKey()
{
    QPushButton* key = makeKey("clear", tr("Clear"));
    key->setProperty("word", true);
    connect(key, &QPushButton::clicked, m_entry, &lineEntry_t::clear);
    return key;
}

QPushButton* pad_t::makeCancelKey()
{
    QPushButton* key = makeKey("cancel", tr("Cancel"));
    key->setProperty("word", true);
    connect(key, &QPushButton::clicked, this, &pad_t::cancelled);
    return key;
}

QPushButton* pad_t::makeDoneKey()
{
    QPushButton* key = makeKey("done", tr("Done"));
    key->setProperty("word", true);
    key->setProperty("accent", true);
    connect(key, &QPushButton::clicked, this, &pad_t::accepted);
    return key;
}

QPushButton* pad_t::makeCharacterKey(QChar character)
{
    QPushButton* key = makeKey(QString(character), QString(character));
    connect(key, &QPushButton::clicked, this, [this, character]() { m_entry->type(QString(character)); });
    return key;
}

numericPad_t::numericPad_t(lineEntry_t* entry, QWidget* parent)
    : pad_t(entry, parent), m_sign(nullptr), m_point(nullptr), m_colon(nullptr)
{
    setObjectName("numericPad");
    QHBoxLayout* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4 * GAP);
    QVBoxLayout* side = new QVBoxLayout;
    side->setSpacing(GAP);
    addEntrySide(side);
    layout->addLayout(side, 5);
    QGridLayout* grid = new QGridLayout;
    grid->setSpacing(GAP);
    addDigits(grid);
    layout->addLayout(grid, 5);
}

void numericPad_t::addEntrySide(QBoxLayout* layout)
{
    layout->addWidget(m_prompt);
    layout->addWidget(m_mirror);
    layout->addStretch(1);
    QHBoxLayout* editing = new QHBoxLayout;
    editing->setSpacing(GAP);
    editing->addWidget(makeRepeatingKey("left", glyph_t::LEFT, tr("Cursor left"), &lineEntry_t::moveLeft));
    editing->addWidget(makeRepeatingKey("right", glyph_t::RIGHT, tr("Cursor right"), &lineEntry_t::moveRight));
    editing->addWidget(makeClearKey());
    editing->addWidget(
        makeRepeatingKey("backspace", glyph_t::BACKSPACE, tr("Delete the last character"), &lineEntry_t::backspace));
    layout->addLayout(editing);
    QHBoxLayout* leaving = new QHBoxLayout;
    leaving->setSpacing(GAP);
    leaving->addWidget(makeCancelKey());
    leaving->addWidget(makeDoneKey());
    layout->addLayout(leaving);
}

void numericPad_t::addDigits(QGridLayout* grid)
{
    for (int digit = 1; digit <= 9; ++digit)
        grid->addWidget(makeCharacterKey(QChar('0' + digit)), 2 - (digit - 1) / 3, (digit - 1) % 3);
    m_sign = makeKey("sign", QString(QChar(0xb1)));
    m_sign->setAccessibleName(tr("Change the sign"));
    connect(m_sign, &QPushButton::clicked, m_entry, &lineEntry_t::toggleSign);
    grid->addWidget(m_sign, 3, 0);
    grid->addWidget(makeCharacterKey('0'), 3, 1);
    m_point = makeCharacterKey('.');
    grid->addWidget(m_point, 3, 2);
    m_colon = makeCharacterKey(':');
    grid->addWidget(m_colon, 3, 3);
}

void numericPad_t::start(QString const& prompt)
{
    pad_t::start(prompt);
    m_sign->setEnabled(m_entry->admits('-'));
    m_point->setEnabled(m_entry->admits('.'));
    m_colon->setVisible(m_entry->admits(':'));
}

fullPad_t::fullPad_t(lineEntry_t* entry, QWidget* parent)
    : pad_t(entry, parent), m_digits(new QWidget(this)), m_shiftKey(nullptr), m_symbolsKey(nullptr), m_shift(SHIFT_OFF),
      m_symbols(false), m_compact(false)
{
    setObjectName("fullPad");
    QVBoxLayout* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(GAP);
    addHeader(layout);

    QHBoxLayout* digits = new QHBoxLayout(m_digits);
    digits->setContentsMargins(0, 0, 0, 0);
    digits->setSpacing(GAP);
    for (QChar digit : QString("1234567890"))
        digits->addWidget(makeCharacterKey(digit));
    layout->addWidget(m_digits, 1);

    addCharacters(addRow(layout), FIRST_ROW);
    QBoxLayout* second = addRow(layout);
    second->addStretch(1);
    addCharacters(second, SECOND_ROW);
    second->addStretch(1);
    QBoxLayout* third = addRow(layout);
    m_shiftKey = makeKey("shift", glyph_t::SHIFT, tr("Shift"));
    m_shiftKey->setCheckable(true);
    connect(m_shiftKey, &QPushButton::clicked, this, &fullPad_t::pressShift);
    third->addWidget(m_shiftKey, 3);
    addCharacters(third, THIRD_ROW);
    third->addWidget(
        makeRepeatingKey("backspace", glyph_t::BACKSPACE, tr("Delete the last character"), &lineEntry_t::backspace), 3);
    addBottomRow(addRow(layout));
    showLayer();
}

void fullPad_t::addHeader(QBoxLayout* layout)
{
    QHBoxLayout* header = new QHBoxLayout;
    header->setSpacing(2 * GAP);
    header->addWidget(m_prompt);
    header->addWidget(m_mirror, 1);
    QPushButton* cancel = makeCancelKey();
    QPushButton* done = makeDoneKey();
    header->addWidget(cancel);
    header->addWidget(done);
    for (QPushButton* key : {cancel, done})
        key->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    layout->addLayout(header);
}

QBoxLayout* fullPad_t::addRow(QBoxLayout* layout)
{
    QHBoxLayout* row = new QHBoxLayout;
    row->setSpacing(GAP);
    layout->addLayout(row, 1);
    return row;
}

void fullPad_t::addCharacters(QBoxLayout* row, int count)
{
    for (int i = 0; i < count; ++i)
    {
        QPushButton* key = makeKey(QString(), QString());
        connect(key, &QPushButton::clicked, this, [this, key]() { typeKey(key); });
        row->addWidget(key, 2);
        m_characters << key;
    }
}

void fullPad_t::addBottomRow(QBoxLayout* row)
{
    m_symbolsKey = makeKey("symbols", QString());
    m_symbolsKey->setProperty("word", true);
    connect(m_symbolsKey, &QPushButton::clicked, this, &fullPad_t::pressSymbols);
    row->addWidget(m_symbolsKey, 3);
    row->addWidget(makeRepeatingKey("left", glyph_t::LEFT, tr("Cursor left"), &lineEntry_t::moveLeft), 2);
    row->addWidget(makeRepeatingKey("right", glyph_t::RIGHT, tr("Cursor right"), &lineEntry_t::moveRight), 2);
    QPushButton* space = makeKey("space", tr("Space"));
    space->setProperty("word", true);
    connect(space, &QPushButton::clicked, this, [this]() { m_entry->type(" "); });
    row->addWidget(space, 6);
    for (QChar character : QString(".-_"))
        row->addWidget(makeCharacterKey(character), 2);
    row->addWidget(makeClearKey(), 3);
}

void fullPad_t::start(QString const& prompt)
{
    pad_t::start(prompt);
    m_prompt->setVisible(!prompt.isEmpty());
    m_shift = SHIFT_OFF;
    m_symbols = false;
    showLayer();
}

void fullPad_t::setCompact(bool compact)
{
    if (compact == m_compact)
        return;
    m_compact = compact;
    m_digits->setVisible(!compact);
    showLayer();
}

void fullPad_t::typeKey(QPushButton* key)
{
    m_entry->type(key->property("character").toString());
    if (m_shift == SHIFT_ONCE && !m_symbols)
    {
        m_shift = SHIFT_OFF;
        showLayer();
    }
}

void fullPad_t::pressShift()
{
    if (m_symbols)
        m_shift = m_shift == SHIFT_OFF ? SHIFT_LOCKED : SHIFT_OFF;
    else
        m_shift = m_shift == SHIFT_OFF ? SHIFT_ONCE : m_shift == SHIFT_ONCE ? SHIFT_LOCKED : SHIFT_OFF;
    showLayer();
}

void fullPad_t::pressSymbols()
{
    m_symbols = !m_symbols;
    m_shift = SHIFT_OFF;
    showLayer();
}

QString fullPad_t::characters() const
{
    bool const shifted = m_shift != SHIFT_OFF;
    if (!m_symbols)
        return shifted ? QString(LETTERS).toUpper() : QString(LETTERS);
    if (m_compact)
        return shifted ? MORE_SYMBOLS : SYMBOLS;
    return shifted ? MORE_WIDE_SYMBOLS : WIDE_SYMBOLS;
}

void fullPad_t::showLayer()
{
    QString const layer = characters();
    for (int i = 0; i < m_characters.size(); ++i)
    {
        QString const character = layer.mid(i, 1).trimmed();
        QPushButton* key = m_characters.at(i);
        key->setObjectName("key_" + character);
        key->setProperty("character", character);
        key->setText(QString(character).replace('&', "&&"));
        key->setEnabled(!character.isEmpty());
    }
    m_shiftKey->setChecked(m_shift != SHIFT_OFF);
    m_shiftKey->setIcon(glyphIcon(m_shift == SHIFT_LOCKED && !m_symbols ? glyph_t::SHIFT_LOCK : glyph_t::SHIFT));
    m_symbolsKey->setText(m_symbols ? tr("abc") : tr("!#1"));
    m_symbolsKey->setAccessibleName(m_symbols ? tr("Letters") : tr("Symbols and digits"));
}

} // namespace melvox_display
