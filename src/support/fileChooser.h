#ifndef MELVOX_UI_FILE_CHOOSER_H
#define MELVOX_UI_FILE_CHOOSER_H

#include <QFileDialog>
#include <QObject>
#include <QPointer>

namespace brel_common_qt_gui
{

/** The way to a file on units without USB drives: a file dialog over the window that the operator works in, which lets
 *  the event loop run on. It opens in the process's current directory, and what is chosen makes its own the current
 *  one, so that the next dialog opens there. */
class fileChooser_t : public QObject
{
    Q_OBJECT

public:
    fileChooser_t(QFileDialog::AcceptMode mode, QString const& title, QString const& filter, QObject* parent);
    ~fileChooser_t();

    /** Returns at once. */
    void show();

signals:
    /** Does not come when the dialog is cancelled. */
    void fileSelected(QString const& path);

private slots:
    void take(QString const& path);

private:
    Q_DISABLE_COPY(fileChooser_t)

    QFileDialog::AcceptMode m_mode;
    QString m_title;
    QString m_filter;
    QPointer<QFileDialog> m_dialog;
};

} // namespace brel_common_qt_gui

#endif
