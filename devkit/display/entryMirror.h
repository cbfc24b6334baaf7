#ifndef MELVOX_DISPLAY_ENTRY_MIRROR_H
#define MELVOX_DISPLAY_ENTRY_MIRROR_H

#include <QLineEdit>
#include <QPointer>
#include <QString>
#include <QWidget>

namespace melvox_display
{

/** Shows what a line edit shows, with its cursor and selection, where a finger does not cover it. */
class entryMirror_t : public QWidget
{
    Q_OBJECT

public:
    explicit entryMirror_t(QWidget* parent = nullptr);

    /** Null for none. */
    void follow(QLineEdit* edit);
    /** Looks at the edit again. */
    void refresh();

    QString text() const { return m_text; }

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    int xOf(int position) const;

    QPointer<QLineEdit> m_edit;
    QString m_text;
    int m_cursor;
    int m_selectionStart;
    int m_selectionLength;
};

} // namespace melvox_display

#endif
