#pragma once
// The commands sent in this run of the program, walked with Up and Down in the command field
// as in any terminal: Up goes to older commands, Down back towards the newest and then to what
// was being typed before the walk began.

#include <QStringList>

class CommandHistory
{
public:
    // A sent command; an empty one or a repeat of the newest is not stored twice.
    void add(const QString &command);
    // The entry one older than the current one; `typed` is kept when the walk starts.
    QString older(const QString &typed);
    // The entry one newer; past the newest, the text typed before the walk (`typed` when there
    // is no walk under way).
    QString newer(const QString &typed);

private:
    QStringList m_entries;
    qsizetype m_position = 0; // m_entries.size(): not walking
    QString m_typed;
};
