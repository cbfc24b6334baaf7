#ifndef MELVOX_SCENARIOS_JSON_LINES_H
#define MELVOX_SCENARIOS_JSON_LINES_H

#include <QByteArray>
#include <QMap>
#include <QStringList>

namespace melvox_scenarios
{

/** On which lines the parts of a JSON text stand, which Qt's documents do not tell. */
class jsonLines_t
{
public:
    /** Where a position in the text is, from 1. */
    static int lineAt(QByteArray const& text, int offset);

    /** The text must be one that QJsonDocument takes. */
    explicit jsonLines_t(QByteArray const& text);

    /** Where the member or entry at the end of these keys and indexes begins; of what is not there, where the nearest
     *  thing around it begins. */
    int line(QStringList path) const;

    /** The way to the first key that stands twice in its object; empty: none does. */
    QStringList const& doubled() const { return m_doubled; }

private:
    void skipBlanks();
    void skipValue(QStringList const& path);
    void skipObject(QStringList const& path);
    void skipArray(QStringList const& path);
    QString takeString();
    void note(QStringList const& path, int offset);

    QByteArray m_text;
    int m_at;
    QMap<QStringList, int> m_offsets;
    QStringList m_doubled;
};

} // namespace melvox_scenarios

#endif
