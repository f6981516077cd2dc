// vekto-cli update-check: asks the version page as the start-up does and prints what the
// answer means, without opening anything.
#include "CliCommands.h"
#include "CliOutput.h"

#include "Database.h"
#include "Http.h"
#include "Startup.h"
#include "UpdateCheck.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace Cli {

int updateCheck(const QStringList &args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Asks the version page whether a newer release exists."));
    parser.addOption({QStringLiteral("url"), QStringLiteral("The version page (default: Tools.UrlVersao of the database)."),
                      QStringLiteral("URL")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database (default: Config.vkt beside the program)."),
                      QStringLiteral("FILE")});
    if (!parse(parser, QStringLiteral("update-check"), args))
        return 2;
    if (!parser.positionalArguments().isEmpty()) {
        err(QStringLiteral("usage: vekto-cli update-check [--url URL] [--db FILE]"));
        return 2;
    }
    QString endpoint = parser.value(QStringLiteral("url"));
    if (!parser.isSet(QStringLiteral("url"))) {
        const QString db = databasePath(parser);
        if (!QFileInfo(db).isFile()) {
            err(QStringLiteral("database %1 not found").arg(db));
            return 2;
        }
        endpoint = Database(db, Database::Access::ReadOnly).toolsText(QStringLiteral("UrlVersao")).value_or(QString());
    }
    if (endpoint.trimmed().isEmpty()) {
        err(QStringLiteral("no version page is set: nothing was checked"));
        return 1;
    }
    if (!UpdateCheck::requestUrl(endpoint, QString()).isValid()) {
        err(QStringLiteral("not an http or https address: %1").arg(endpoint));
        return 2;
    }
    QtHttp http;
    const UpdateCheck::Outcome outcome = UpdateCheck::check(http, endpoint, QString::fromLatin1(Startup::Versao));
    out(QStringLiteral("result\t") + UpdateCheck::kindText(outcome.kind));
    if (outcome.kind == UpdateCheck::Kind::NoAnswer) {
        out(QStringLiteral("detail\t") + outcome.detail);
        return 1;
    }
    if (outcome.kind != UpdateCheck::Kind::Current) {
        out(QStringLiteral("message\t") + outcome.message);
        out(QStringLiteral("mode\t") + outcome.mode);
    }
    return 0;
}

} // namespace Cli
