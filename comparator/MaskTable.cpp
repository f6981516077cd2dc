#include "MaskTable.h"

#include "AutoComparador.h"
#include "Database.h"

const Masker &MaskTable::masker()
{
    const quint64 version = m_db.dataVersion();
    if (m_revision == 0 || version != m_dataVersion) {
        m_masker = AutoComparador::masker(m_db.maskTexts(), AutoComparador::FillerMarks::Remove);
        m_dataVersion = version;
        ++m_revision;
    }
    return m_masker;
}
