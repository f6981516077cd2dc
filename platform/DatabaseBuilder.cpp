#include "DatabaseBuilder.h"

#include <QAtomicInteger>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

void setError(QString *error, const QString &text)
{
    if (error)
        *error = text;
}

bool readText(const QString &path, QString *text, QString *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        setError(error, QStringLiteral("%1: %2").arg(path, file.errorString()));
        return false;
    }
    *text = QString::fromUtf8(file.readAll());
    return true;
}

// Runs every statement of the given files on `db`; the first failure names file and statement.
bool runScripts(QSqlDatabase &db, const QStringList &files, QString *error)
{
    for (const QString &path : files) {
        QString script;
        if (!readText(path, &script, error))
            return false;
        const QStringList statements = DatabaseBuilder::splitStatements(script);
        for (qsizetype n = 0; n < statements.size(); ++n) {
            QSqlQuery query(db);
            if (!query.exec(statements.at(n))) {
                setError(error, QStringLiteral("%1, statement %2: %3\n%4")
                                    .arg(QFileInfo(path).fileName())
                                    .arg(n + 1)
                                    .arg(query.lastError().text(), statements.at(n).left(200)));
                return false;
            }
        }
    }
    return true;
}

} // namespace

QStringList DatabaseBuilder::seedFiles(const QString &directory)
{
    const QDir dir(directory);
    QStringList names = dir.entryList({QStringLiteral("*.sql")}, QDir::Files);
    std::sort(names.begin(), names.end()); // character order, the same on every machine
    QStringList paths;
    for (const QString &name : names)
        paths << dir.filePath(name);
    return paths;
}

QStringList DatabaseBuilder::splitStatements(const QString &script)
{
    QStringList statements;
    QString current;
    const qsizetype length = script.size();
    for (qsizetype pos = 0; pos < length; ++pos) {
        const QChar c = script.at(pos);
        const QChar next = pos + 1 < length ? script.at(pos + 1) : QChar();
        if (c == u'\'' || c == u'"' || c == u'`') {
            // A quoted text or name runs to its closing quote; a doubled quote reopens it,
            // which this loop handles as two adjacent quoted parts.
            const qsizetype end = script.indexOf(c, pos + 1);
            const qsizetype stop = end < 0 ? length - 1 : end;
            current += script.mid(pos, stop - pos + 1);
            pos = stop;
        } else if (c == u'-' && next == u'-') {
            const qsizetype end = script.indexOf(u'\n', pos);
            pos = end < 0 ? length : end;
            current += u'\n';
        } else if (c == u'/' && next == u'*') {
            const qsizetype end = script.indexOf(QLatin1String("*/"), pos + 2);
            pos = end < 0 ? length : end + 1;
            current += u' ';
        } else if (c == u';') {
            if (!current.trimmed().isEmpty())
                statements << current.trimmed();
            current.clear();
        } else {
            current += c;
        }
    }
    if (!current.trimmed().isEmpty())
        statements << current.trimmed();
    return statements;
}

bool DatabaseBuilder::build(const QString &schemaFile, const QStringList &seedFiles, const QString &target,
                            QString *error)
{
    const QFileInfo targetInfo(target);
    if (!QDir().mkpath(targetInfo.absolutePath())) {
        setError(error, QStringLiteral("cannot create folder %1").arg(targetInfo.absolutePath()));
        return false;
    }
    const QString partial = targetInfo.absoluteFilePath() + QStringLiteral(".part");
    QFile::remove(partial);

    static QAtomicInteger<quint64> counter;
    const QString connectionName = QStringLiteral("vekto-build-%1").arg(counter.fetchAndAddRelaxed(1));
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName);
        db.setDatabaseName(partial);
        if (!db.open()) {
            setError(error, QStringLiteral("%1: %2").arg(partial, db.lastError().text()));
        } else if (!db.transaction()) {
            setError(error, db.lastError().text());
        } else {
            ok = runScripts(db, QStringList{schemaFile} + seedFiles, error);
            if (ok && !db.commit()) {
                setError(error, db.lastError().text());
                ok = false;
            }
            if (!ok)
                db.rollback();
        }
        db.close();
    }
    QSqlDatabase::removeDatabase(connectionName);

    if (!ok) {
        QFile::remove(partial);
        return false;
    }
    // rename() replaces the old file in one step: readers see the old or the new file, never a mix.
    std::error_code code;
    std::filesystem::rename(std::filesystem::path(partial.toStdU16String()),
                            std::filesystem::path(targetInfo.absoluteFilePath().toStdU16String()), code);
    if (code) {
        QFile::remove(partial);
        setError(error, QStringLiteral("cannot replace %1: %2").arg(target, QString::fromStdString(code.message())));
        return false;
    }
    return true;
}
