#pragma once
// What the tests on real database files share: a file's fingerprint (to prove it was left
// alone), a connection of its own on a file (as another program would hold one), and the
// shared Access file that lives beside the project.

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QStringList>
#include <QVariantList>

namespace sqlfixture {

inline QByteArray digest(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256) : QByteArray();
}

// A second, independent connection; it never waits for a lock another connection holds.
class Raw
{
public:
    explicit Raw(const QString &path)
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(path);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
        db.open();
    }
    ~Raw()
    {
        QSqlDatabase::database(name, false).close();
        QSqlDatabase::removeDatabase(name);
    }
    // One statement; each `values` entry is bound to the next "?".
    bool exec(const QString &sql, const QVariantList &values = {})
    {
        QSqlQuery q(QSqlDatabase::database(name, false));
        bool ok = q.prepare(sql);
        for (const QVariant &v : values)
            q.addBindValue(v);
        ok = ok && q.exec();
        if (!ok)
            qWarning("%s: %s", qPrintable(sql), qPrintable(q.lastError().text()));
        return ok;
    }
    // Every row the query gives, its values joined by "|".
    QStringList rows(const QString &sql)
    {
        QSqlQuery q(QSqlDatabase::database(name, false));
        QStringList rows;
        if (q.exec(sql)) {
            while (q.next()) {
                QStringList values;
                for (int c = 0; c < q.record().count(); ++c)
                    values << q.value(c).toString();
                rows << values.join(u'|');
            }
        }
        return rows;
    }
    const QString name = QStringLiteral("tst-raw-%1").arg(quintptr(this));
};

inline bool run(const QString &path, const QString &sql, const QVariantList &values = {})
{
    return Raw(path).exec(sql, values);
}

// Rows given as the statement followed by its values, all on one connection.
inline bool runAll(const QString &path, const QList<QVariantList> &statements)
{
    Raw raw(path);
    bool ok = true;
    for (const QVariantList &s : statements)
        ok = ok && raw.exec(s.first().toString(), s.mid(1));
    return ok;
}

inline QString accessFile()
{
    QString dir = qEnvironmentVariable("VEKTO_SHARED_DIR");
    if (dir.isEmpty())
        dir = QStringLiteral(VEKTO_SHARED_DIR);
    return QDir(dir).filePath(QStringLiteral("fixtures/DateTestDatabase.mdb"));
}

} // namespace sqlfixture
