// vekto-mkdb: builds Config.vkt from the schema and the seed rows at build time.
// Usage: vekto-mkdb SCHEMA.sql SEED-FOLDER OUTPUT
#include "DatabaseBuilder.h"

#include <QCoreApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    QTextStream err(stderr);
    if (args.size() != 4) {
        err << "usage: vekto-mkdb SCHEMA.sql SEED-FOLDER OUTPUT\n";
        return 2;
    }
    QString error;
    if (!DatabaseBuilder::build(args.at(1), DatabaseBuilder::seedFiles(args.at(2)), args.at(3), &error)) {
        err << "vekto-mkdb: " << error << '\n';
        return 1;
    }
    return 0;
}
