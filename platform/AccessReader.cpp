#include "AccessReader.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <memory>

#include <mdbtools.h>

namespace {

// Memo fields can be long (a recorded console answer of 100 KB and more); what libmdb hands
// over is cut at the bound size, so it is set well above any answer a phone sends.
constexpr size_t kBindSize = 1024 * 1024;

MdbHandle *handle(void *h)
{
    return static_cast<MdbHandle *>(h);
}

struct TableDef
{
    explicit TableDef(MdbTableDef *t) : table(t) {}
    ~TableDef()
    {
        if (table)
            mdb_free_tabledef(table);
    }
    TableDef(const TableDef &) = delete;
    TableDef &operator=(const TableDef &) = delete;
    MdbTableDef *table;
};

MdbCatalogEntry *findTable(MdbHandle *mdb, const QString &name)
{
    for (unsigned i = 0; i < mdb->num_catalog; ++i) {
        auto *entry = static_cast<MdbCatalogEntry *>(g_ptr_array_index(mdb->catalog, i));
        if (entry->object_type == MDB_TABLE && !mdb_is_system_table(entry)
            && QString::fromUtf8(entry->object_name).compare(name, Qt::CaseInsensitive) == 0)
            return entry;
    }
    return nullptr;
}

// The table with its column list read, or null with the reason in *error.
std::unique_ptr<TableDef> openTable(void *h, const QString &table, QString *error)
{
    if (!h)
        return nullptr;
    MdbCatalogEntry *entry = findTable(handle(h), table);
    if (!entry) {
        *error = QStringLiteral("table %1 is missing").arg(table);
        return nullptr;
    }
    auto def = std::make_unique<TableDef>(mdb_read_table(entry));
    if (!def->table || !mdb_read_columns(def->table)) {
        *error = QStringLiteral("table %1 cannot be read").arg(table);
        return nullptr;
    }
    return def;
}

} // namespace

bool AccessReader::looksLikeAccess(const QByteArray &firstBytes)
{
    const QByteArray signature = firstBytes.mid(4, 15);
    return signature == "Standard Jet DB" || signature == "Standard ACE DB";
}

AccessReader::AccessReader(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        m_lastError = QStringLiteral("%1: %2").arg(path, file.errorString());
        return;
    }
    const QByteArray header = file.read(0x20);
    const qint64 size = file.size();
    file.close();
    if (!looksLikeAccess(header)) {
        m_lastError = QStringLiteral("%1 is not an Access file").arg(path);
        return;
    }
    // Jet 3 files are built of 2 KB pages, Jet 4 and later of 4 KB pages: a size that is not a
    // whole number of pages means the copy was cut short.
    const qint64 page = static_cast<unsigned char>(header.at(0x14)) == 0 ? 2048 : 4096;
    if (size < 2 * page || size % page != 0) {
        m_lastError = QStringLiteral("%1 is truncated (%2 bytes)").arg(path).arg(size);
        return;
    }

    MdbHandle *mdb = mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS);
    if (!mdb) {
        m_lastError = QStringLiteral("%1 cannot be opened as an Access file").arg(path);
        return;
    }
    mdb_set_bind_size(mdb, kBindSize);
    mdb_set_date_fmt(mdb, "%Y-%m-%d %H:%M:%S");
    if (!mdb_read_catalog(mdb, MDB_TABLE)) {
        m_lastError = QStringLiteral("%1: the table list cannot be read").arg(path);
        mdb_close(mdb);
        return;
    }
    m_handle = mdb;
    for (unsigned i = 0; i < mdb->num_catalog; ++i) {
        auto *entry = static_cast<MdbCatalogEntry *>(g_ptr_array_index(mdb->catalog, i));
        if (entry->object_type == MDB_TABLE && !mdb_is_system_table(entry))
            m_tables << QString::fromUtf8(entry->object_name);
    }
}

AccessReader::~AccessReader()
{
    if (m_handle)
        mdb_close(handle(m_handle));
}

QStringList AccessReader::tables() const
{
    return m_tables;
}

std::optional<QStringList> AccessReader::columns(const QString &table)
{
    const std::unique_ptr<TableDef> def = openTable(m_handle, table, &m_lastError);
    if (!def)
        return std::nullopt;
    QStringList names;
    for (unsigned c = 0; c < def->table->num_cols; ++c)
        names << QString::fromUtf8(static_cast<MdbColumn *>(g_ptr_array_index(def->table->columns, c))->name);
    return names;
}

std::optional<QList<QStringList>> AccessReader::rows(const QString &table, const QStringList &columns)
{
    const std::unique_ptr<TableDef> def = openTable(m_handle, table, &m_lastError);
    if (!def)
        return std::nullopt;

    // One bound buffer per table column asked for (libmdb keeps one binding per column, so a
    // column named twice shares its buffer); libmdb writes each fetched value into it as UTF-8.
    QList<int> picked; // table column of each requested name
    QList<int> bound;  // table columns with a buffer, in binding order
    for (const QString &name : columns) {
        int found = -1;
        for (unsigned c = 0; c < def->table->num_cols; ++c) {
            const auto *column = static_cast<MdbColumn *>(g_ptr_array_index(def->table->columns, c));
            if (QString::fromUtf8(column->name).compare(name, Qt::CaseInsensitive) == 0) {
                found = static_cast<int>(c);
                break;
            }
        }
        if (found < 0) {
            m_lastError = QStringLiteral("column %1.%2 is missing").arg(table, name);
            return std::nullopt;
        }
        picked << found;
        if (!bound.contains(found))
            bound << found;
    }
    QList<QByteArray> buffers(bound.size());
    QList<int> lengths(bound.size(), 0);
    for (qsizetype n = 0; n < bound.size(); ++n) {
        buffers[n] = QByteArray(static_cast<qsizetype>(kBindSize) + 1, '\0');
        mdb_bind_column(def->table, bound.at(n) + 1, buffers[n].data(), &lengths[n]);
    }

    QList<QStringList> result;
    mdb_rewind_table(def->table);
    while (mdb_fetch_row(def->table)) {
        QStringList row;
        row.reserve(columns.size());
        for (const int column : std::as_const(picked)) {
            const qsizetype n = bound.indexOf(column);
            const qsizetype length = std::clamp<qsizetype>(lengths.at(n), 0, static_cast<qsizetype>(kBindSize));
            row << QString::fromUtf8(buffers.at(n).constData(), qstrnlen(buffers.at(n).constData(), length));
        }
        result << row;
    }
    m_lastError.clear();
    return result;
}
