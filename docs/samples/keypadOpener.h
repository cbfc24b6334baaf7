#ifndef SAMPLES_KEYPAD_OPENER_H
#define SAMPLES_KEYPAD_OPENER_H

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QVariant>

// begin keypad
/** Tells when the operator taps a line edit, and which keypad it wants. */
class keypadOpener_t : public QObject
{
    Q_OBJECT

public:
    explicit keypadOpener_t(QObject* parent = 0) : QObject(parent) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        QLineEdit* const edit = qobject_cast<QLineEdit*>(object);
        if (edit && event->type() == QEvent::MouseButtonRelease && edit->isEnabled() && !edit->isReadOnly())
        {
            bool const numeric = edit->property("keypadType").toString() == "numeric";
            emit wanted(edit, numeric, edit->property("keypadPrompt").toString());
        }
        return QObject::eventFilter(object, event);
    }

signals:
    void wanted(QWidget* edit, bool numeric, QString const& prompt);
};
// end

#endif
