// vekto-cli import: carries a previous installation's data into Config.vkt, as the about
// screen's "Sincronizar Dados Salvos" does, and prints what came over per table.
#include "CliCommands.h"
#include "CliOutput.h"

#include "Database.h"
#include "Texts.h"
#include "UserImport.h"

#include <QCommandLineParser>
#include <QFileInfo>

namespace Cli {

int importData(const QStringList &args)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Imports the technician's data of a previous installation."));
    parser.addOption({QStringLiteral("from"), QStringLiteral("The previous installation's database (SQLite or Access)."),
                      QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("db"), QStringLiteral("The database to import into (default: Config.vkt beside the program)."),
                      QStringLiteral("FILE")});
    if (!parse(parser, QStringLiteral("import"), args))
        return 2;
    const QString from = parser.value(QStringLiteral("from"));
    if (from.isEmpty() || !parser.positionalArguments().isEmpty()) {
        err(QStringLiteral("usage: vekto-cli import --from User.vkt [--db Config.vkt]"));
        return 2;
    }
    const QString db = databasePath(parser);
    if (!QFileInfo(db).isFile()) {
        err(QStringLiteral("database %1 not found").arg(db));
        return 2;
    }
    // Messages in the language the database is set to, as the program would show them.
    const quint8 idioma = Database(db, Database::Access::ReadOnly).idioma().value_or(1);

    const UserImport::Report report = UserImport::run(from, db);
    if (!report.ok()) {
        err(Texts::Traduz(report.messageKey(), idioma));
        if (!report.detail.isEmpty())
            err(report.detail);
        // A file that cannot be read is bad input; a Config.vkt that refused the data is a failure.
        return report.problem == UserImport::Problem::ConfigFailed ? 1 : 2;
    }
    out(QStringLiteral("Master\t%1 rows: recorded readings copied\t%2 rows without counterpart")
            .arg(report.masterCopied).arg(report.masterWithoutCounterpart));
    out(QStringLiteral("Dados\t%1 added\t%2 replaced").arg(report.dadosAdded).arg(report.dadosReplaced));
    out(QStringLiteral("Comandos\t%1 added\t%2 already present").arg(report.comandosAdded).arg(report.comandosKept));
    out(QStringLiteral("Combos\t%1").arg(report.combosCopied ? QStringLiteral("copied") : QStringLiteral("no row to copy")));
    out(Texts::Mensagem(QStringLiteral("MSG_DADOS_SYNC"), idioma).value_or(Texts::Message{}).text);
    return 0;
}

} // namespace Cli
