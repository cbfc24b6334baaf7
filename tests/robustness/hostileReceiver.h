#ifndef MELVOX_ROBUSTNESS_HOSTILE_RECEIVER_H
#define MELVOX_ROBUSTNESS_HOSTILE_RECEIVER_H

#include "dice.h"
#include "link/scriptedLink.h"

#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QStringList>

namespace melvox_robustness
{

/** A receiver that tells whatever it likes: values that can be, values that cannot, answers to what nobody asked. Some
 *  groups it never tells of, so that the pages have to live without. */
class hostileReceiver_t : public QObject
{
    Q_OBJECT

public:
    explicit hostileReceiver_t(melvox_link::scriptedLink_t* link, QObject* parent = nullptr);

    /** Draws the groups that this receiver keeps to itself. */
    void drawMuted(dice_t dice);
    QSet<QString> const& muted() const { return m_muted; }

    /** Tells of some group. Returns what it did, for people. */
    QString tell(dice_t& dice);
    /** Answers the oldest message that it was sent and has not answered yet. */
    QString answer(dice_t& dice);

    /** Noted as sent to the receiver, to be answered. */
    void take(melvox_link::message_t const& message);

private slots:
    void learn(melvox_link::message_t const& message);

private:
    QString report(QString const& group, QVariant const& value);
    QString answerCommand(dice_t& dice, melvox_link::message_t const& message);
    QString wantFile(dice_t& dice, QString const& name);
    QVariant anyValue(dice_t& dice, QString const& group);

    melvox_link::scriptedLink_t* m_link;
    QHash<QString, QList<QVariant>> m_known; //!< values that can be, by group
    QStringList m_groups;
    QSet<QString> m_muted;
    QList<melvox_link::message_t> m_unanswered;
    QStringList m_files; //!< what the display offered
};

/** A value with some of its leaves made impossible. */
QVariant spoilt(dice_t& dice, QVariant const& value);

} // namespace melvox_robustness

#endif
