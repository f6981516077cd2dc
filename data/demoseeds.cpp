// vekto-demoseeds: rewrites the demo masks and recordings of data/seed from the simulated phone,
// after its answers changed. Usage: vekto-demoseeds CONFIG.vkt SEED-FOLDER
// The commands recorded are those of the given database's Comandos table.
#include "Database.h"
#include "DemoSeeds.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    QTextStream err(stderr);
    if (args.size() != 3) {
        err << "usage: vekto-demoseeds CONFIG.vkt SEED-FOLDER\n";
        return 2;
    }
    Database db(args.at(1), Database::Access::ReadOnly);
    QStringList commands;
    for (const ComandoRecord &c : db.comandos())
        commands << c.comando;
    if (commands.isEmpty()) {
        err << "vekto-demoseeds: no commands in " << args.at(1) << ' ' << db.lastError() << '\n';
        return 2;
    }
    const QStringList masks = demo::masks();
    for (const auto &[name, text] : {std::pair{QStringLiteral("40_m_demo.sql"), demo::maskSeed(masks)},
                                     std::pair{QStringLiteral("50_dados_demo.sql"),
                                               demo::dadosSeed(demo::recordings(commands, masks))},
                                     std::pair{QStringLiteral("55_dados_testes_demo.sql"),
                                               demo::dadosSeed(demo::keyWordRecordings(masks),
                                                               "each test kept under a key word")}}) {
        QFile file(args.at(2) + u'/' + name);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate) || file.write(text.toUtf8()) < 0) {
            err << "vekto-demoseeds: cannot write " << file.fileName() << '\n';
            return 1;
        }
    }
    return 0;
}
