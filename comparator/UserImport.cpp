#include "UserImport.h"

#include "Database.h"
#include "UserFile.h"

#include <QFileInfo>

namespace UserImport {

namespace {

const QStringList MasterColumns = {QStringLiteral("Modelo"), QStringLiteral("Malha"), QStringLiteral("G1"),
                                   QStringLiteral("G2"), QStringLiteral("G3")};
const QStringList DadosColumns = {QStringLiteral("Aparelho"), QStringLiteral("Comando"), QStringLiteral("Dados"),
                                  QStringLiteral("Info"), QStringLiteral("Info2"), QStringLiteral("Info3")};
const QStringList ComandosColumns = {QStringLiteral("Comando"), QStringLiteral("Info"), QStringLiteral("Info2"),
                                     QStringLiteral("Info3")};

QStringList combosColumns()
{
    QStringList columns;
    for (int n = 1; n <= 10; ++n)
        columns << QStringLiteral("Combo%1").arg(n);
    return columns;
}

Problem problemOf(UserFile::Problem problem)
{
    switch (problem) {
    case UserFile::Problem::None: return Problem::None;
    case UserFile::Problem::Missing: return Problem::Missing;
    case UserFile::Problem::Empty: return Problem::Empty;
    case UserFile::Problem::NotADatabase: return Problem::NotADatabase;
    case UserFile::Problem::Locked: return Problem::Locked;
    case UserFile::Problem::Unreadable: break;
    }
    return Problem::Unreadable;
}

struct Source
{
    QList<QStringList> master;
    QList<QStringList> dados;
    QList<QStringList> comandos;
    QList<QStringList> combos;
};

// Reads all four tables before anything is written, so a file of another schema is refused
// as a whole instead of half-imported.
bool readSource(UserFile &file, Source &source, Report &report)
{
    const std::pair<const QString, const QStringList> tables[] = {
        {QStringLiteral("Master"), MasterColumns},
        {QStringLiteral("Dados"), DadosColumns},
        {QStringLiteral("Comandos"), ComandosColumns},
        {QStringLiteral("Combos"), combosColumns()},
    };
    QList<QStringList> *targets[] = {&source.master, &source.dados, &source.comandos, &source.combos};
    for (size_t n = 0; n < std::size(tables); ++n) {
        auto rows = file.rows(tables[n].first, tables[n].second);
        if (!rows) {
            const bool missing = file.problem() == UserFile::Problem::None
                              && file.lastError().contains(QLatin1String("missing"));
            report.problem = missing ? Problem::OtherSchema
                           : file.problem() == UserFile::Problem::Locked ? Problem::Locked
                                                                         : Problem::Unreadable;
            report.detail = file.lastError();
            return false;
        }
        *targets[n] = std::move(*rows);
    }
    return true;
}

bool write(Database &db, const Source &source, Report &report)
{
    Report counts;
    // 1. Master: only the technician's recorded slots; a row with no counterpart writes nothing.
    for (const QStringList &row : source.master) {
        const MasterKey key{row.at(0), row.at(1)};
        if (!db.masterRow(key.modelo, key.malha)) {
            if (!db.lastError().isEmpty())
                return false;
            ++counts.masterWithoutCounterpart;
            continue;
        }
        if (!db.setRecordings(key, row.at(2), row.at(3), row.at(4)))
            return false;
        ++counts.masterCopied;
    }
    // 2. Dados: the technician's recording wins over the shipped one.
    for (const QStringList &row : source.dados) {
        const DadosRecord record{row.at(0), row.at(1), row.at(2), row.at(3), row.at(4), row.at(5)};
        const bool existed = db.dadosRecord(record.aparelho, record.comando).has_value();
        if (!db.lastError().isEmpty() || !db.saveDados(record))
            return false;
        ++(existed ? counts.dadosReplaced : counts.dadosAdded);
    }
    // 3. Comandos: only commands that are new; shipped commands keep their texts.
    for (const QStringList &row : source.comandos) {
        const ComandoRecord record{row.at(0), row.at(1), row.at(2), row.at(3)};
        if (db.comandoExists(record.comando)) {
            ++counts.comandosKept;
            continue;
        }
        if (!db.lastError().isEmpty() || !db.addComando(record))
            return false;
        ++counts.comandosAdded;
    }
    // 4. Combos: the saved choices, column by column.
    if (!source.combos.isEmpty()) {
        if (!db.setCombos(source.combos.first()))
            return false;
        counts.combosCopied = true;
    }
    counts.problem = report.problem;
    report = counts;
    return true;
}

} // namespace

QString Report::messageKey() const
{
    switch (problem) {
    case Problem::None: return {};
    case Problem::Missing: return QStringLiteral("IMPORT_AUSENTE");
    case Problem::Empty: return QStringLiteral("IMPORT_VAZIO");
    case Problem::NotADatabase: return QStringLiteral("IMPORT_NAO_BD");
    case Problem::Unreadable: return QStringLiteral("IMPORT_ILEGIVEL");
    case Problem::Locked: return QStringLiteral("IMPORT_BLOQUEADO");
    case Problem::OtherSchema: return QStringLiteral("IMPORT_ESQUEMA");
    case Problem::SameFile: return QStringLiteral("IMPORT_MESMO_ARQUIVO");
    case Problem::ConfigFailed: break;
    }
    return QStringLiteral("DB_ERRO_GRAVACAO");
}

Report run(const QString &userPath, const QString &configPath)
{
    Report report;
    const QFileInfo user(userPath);
    if (user.exists() && user.canonicalFilePath() == QFileInfo(configPath).canonicalFilePath()) {
        report.problem = Problem::SameFile;
        report.detail = userPath;
        return report;
    }
    Source source;
    {
        UserFile file(userPath);
        if (file.problem() != UserFile::Problem::None) {
            report.problem = problemOf(file.problem());
            report.detail = file.lastError();
            return report;
        }
        if (!readSource(file, source, report))
            return report;
    }

    Database db(configPath);
    if (!db.isOpen() || !db.transaction([&] { return write(db, source, report); })) {
        const QString reason = db.lastError();
        report = Report{};
        report.problem = Problem::ConfigFailed;
        report.detail = reason;
    }
    return report;
}

} // namespace UserImport
