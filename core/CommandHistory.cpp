#include "CommandHistory.h"

void CommandHistory::add(const QString &command)
{
    if (!command.isEmpty() && (m_entries.isEmpty() || m_entries.last() != command))
        m_entries.append(command);
    m_position = m_entries.size();
    m_typed.clear();
}

QString CommandHistory::older(const QString &typed)
{
    if (m_entries.isEmpty())
        return typed;
    // The field no longer shows what the walk put there (typed over, or a console opened
    // again): a new walk starts from the newest command.
    if (m_position < m_entries.size() && m_entries.at(m_position) != typed)
        m_position = m_entries.size();
    if (m_position == m_entries.size())
        m_typed = typed;
    if (m_position > 0)
        --m_position;
    return m_entries.at(m_position);
}

QString CommandHistory::newer(const QString &typed)
{
    if (m_position >= m_entries.size() || m_entries.at(m_position) != typed)
        return typed;
    ++m_position;
    return m_position == m_entries.size() ? m_typed : m_entries.at(m_position);
}
