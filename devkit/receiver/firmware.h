#ifndef MELVOX_RECEIVER_FIRMWARE_H
#define MELVOX_RECEIVER_FIRMWARE_H

#include "firmware/firmwareFile.h"
#include "receiver/behaviour.h"
#include "receiver/fileFetch.h"

#include <QList>
#include <QMap>

namespace melvox_receiver
{

/** The receiver's firmware, and how it takes new. The display that starts an update must have the port's lock. Files
 *  are drawn and checked whole before any of them is written; written firmware runs after the next restart. A component
 *  whose writing was broken off has the version "incomplete" until it is written again.
 *
 *  Situations:
 *  - "failingFirmware": the component that cannot be written: its name, its place in the update from 1, or empty.
 *  - "powerCutInFirmware": the component in the middle of whose writing the power is lost, once; likewise.
 *  - "firmwareVersions": {component: version, ...}, what the receiver runs. */
class firmware_t : public behaviour_t
{
public:
    explicit firmware_t(receiver_t& receiver);

    answer_t request(link_t* from, QString const& group) override;
    answer_t command(link_t* from, QString const& group, QVariant const& value) override;
    QStringList situations() const override;
    answer_t situation(QString const& name, QVariant const& value) override;
    void linkClosed(link_t* link) override;
    void restarted() override;
    void advance(int milliseconds) override;

private:
    struct component_t
    {
        int component;
        unsigned int fileIndex;
        QString path;
        qint64 size;
        int status;
        QString version; //!< as the file tells it
    };

    answer_t start(link_t* from, QVariant const& value);
    void readUpdate(QVariantMap const& update);
    QString whyNot(link_t* from) const;
    void fetchNext();
    answer_t go(fileFetch_t::progress_t progress);
    void finishFile();
    QString checkFile(int first, int count);
    void writeNext();
    void finishWriting();
    bool isMeant(QVariant const& which) const;
    answer_t setVersions(QVariant const& versions);
    void finish();
    void fail(QString const& error);
    void end(int state, QString const& description);
    int filesOf(int first) const;
    void reportState(int state, QString const& description);
    void reportProgress();
    void reportPercent();

    fileFetch_t m_fetch;
    melvox_firmware::packageReader_t m_reader; //!< of the file that is drawn
    link_t* m_from;                            //!< null: the display is gone
    bool m_running;
    QList<component_t> m_components;
    bool m_combined;
    int m_current;  //!< being drawn or written
    int m_checked;  //!< components up to here have been drawn and checked
    int m_writing;  //!< milliseconds that the current one still takes; negative: nothing is written
    qint64 m_done;  //!< bytes of the files that are complete
    qint64 m_total; //!< bytes
    QMap<int, QString> m_runningVersions;
    QMap<int, QString> m_storedVersions;
    QVariant m_failing;    //!< a component, by its name or its place from 1
    QVariant m_powerCutIn; //!< likewise
    QVariantMap m_untold;  //!< an outcome that the display was not there to hear
};

} // namespace melvox_receiver

#endif
