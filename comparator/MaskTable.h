#pragma once
// The masks of table M as a ready masker, read again only when the file has changed. Reading M
// and building its automaton at every answer cost more than masking the answer itself.

#include "Masker.h"

class Database;

class MaskTable
{
public:
    explicit MaskTable(Database &db) : m_db(db) {}

    // The console's masker (filler marks removed, longest first) as M stands now.
    const Masker &masker();
    // Changes whenever masker() has been rebuilt, so that masked texts kept from an earlier
    // masker are masked again.
    quint64 revision() const { return m_revision; }

private:
    Database &m_db;
    Masker m_masker;
    quint64 m_dataVersion = 0;
    quint64 m_revision = 0; // 0: never read
};
