#ifndef MELVOX_DISPLAY_LINK_MONITOR_H
#define MELVOX_DISPLAY_LINK_MONITOR_H

#include <QFrame>

class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

namespace melvox_display
{

class monitorModel_t;

/** The developer's view of the link: every message as it passes, the newest at the bottom. */
class linkMonitor_t : public QFrame
{
    Q_OBJECT

public:
    /** The model must live as long. */
    explicit linkMonitor_t(monitorModel_t* model, QWidget* parent = nullptr);

    QSize sizeHint() const override;

private slots:
    void togglePause();
    void showState();
    void showMessage();
    void keepNewestInSight();
    void noteScrolling();
    void filter(QString const& text);

private:
    QTableView* createTable();

    monitorModel_t* m_model;
    QSortFilterProxyModel* m_filtered;
    QTableView* m_table;
    QLabel* m_state;
    QPushButton* m_pause;
    QPlainTextEdit* m_message;
    bool m_atEnd;
};

} // namespace melvox_display

#endif
