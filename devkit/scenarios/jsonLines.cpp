#include "scenarios/jsonLines.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace melvox_scenarios
{

namespace
{

char const* const BLANKS = " \t\r\n";
char const* const ENDS = ",]} \t\r\n";

} // namespace

int jsonLines_t::lineAt(QByteArray const& text, int offset)
{
    return int(text.left(offset).count('\n')) + 1;
}

jsonLines_t::jsonLines_t(QByteArray const& text) : m_text(text), m_at(0)
{
    skipBlanks();
    skipValue(QStringList());
}

int jsonLines_t::line(QStringList path) const
{
    while (!path.isEmpty() && !m_offsets.contains(path))
        path.removeLast();
    return lineAt(m_text, m_offsets.value(path));
}

void jsonLines_t::note(QStringList const& path, int offset)
{
    if (m_offsets.contains(path) && m_doubled.isEmpty())
        m_doubled = path;
    m_offsets.insert(path, offset);
}

void jsonLines_t::skipBlanks()
{
    while (m_at < m_text.size() && QByteArray(BLANKS).contains(m_text.at(m_at)))
        ++m_at;
}

void jsonLines_t::skipValue(QStringList const& path)
{
    char const first = m_at < m_text.size() ? m_text.at(m_at) : '\0';
    if (first == '{')
        skipObject(path);
    else if (first == '[')
        skipArray(path);
    else if (first == '"')
        takeString();
    else
        while (m_at < m_text.size() && !QByteArray(ENDS).contains(m_text.at(m_at)))
            ++m_at;
    skipBlanks();
}

/** Stands on the brace; afterwards behind the closing one. */
void jsonLines_t::skipObject(QStringList const& path)
{
    ++m_at;
    skipBlanks();
    while (m_at < m_text.size() && m_text.at(m_at) == '"')
    {
        int const start = m_at;
        QStringList const member = path + QStringList(takeString());
        note(member, start);
        skipBlanks();
        ++m_at; // the colon
        skipBlanks();
        skipValue(member);
        if (m_at < m_text.size() && m_text.at(m_at) == ',')
            ++m_at;
        skipBlanks();
    }
    ++m_at;
}

void jsonLines_t::skipArray(QStringList const& path)
{
    ++m_at;
    skipBlanks();
    for (int i = 0; m_at < m_text.size() && m_text.at(m_at) != ']'; ++i)
    {
        QStringList const entry = path + QStringList(QString::number(i));
        note(entry, m_at);
        skipValue(entry);
        if (m_at < m_text.size() && m_text.at(m_at) == ',')
            ++m_at;
        skipBlanks();
    }
    ++m_at;
}

QString jsonLines_t::takeString()
{
    int const start = m_at;
    for (++m_at; m_at < m_text.size() && m_text.at(m_at) != '"'; ++m_at)
    {
        if (m_text.at(m_at) == '\\')
            ++m_at;
    }
    ++m_at;
    return QJsonDocument::fromJson('[' + m_text.mid(start, m_at - start) + ']').array().first().toString();
}

} // namespace melvox_scenarios
