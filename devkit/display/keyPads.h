#ifndef MELVOX_DISPLAY_KEY_PADS_H
#define MELVOX_DISPLAY_KEY_PADS_H

#include "display/glyphs.h"

#include <QList>
#include <QString>
#include <QWidget>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace melvox_display
{

class entryMirror_t;
class lineEntry_t;

/** The keys under the operator's fingers, with the prompt and what is typed above them. Keys never take the focus.
 *  Key names: "key_" and the character, or "key_backspace", "key_clear", "key_left", "key_right", "key_sign",
 *  "key_shift", "key_symbols", "key_space", "key_cancel", "key_done". */
class pad_t : public QWidget
{
    Q_OBJECT

public:
    /** Keys act on the entry, which must live as long. */
    pad_t(lineEntry_t* entry, QWidget* parent);

    /** Shows the pad for the edit the entry has now. */
    virtual void start(QString const& prompt);
    void stop();
    void refresh();

signals:
    void accepted();
    void cancelled();

protected:
    QPushButton* makeKey(QString const& name, QString const& text);
    QPushButton* makeKey(QString const& name, glyph_t glyph, QString const& accessibleName);
    /** A key that does something for as long as it is held. */
    QPushButton* makeRepeatingKey(QString const& name, glyph_t glyph, QString const& accessibleName,
                                  void (lineEntry_t::*action)());
    QPushButton* makeClearKey();
    QPushButton* makeCancelKey();
    QPushButton* makeDoneKey();
    QPushButton* makeCharacterKey(QChar character);

    lineEntry_t* m_entry;
    QLabel* m_prompt;
    entryMirror_t* m_mirror;
};

/** Digits, sign and point; colon only for those fields that take one. */
class numericPad_t : public pad_t
{
    Q_OBJECT

public:
    numericPad_t(lineEntry_t* entry, QWidget* parent);

    void start(QString const& prompt) override;

private:
    void addEntrySide(QBoxLayout* layout);
    void addDigits(QGridLayout* grid);

    QPushButton* m_sign;
    QPushButton* m_point;
    QPushButton* m_colon;
};

/** Letters, digits and all other printable characters of ASCII. */
class fullPad_t : public pad_t
{
    Q_OBJECT

public:
    fullPad_t(lineEntry_t* entry, QWidget* parent);

    void start(QString const& prompt) override;

    /** Without the row of digits, which are then among the symbols. */
    void setCompact(bool compact);

private:
    enum shift_t
    {
        SHIFT_OFF,
        SHIFT_ONCE,
        SHIFT_LOCKED
    };

    void addHeader(QBoxLayout* layout);
    QBoxLayout* addRow(QBoxLayout* layout);
    void addCharacters(QBoxLayout* row, int count);
    void addBottomRow(QBoxLayout* layout);
    void typeKey(QPushButton* key);
    void pressShift();
    void pressSymbols();
    QString characters() const;
    void showLayer();

    QWidget* m_digits;
    QList<QPushButton*> m_characters;
    QPushButton* m_shiftKey;
    QPushButton* m_symbolsKey;
    shift_t m_shift;
    bool m_symbols;
    bool m_compact;
};

} // namespace melvox_display

#endif
