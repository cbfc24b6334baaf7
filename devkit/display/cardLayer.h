#ifndef MELVOX_DISPLAY_CARD_LAYER_H
#define MELVOX_DISPLAY_CARD_LAYER_H

#include <QList>
#include <QPointer>
#include <QWidget>

class QFrame;

namespace melvox_display
{

/** Lies over a screen while there are cards and shows the topmost in the middle, everything behind it dimmed and out
 *  of reach of finger and keyboard. Does not own the cards. */
class cardLayer_t : public QWidget
{
    Q_OBJECT

public:
    explicit cardLayer_t(QWidget* screen);
    ~cardLayer_t() override;

    /** Puts it on top of the others and shows it. */
    void add(QWidget* card, QString const& title);
    /** Lets go of it: it then has no parent. */
    void remove(QWidget* card);
    /** The same for one that is being destroyed. */
    void forget(QObject* card);
    QWidget* top() const;

    bool eventFilter(QObject* object, QEvent* event) override;

protected:
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    struct card_t
    {
        QObject* identity; //!< never followed
        QPointer<QWidget> card;
        QFrame* frame;
    };

    QFrame* createFrame(QString const& title);
    void arrange();
    void arrangeCard(card_t const& entry, bool isTop);

    QWidget* m_screen;
    QList<card_t> m_cards;
    QPointer<QWidget> m_focusBefore;
};

} // namespace melvox_display

#endif
