#include "ModelLookup.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QUuid>

namespace Cli {

std::optional<QString> modelRef(const QString &databasePath, const QString &modelNumber)
{
    // Opening a missing file would create an empty database; a lookup must never write.
    if (!QFileInfo(databasePath).isFile())
        return std::nullopt;
    const QString connection = QStringLiteral("vekto-cli-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
    std::optional<QString> ref;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection);
        db.setDatabaseName(databasePath);
        db.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
        if (db.open()) {
            QSqlQuery query(db);
            query.prepare(QStringLiteral("SELECT Ref FROM Modelos WHERE Modelo = ?"));
            query.addBindValue(QStringLiteral("AST") + modelNumber + QStringLiteral("098"));
            if (query.exec() && query.next())
                ref = query.value(0).toString();
            db.close();
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return ref;
}

} // namespace Cli
