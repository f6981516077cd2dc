// The start-up check: tells what is wrong with a database file before anything relies on it,
// reading only. The one exception is the lock probe, a write lock taken and released at once
// with nothing written, because only an attempt reveals another program's lock.
#include "Database.h"

#include <QAtomicInteger>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QVariant>

namespace {

class ScopedConnection
{
public:
    ScopedConnection(const QString &path, const QString &options)
    {
        static QAtomicInteger<quint64> counter;
        m_name = QStringLiteral("vekto-check-%1").arg(counter.fetchAndAddRelaxed(1));
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_name);
        db.setDatabaseName(path);
        db.setConnectOptions(options);
        m_opened = db.open();
        if (!m_opened)
            m_error = db.lastError();
    }
    ~ScopedConnection()
    {
        {
            QSqlDatabase db = QSqlDatabase::database(m_name, false);
            db.close();
        }
        QSqlDatabase::removeDatabase(m_name);
    }
    ScopedConnection(const ScopedConnection &) = delete;
    ScopedConnection &operator=(const ScopedConnection &) = delete;

    bool opened() const { return m_opened; }
    QSqlError openError() const { return m_error; }
    QSqlDatabase db() const { return QSqlDatabase::database(m_name, false); }

private:
    QString m_name;
    bool m_opened = false;
    QSqlError m_error;
};

bool isLockError(const QSqlError &error)
{
    // SQLITE_BUSY (5) and SQLITE_LOCKED (6).
    const QString code = error.nativeErrorCode();
    return code == QLatin1String("5") || code == QLatin1String("6")
        || error.text().contains(QLatin1String("locked"), Qt::CaseInsensitive);
}

DatabaseProblem report(DatabaseProblem problem, QString *detail, const QString &text)
{
    if (detail)
        *detail = text;
    return problem;
}

} // namespace

const QList<QPair<QString, QStringList>> &Database::requiredSchema()
{
    static const QList<QPair<QString, QStringList>> schema = {
        {QStringLiteral("Comandos"), {QStringLiteral("Comando"), QStringLiteral("Info"), QStringLiteral("Info2"), QStringLiteral("Info3")}},
        {QStringLiteral("Dados"), {QStringLiteral("Aparelho"), QStringLiteral("Comando"), QStringLiteral("Dados"), QStringLiteral("Info"), QStringLiteral("Info2"), QStringLiteral("Info3")}},
        {QStringLiteral("M"), {QStringLiteral("String")}},
        {QStringLiteral("Master"), {QStringLiteral("Modelo"), QStringLiteral("Malha"), QStringLiteral("Ci"), QStringLiteral("TIPO"), QStringLiteral("Orig"), QStringLiteral("Reft"), QStringLiteral("refv"), QStringLiteral("Leitura"), QStringLiteral("Porc"), QStringLiteral("G1"), QStringLiteral("G2"), QStringLiteral("G3")}},
        {QStringLiteral("Rf"), {QStringLiteral("Modelo"), QStringLiteral("Tipo"), QStringLiteral("Malha"), QStringLiteral("Componente"), QStringLiteral("Referencia")}},
        {QStringLiteral("i"), {QStringLiteral("Aparelho"), QStringLiteral("i")}},
        {QStringLiteral("Modelos"), {QStringLiteral("Modelo"), QStringLiteral("Ref")}},
        {QStringLiteral("Ultimo"), {QStringLiteral("Modelo")}},
        {QStringLiteral("Combos"), {QStringLiteral("Combo1"), QStringLiteral("Combo2"), QStringLiteral("Combo3"), QStringLiteral("Combo4"), QStringLiteral("Combo5"), QStringLiteral("Combo6"), QStringLiteral("Combo7"), QStringLiteral("Combo8"), QStringLiteral("Combo9"), QStringLiteral("Combo10")}},
        {QStringLiteral("Tools"), {QStringLiteral("Idioma"), QStringLiteral("syncbd")}},
    };
    return schema;
}

DatabaseProblem Database::check(const QString &path, QString *detail)
{
    if (detail)
        detail->clear();
    const QFileInfo info(path);
    if (!info.exists())
        return report(DatabaseProblem::Missing, detail, QStringLiteral("file not found"));
    if (!info.isFile())
        return report(DatabaseProblem::Missing, detail, QStringLiteral("not a file"));

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return report(DatabaseProblem::Corrupt, detail, QStringLiteral("cannot be read: ") + file.errorString());
    const QByteArray header = file.read(100);
    file.close();

    // A Jet/ACE file keeps its signature right after a four-byte version stamp.
    const QByteArray signature = header.mid(4, 15);
    if (signature == "Standard Jet DB" || signature == "Standard ACE DB")
        return report(DatabaseProblem::Corrupt, detail, QStringLiteral("Access format"));
    // SQLite treats an empty file as an empty database; anything else needs the SQLite header.
    if (!header.isEmpty() && (header.size() < 100 || !header.startsWith(QByteArray("SQLite format 3\0", 16))))
        return report(DatabaseProblem::Corrupt, detail, QStringLiteral("not an SQLite database"));

    if (!info.isWritable())
        return report(DatabaseProblem::ReadOnly, detail, QStringLiteral("the file is read-only"));
    // Every write needs a journal file beside the database.
    if (!QFileInfo(info.absolutePath()).isWritable())
        return report(DatabaseProblem::ReadOnly, detail, QStringLiteral("the folder is read-only"));

    {
        ScopedConnection reader(path, QStringLiteral("QSQLITE_OPEN_READONLY;QSQLITE_BUSY_TIMEOUT=0"));
        if (!reader.opened()) {
            const QSqlError error = reader.openError();
            return report(isLockError(error) ? DatabaseProblem::Locked : DatabaseProblem::Corrupt, detail,
                          error.text());
        }
        QSqlQuery integrity(reader.db());
        if (!integrity.exec(QStringLiteral("PRAGMA quick_check"))) {
            const QSqlError error = integrity.lastError();
            return report(isLockError(error) ? DatabaseProblem::Locked : DatabaseProblem::Corrupt, detail,
                          error.text());
        }
        if (!integrity.next() || integrity.value(0).toString() != QLatin1String("ok"))
            return report(DatabaseProblem::Corrupt, detail, integrity.value(0).toString());
        integrity.finish();

        for (const auto &[table, columns] : requiredSchema()) {
            QSqlQuery tableInfo(reader.db());
            if (!tableInfo.exec(QStringLiteral("PRAGMA table_info(\"%1\")").arg(table))) {
                const QSqlError error = tableInfo.lastError();
                return report(isLockError(error) ? DatabaseProblem::Locked : DatabaseProblem::Corrupt, detail,
                              error.text());
            }
            QStringList present;
            while (tableInfo.next())
                present << tableInfo.value(1).toString();
            if (present.isEmpty())
                return report(DatabaseProblem::NoSchema, detail, QStringLiteral("table %1 is missing").arg(table));
            for (const QString &column : columns) {
                if (!present.contains(column, Qt::CaseInsensitive))
                    return report(DatabaseProblem::NoSchema, detail,
                                  QStringLiteral("column %1.%2 is missing").arg(table, column));
            }
        }
    }

    ScopedConnection writer(path, QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
    if (!writer.opened())
        return report(DatabaseProblem::Corrupt, detail, writer.openError().text());
    QSqlQuery probe(writer.db());
    if (!probe.exec(QStringLiteral("BEGIN IMMEDIATE"))) {
        const QSqlError error = probe.lastError();
        if (isLockError(error))
            return report(DatabaseProblem::Locked, detail, QStringLiteral("another program is writing to the file"));
        return report(DatabaseProblem::ReadOnly, detail, error.text());
    }
    probe.exec(QStringLiteral("ROLLBACK"));
    return DatabaseProblem::None;
}
