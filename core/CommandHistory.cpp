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
    if (m_position == m_entries.size())
        m_typed = typed;
    if (m_position > 0)
        --m_position;
    return m_entries.at(m_position);
}

QString CommandHistory::newer(const QString &typed)
{
    if (m_position >= m_entries.size())
        return typed;
    ++m_position;
    return m_position == m_entries.size() ? m_typed : m_entries.at(m_position);
}
