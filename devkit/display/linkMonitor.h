#ifndef MELVOX_DISPLAY_LINK_MONITOR_H
#define MELVOX_DISPLAY_LINK_MONITOR_H

#include <QFrame>
#include <QTimer>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTableView;

namespace melvox_display
{

class monitorFilter_t;
class monitorModel_t;

/** The developer's view of the link: every message as it passes, the newest at the bottom. */
class linkMonitor_t : public QFrame
{
    Q_OBJECT

public:
    /** The model must live as long. */
    explicit linkMonitor_t(monitorModel_t* model, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private slots:
    void togglePause();
    void showState();
    void showMessage();
    void keepNewestInSight();
    void noteScrolling();
    void filter(QString const& text);
    void copy();

private:
    QTableView* createTable();
    void connectWidgets();
    void updateTimer();

    monitorModel_t* m_model;
    monitorFilter_t* m_filtered;
    QTableView* m_table;
    QLabel* m_state;
    QPushButton* m_pause;
    QPushButton* m_copy;
    QPushButton* m_clear;
    QLineEdit* m_filter;
    QPlainTextEdit* m_message;
    bool m_atEnd;
    QTimer m_aging;
};

} // namespace melvox_display

#endif
