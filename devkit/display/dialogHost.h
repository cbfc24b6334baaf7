#ifndef MELVOX_DISPLAY_DIALOG_HOST_H
#define MELVOX_DISPLAY_DIALOG_HOST_H

#include "brel_common_qt_gui/dialogPage.h"

#include <QDialog>
#include <QList>
#include <QObject>
#include <QPointer>

class QStackedWidget;
class QWidget;

namespace melvox_display
{

class cardLayer_t;

/** Shows dialogs as pages over the current page, the last one on top, and message boxes as cards over everything.
 *  A dialog that is finished goes back, hidden, to where it came from; its owner may also destroy it at any time. */
class displayDialogHost_t : public QObject, public brel_common_qt_gui::dialogHost_t
{
    Q_OBJECT

public:
    /** Both must live as long. */
    displayDialogHost_t(QStackedWidget* area, cardLayer_t* cards, QObject* parent = nullptr);
    /** Gives all dialogs back. */
    ~displayDialogHost_t() override;

    void showDialog(QDialog* dialog) override;

    /** The page below all dialogs; already in the area. */
    void setPage(QWidget* view);
    QWidget* page() const { return m_page.data(); }

    /** The dialog on top, null for none; cards do not count. */
    QDialog* currentDialog() const;
    /** The message box on top, null for none. */
    QDialog* currentCard() const;

    /** Hides all and gives them back, without a result. */
    void giveAllBack();

    bool eventFilter(QObject* object, QEvent* event) override;

public slots:
    /** Rejects the dialog on top. */
    void back();
    /** Rejects all dialogs from the top down, as far as they let themselves be rejected. */
    void rejectAll();

signals:
    /** Another dialog is on top, or its title changed. */
    void changed();

private slots:
    void leave();
    void forget(QObject* dialog);
    void forgetOwner(QObject* owner);

private:
    struct entry_t
    {
        QObject* identity; //!< never followed: the dialog may be half destroyed
        QPointer<QDialog> dialog;
        QPointer<QWidget> view; //!< null for a card
        QPointer<QWidget> owner;
        bool hadOwner;
        Qt::WindowFlags flags;
        bool wasMoved;
    };

    int indexOf(QObject const* dialog) const;
    void showAsPage(entry_t& entry);
    void showAsCard(entry_t& entry);
    void give(entry_t const& entry);
    void drop(int index);
    void arrange();
    QWidget* takeView(QDialog* dialog);
    void putViewAway(QWidget* view);

    QStackedWidget* m_area;
    cardLayer_t* m_cards;
    QPointer<QWidget> m_page;
    QList<entry_t> m_entries;
    QList<QWidget*> m_spareViews;
};

} // namespace melvox_display

#endif
