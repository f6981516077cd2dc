// The database layer on real SQLite files built from the shipped schema and seeds: every query
// round trip, quotes as plain characters, the text orders the screens rely on, writes that are
// all-or-nothing, and a start-up check that tells each kind of bad file apart without touching it.
// Then Access files read through libmdb (a previous installation's file told apart by its first
// bytes is the import's table of bad sources). The Access fixture lives beside the project (never copied into it); those tests
// skip when it is absent. Damaged copies are made in a temporary folder.
#include "AccessReader.h"
#include "Database.h"
#include "DatabaseBuilder.h"
#include "SqlFixture.h"

#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

using sqlfixture::digest;
using sqlfixture::Raw;

namespace {

const QString sourceData = QStringLiteral(VEKTO_SOURCE_DIR "/data");

// Reference rows for the rail, RF, I2C and recorded-answer queries.
const char *const testRows = R"SQL(
DELETE FROM Master;
INSERT INTO Master (Modelo, Malha, Ci, TIPO, Orig, Reft, refv, Leitura, Porc, G1, G2, G3) VALUES
 ('IP 7', 'PP_CPU',     'PMU',      0, '3',  'vdd_cpu',  '0.850', '0.851 V', '0,1 %',  '', '', ''),
 ('IP 7', 'PP_GPU',     'PMU',      0, '1',  'vdd_gpu',  '0.800', '0.900 V', '12,5 %', '', '', ''),
 ('IP 7', 'PP_NAND',    'NAND',     0, '10', 'vdd_nand', '1.800', '1.620 V', '9,0 %',  '', '', ''),
 ('IP 7', 'PP_SOC',     'PMU/nand', 0, '2',  '',         '0.900', '',        '',       '', '', ''),
 ('IP 7', 'PP_O''BRIEN','AUDIO',    0, '4',  'it''s',    '1.000', '1.010 V', '1,0 %',  '', '', ''),
 ('IP 7', 'BUCK3',      'PMU',      2, '1',  'buck3',    '1.100', '',        '0 %',    '', '', ''),
 ('IP 7', 'PP_LDO',     'LDO_1',    1, '1',  'ldo1',     '1.800', '',        '',       '', '', ''),
 ('IP 7', 'PP_LDO2',    'LDO21',    1, '2',  'ldo2',     '3.000', '',        '',       '', '', ''),
 ('IP 7 Plus', 'PP_CPU','PMU',      0, '1',  'vdd_cpu',  '0.850', '',        '',       'a', 'b', 'c');
INSERT INTO Rf (Modelo, Tipo, Malha, Componente, Referencia) VALUES
 ('IP 7', 'I', 'PP_B', 'U1', '1.8'), ('IP 7', 'I', 'PP_A', 'U2', '0.9'),
 ('IP 7', 'Q', 'PP_C', 'U3', '1.2'), ('IP 6', 'T', 'PP_Z', 'U4', '3.0');
INSERT INTO i (Aparelho, i) VALUES
 ('IP 7', '0x10-Audio codec'), ('IP 7', '1x72-Charger'), ('IP 7', '2x1A-Front camera'),
 ('IP 7', '0x5_-Under_score'), ('IP 8', '0x10-Other');
INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES
 ('IP 7', 'Help', 'help answer', 'pt', 'en', 'es');
)SQL";

QStringList malhas(const QList<MasterRow> &rows)
{
    QStringList names;
    for (const MasterRow &row : rows)
        names << row.malha;
    return names;
}

QByteArray accessBytes()
{
    QFile file(sqlfixture::accessFile());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class TestDatabase : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_path;

    QString build(const QString &name, const QString &schema = sourceData + QStringLiteral("/schema.sql"))
    {
        QStringList seeds = DatabaseBuilder::seedFiles(sourceData + QStringLiteral("/seed"));
        // The illustrative demo recordings and masks would stand in the way of the rows below.
        seeds.removeIf([](const QString &f) { return f.endsWith(QLatin1String("_demo.sql")); });
        const QString extra = m_dir.filePath(name + QStringLiteral(".rows.sql"));
        writeFile(extra, testRows);
        const QString target = m_dir.filePath(name);
        QString error;
        if (!DatabaseBuilder::build(schema, seeds << extra, target, &error))
            qWarning("build failed: %s", qPrintable(error));
        return target;
    }

private slots:
    void init()
    {
        QVERIFY(m_dir.isValid());
        static int n = 0;
        m_path = build(QStringLiteral("Config%1.vkt").arg(++n));
        QVERIFY(QFile::exists(m_path));
    }

    // --- building ------------------------------------------------------------------------

    void splitStatements_data()
    {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("plain") << "A; B;" << QStringList{"A", "B"};
        QTest::newRow("last without semicolon") << "A;\n B " << QStringList{"A", "B"};
        QTest::newRow("semicolon in text") << "INSERT 'a;b'; C" << QStringList{"INSERT 'a;b'", "C"};
        QTest::newRow("doubled quote") << "X 'it''s; ok'; Y" << QStringList{"X 'it''s; ok'", "Y"};
        QTest::newRow("line comment") << "-- a; b\nA; -- c;\n" << QStringList{"A"};
        QTest::newRow("block comment") << "A /* ; */ B;" << QStringList{"A   B"};
        QTest::newRow("comment marks in text") << "X '--;/*'; Y" << QStringList{"X '--;/*'", "Y"};
        QTest::newRow("only comments and blanks") << " ;\n-- x\n ; " << QStringList{};
    }
    void splitStatements()
    {
        QFETCH(QString, script);
        QTEST(DatabaseBuilder::splitStatements(script), "expected");
    }

    void seedFilesInNameOrder()
    {
        QTemporaryDir dir;
        for (const char *name : {"b.sql", "a.sql", "C.sql", "a.txt"})
            writeFile(dir.filePath(QString::fromLatin1(name)), {});
        QStringList names;
        for (const QString &path : DatabaseBuilder::seedFiles(dir.path()))
            names << QFileInfo(path).fileName();
        QCOMPARE(names, (QStringList{"C.sql", "a.sql", "b.sql"}));
    }

    void failedBuildLeavesTargetUntouched()
    {
        const QByteArray before = digest(m_path);
        const QString bad = m_dir.filePath(QStringLiteral("zz-bad.sql"));
        writeFile(bad, "INSERT INTO Tools (Idioma) VALUES ('2');\nINSERT INTO Nowhere VALUES (1);\n");
        QString error;
        QVERIFY(!DatabaseBuilder::build(sourceData + QStringLiteral("/schema.sql"), {bad}, m_path, &error));
        QVERIFY2(error.contains(QStringLiteral("zz-bad.sql")) && error.contains(QStringLiteral("statement 2")),
                 qPrintable(error));
        QCOMPARE(digest(m_path), before);
        QVERIFY(!QFile::exists(m_path + QStringLiteral(".part")));
    }

    // --- Comandos, Dados, M, Modelos -------------------------------------------------------

    // The import: the same pair twice ends as one row with the last text.
    void importKeepsOneRowPerPair()
    {
        Database db(m_path);
        DadosRecord imported{QStringLiteral("IP 'X"), QStringLiteral("say 'hi'"), QStringLiteral("first"), {}, {}, {}};
        QVERIFY(db.saveDados(imported));
        imported.dados = QStringLiteral("line 1\r\nit's [00000000:00000000] :-) ");
        QVERIFY(db.saveDados(imported));
        QCOMPARE(*db.dadosRecord(imported.aparelho, imported.comando), imported);
        QCOMPARE(db.allDados().size(), 2);
    }

    void maskTextsLongestFirst()
    {
        Database db(m_path);
        QVERIFY(db.maskTexts().isEmpty());
        for (const char *text : {"ab", "abcd", "b", "abc", "x'jox'y", "AB", "ABCDE"})
            QVERIFY(db.addMaskText(QString::fromLatin1(text)));
        // Letter case does not count, so "ABCDE" masks before its own beginning "abcd".
        QCOMPARE(db.maskTexts(), (QStringList{"x'jox'y", "b", "ABCDE", "abcd", "abc", "ab", "AB"}));
    }

    // Keys typed in another letter case find the same rows, as in the Access file; a model
    // number is looked up exactly as the device sends it.
    void keyLookups_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<QString>("first");
        QTest::addColumn<QString>("second");
        QTest::addColumn<bool>("found");
        QTest::newRow("recorded answer, command in capitals") << "dados" << "IP 7" << "HELP" << true;
        QTest::newRow("recorded answer, model in small letters") << "dados" << "ip 7" << "help" << true;
        QTest::newRow("recorded answer, other command") << "dados" << "IP 7" << "HELPS" << false;
        QTest::newRow("command notes") << "comando" << "nand --GETINFO" << "" << true;
        QTest::newRow("command exists") << "exists" << "NAND --getinfo" << "" << true;
        QTest::newRow("rail rows of the model") << "master" << "ip 7" << "pp_cpu" << true;
        QTest::newRow("rail of another model") << "master" << "ip 7 plus" << "PP_GPU" << false;
        QTest::newRow("model number") << "modelos" << "A1660" << "" << true;
        QTest::newRow("model number in small letters") << "modelos" << "a1660" << "" << true;
        QTest::newRow("unknown model number") << "modelos" << "A9999" << "" << false;
        QTest::newRow("model number framed already") << "modelos" << "ASTA1660098" << "" << false;
        QTest::newRow("model number with a quote") << "modelos" << "A1660'" << "" << false;
        QTest::newRow("empty model number") << "modelos" << "" << "" << false;
    }
    void keyLookups()
    {
        QFETCH(QString, kind);
        QFETCH(QString, first);
        QFETCH(QString, second);
        Database db(m_path);
        bool got = false;
        if (kind == QLatin1String("dados"))
            got = db.dadosRecord(first, second).has_value();
        else if (kind == QLatin1String("comando"))
            got = db.comando(first).has_value() && db.comandoQuery(first).next();
        else if (kind == QLatin1String("exists"))
            got = db.comandoExists(first);
        else if (kind == QLatin1String("modelos"))
            got = db.modeloRef(first) == QStringLiteral("IP 7");
        else if (kind == QLatin1String("master"))
            got = db.masterRow(first, second).has_value();
        QTEST(got, "found");
        QVERIFY2(db.lastError().isEmpty(), qPrintable(db.lastError()));
    }

    // A file made before the keys ignored letter case: upgraded whole, once, rows and indexes kept.
    void oldFileUpgradedToCaseInsensitiveKeys()
    {
        QFile schemaFile(sourceData + QStringLiteral("/schema.sql"));
        QVERIFY(schemaFile.open(QIODevice::ReadOnly));
        const QString oldSchema = m_dir.filePath(QStringLiteral("old-schema.sql"));
        writeFile(oldSchema, schemaFile.readAll().replace(" COLLATE NOCASE", ""));
        const QString old = build(QStringLiteral("old.vkt"), oldSchema);
        const QString indexSql = QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' ORDER BY 1");
        const QStringList indexes = Raw(old).rows(indexSql);
        QVERIFY(!indexes.isEmpty());
        QList<DadosRecord> before;
        {
            Database db(old);
            QVERIFY(db.addMaskText(QStringLiteral("abc")) && db.addMaskText(QStringLiteral("ABCD")));
            QVERIFY(!db.comandoExists(QStringLiteral("NAND --GETINFO")));
            before = db.allDados();
        }
        QString error;
        QVERIFY2(Database::upgradeCollation(old, &error), qPrintable(error));
        {
            Database db(old);
            QVERIFY(db.comandoExists(QStringLiteral("NAND --GETINFO")));
            const QStringList masks = db.maskTexts();
            QVERIFY(masks.indexOf(QStringLiteral("ABCD")) < masks.indexOf(QStringLiteral("abc")));
            QCOMPARE(db.allDados(), before);
            QVERIFY(db.masterRow(QStringLiteral("IP 7"), QStringLiteral("pp_cpu")));
        }
        QCOMPARE(Database::check(old), DatabaseProblem::None);
        QCOMPARE(Raw(old).rows(indexSql), indexes);
        // A file that is up to date is not written again.
        const QByteArray hash = digest(old);
        QVERIFY(Database::upgradeCollation(old, &error));
        QCOMPARE(digest(old), hash);
    }

    // --- Master ------------------------------------------------------------------------------

    void masterFiltersAndOrders_data()
    {
        using O = MasterFilter::Order;
        QTest::addColumn<QString>("modelo");
        QTest::addColumn<int>("tipo"); // -1: no filter
        QTest::addColumn<QString>("ci"); // null: no filter
        QTest::addColumn<bool>("reftOnly");
        QTest::addColumn<int>("order");
        QTest::addColumn<QStringList>("expected");
        const struct { const char *tag, *modelo; int tipo; const char *ci; bool reftOnly; O order; QStringList expected; } rows[] = {
            {"Modelo, Malha", "IP 7", 0, nullptr, false, O::ModeloMalha, {"PP_CPU", "PP_GPU", "PP_NAND", "PP_O'BRIEN", "PP_SOC"}},
            {"Malha", "IP 7", 0, nullptr, false, O::Malha, {"PP_CPU", "PP_GPU", "PP_NAND", "PP_O'BRIEN", "PP_SOC"}},
            {"Orig as text", "IP 7", 0, nullptr, false, O::Orig, {"PP_GPU", "PP_NAND", "PP_SOC", "PP_CPU", "PP_O'BRIEN"}},
            {"Modelo, Orig with Reft", "IP 7", 0, nullptr, true, O::ModeloOrig, {"PP_GPU", "PP_NAND", "PP_CPU", "PP_O'BRIEN"}},
            {"CI, Malha", "IP 7", 0, nullptr, false, O::CiMalha, {"PP_O'BRIEN", "PP_NAND", "PP_CPU", "PP_GPU", "PP_SOC"}},
            {"CI, Orig", "IP 7", 0, nullptr, false, O::CiOrig, {"PP_O'BRIEN", "PP_NAND", "PP_GPU", "PP_CPU", "PP_SOC"}},
            // Text order: "9,0 %" > "12,5 %" > "1,0 %" > "0,1 %" > "".
            {"Porc desc as text", "IP 7", 0, nullptr, false, O::PorcDesc, {"PP_NAND", "PP_GPU", "PP_O'BRIEN", "PP_CPU", "PP_SOC"}},
            {"chip filter", "IP 7", 0, "PMU", false, O::ModeloMalha, {"PP_CPU", "PP_GPU", "PP_SOC"}},
            {"percent is literal", "IP 7", 0, "%", false, O::Malha, {}},
            {"underscore is literal", "IP 7", 1, "_", false, O::Malha, {"PP_LDO"}},
            {"rail class 2", "IP 7", 2, nullptr, false, O::ModeloMalha, {"BUCK3"}},
            {"model is exact", "IP 7 Plus", 0, nullptr, false, O::ModeloMalha, {"PP_CPU"}},
            {"quoted model", "IP 7' OR '1'='1", -1, nullptr, false, O::Malha, {}},
        };
        for (const auto &r : rows)
            QTest::newRow(r.tag) << QString::fromUtf8(r.modelo) << r.tipo << QString::fromUtf8(r.ci) << r.reftOnly
                                 << int(r.order) << r.expected;
    }
    void masterFiltersAndOrders()
    {
        QFETCH(QString, modelo);
        QFETCH(int, tipo);
        QFETCH(QString, ci);
        QFETCH(bool, reftOnly);
        QFETCH(int, order);
        MasterFilter filter;
        filter.modelo = modelo;
        if (tipo >= 0)
            filter.tipo = tipo;
        if (!ci.isNull())
            filter.ciContains = ci;
        filter.withReftOnly = reftOnly;
        filter.order = MasterFilter::Order(order);
        Database db(m_path);
        QTEST(malhas(db.masterRows(filter)), "expected");
        QVERIFY2(db.lastError().isEmpty(), qPrintable(db.lastError()));
    }

    void nandView()
    {
        Database db(m_path);
        // Ci like '%NAND%' ignores letter case, as the Access query did.
        QCOMPARE(malhas(db.nandRows(QStringLiteral("IP 7"))), (QStringList{"PP_NAND", "PP_SOC"}));
        QSqlQuery view = db.masterQuery(Database::nandFilter(QStringLiteral("IP 7")));
        QVERIFY(view.next());
        QCOMPARE(view.value(QStringLiteral("Malha")).toString(), QStringLiteral("PP_NAND"));
    }

    void readingsWrittenAndCleared()
    {
        Database db(m_path);
        QVERIFY(db.writeReadings({{"IP 7", "PP_CPU", "0.853 V", "0,3 %"}, {"IP 7", "PP_O'BRIEN", "Sem Medição*", "0 %"}}));
        QCOMPARE(db.masterRow("IP 7", "PP_CPU")->leitura, QStringLiteral("0.853 V"));
        QCOMPARE(db.masterRow("IP 7", "PP_O'BRIEN")->porc, QStringLiteral("0 %"));
        QCOMPARE(db.masterRow("IP 7 Plus", "PP_CPU")->leitura, QString()); // other model untouched
        QVERIFY(db.clearReadings());
        const QList<MasterRow> rows = db.masterRows({});
        QCOMPARE(rows.size(), 9);
        for (const MasterRow &row : rows)
            QVERIFY(row.leitura.isEmpty() && row.porc.isEmpty());
    }

    void oneReadingIsOneTransaction()
    {
        QVERIFY(sqlfixture::run(m_path, QStringLiteral("CREATE TRIGGER refuse BEFORE UPDATE ON Master WHEN NEW.Malha = "
                                                       "'PP_GPU' BEGIN SELECT RAISE(ABORT, 'refused by test'); END")));
        Database db(m_path);
        const QList<MasterRow> before = db.masterRows({});
        QVERIFY(!db.writeReadings({{"IP 7", "PP_CPU", "1 V", "x"}, {"IP 7", "PP_GPU", "2 V", "y"}}));
        QVERIFY2(db.lastError().contains(QStringLiteral("refused by test")), qPrintable(db.lastError()));
        QCOMPARE(db.masterRows({}), before);
        // The connection is usable again after the rollback.
        QVERIFY(db.writeReadings({{"IP 7", "PP_CPU", "1 V", "x"}}));
        QVERIFY(db.lastError().isEmpty());
    }

    void recordedSlots()
    {
        Database db(m_path);
        const QList<MasterKey> rows{{"IP 7", "PP_CPU"}, {"IP 7", "PP_O'BRIEN"}};
        QVERIFY(db.recordReadings(2, rows));
        QCOMPARE(db.masterRow("IP 7", "PP_CPU")->g2, QStringLiteral("0.851 V"));
        QCOMPARE(db.masterRow("IP 7", "PP_O'BRIEN")->g2, QStringLiteral("1.010 V"));
        QCOMPARE(db.masterRow("IP 7", "PP_GPU")->g2, QString());

        MasterFilter grid;
        grid.modelo = QStringLiteral("IP 7");
        grid.tipo = 0;
        QVERIFY(db.recordReadings(3, grid));
        QCOMPARE(db.masterRow("IP 7", "PP_GPU")->g3, QStringLiteral("0.900 V"));
        QCOMPARE(db.masterRow("IP 7", "BUCK3")->g3, QString()); // another rail class
        QCOMPARE(db.masterRow("IP 7 Plus", "PP_CPU")->g3, QStringLiteral("c"));

        QVERIFY(db.clearRecordings(2, {{"IP 7", "PP_CPU"}}));
        QCOMPARE(db.masterRow("IP 7", "PP_CPU")->g2, QString());
        QCOMPARE(db.masterRow("IP 7", "PP_O'BRIEN")->g2, QStringLiteral("1.010 V"));
        QVERIFY(db.clearRecordings(3, grid));
        QCOMPARE(db.masterRow("IP 7", "PP_GPU")->g3, QString());
        for (int slot : {0, 4})
            QVERIFY(!db.recordReadings(slot, rows) && !db.lastError().isEmpty());

        QVERIFY(db.setRecordings({"IP 7", "PP_GPU"}, "1", "2", "3"));
        const MasterRow gpu = *db.masterRow("IP 7", "PP_GPU");
        QCOMPARE((QStringList{gpu.g1, gpu.g2, gpu.g3}), (QStringList{"1", "2", "3"}));
        const QList<MasterRow> before = db.masterRows({});
        QVERIFY(db.setRecordings({"IP 9", "PP_GPU"}, "1", "2", "3")); // no such row: nothing written
        QCOMPARE(db.masterRows({}), before);
    }

    // --- Rf, i, settings ------------------------------------------------------------------

    void rfAndI2cLookups()
    {
        Database db(m_path);
        const QList<RfRow> rf = db.rf(QStringLiteral("IP 7"), QStringLiteral("I"));
        QCOMPARE(rf.size(), 2);
        QCOMPARE(rf.at(0), (RfRow{"IP 7", "I", "PP_A", "U2", "0.9"}));
        QCOMPARE(rf.at(1).malha, QStringLiteral("PP_B"));
        QVERIFY(db.rf(QStringLiteral("IP 7"), QStringLiteral("T")).isEmpty());

        QCOMPARE(db.i2cTextsStartingWith("IP 7", "0"), (QStringList{"0x10-Audio codec", "0x5_-Under_score"}));
        QCOMPARE(db.i2cTexts("IP 7", "x1"), (QStringList{"0x10-Audio codec", "2x1A-Front camera"}));
        QCOMPARE(db.i2cTexts("IP 7", "_"), QStringList{"0x5_-Under_score"});
        QCOMPARE(db.i2cTexts("IP 8", "x10"), QStringList{"0x10-Other"});
        QVERIFY(db.i2cTexts("IP 7", "'").isEmpty());
    }

    void singleRowSettings()
    {
        Database db(m_path);
        QCOMPARE(db.combo(1), std::optional<QString>(QStringLiteral("3")));
        QVERIFY(db.setCombo(10, QStringLiteral("ten")));
        QCOMPARE(db.combo(10), std::optional<QString>(QStringLiteral("ten")));
        QVERIFY(!db.combo(11) && !db.setCombo(0, QStringLiteral("x")));
        const QStringList ten{"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
        QVERIFY(db.setCombos(ten));
        QCOMPARE(*db.combos(), ten);
        QVERIFY(!db.setCombos({"a"}));
        QVERIFY(db.setSyncbd(QStringLiteral("2")));
        QCOMPARE(db.syncbd(), std::optional<QString>(QStringLiteral("2")));
    }

    void settingsRowRecreatedOrFirstEdited()
    {
        {
            Raw raw(m_path);
            QVERIFY(raw.exec(QStringLiteral("DELETE FROM Ultimo")) && raw.exec(QStringLiteral("DELETE FROM Tools")));
        }
        Database db(m_path);
        QVERIFY(!db.ultimoModelo() && !db.idioma());
        QVERIFY(db.setUltimoModelo(QStringLiteral("IP X")) && db.setIdioma(2));
        QCOMPARE(db.ultimoModelo(), std::optional<QString>(QStringLiteral("IP X")));
        QCOMPARE(db.idioma(), std::optional<quint8>(2));
        QVERIFY(sqlfixture::run(m_path, QStringLiteral("INSERT INTO Ultimo (Modelo) VALUES ('second')")));
        QVERIFY(db.setUltimoModelo(QStringLiteral("IP 6")));
        QCOMPARE(Raw(m_path).rows(QStringLiteral("SELECT Modelo FROM Ultimo ORDER BY rowid")),
                 (QStringList{"IP 6", "second"}));
    }

    // --- failures -----------------------------------------------------------------------------

    void writesOnReadOnlyConnectionFail()
    {
        const QByteArray before = digest(m_path);
        {
            Database db(m_path, Database::Access::ReadOnly);
            QVERIFY(db.isOpen());
            QVERIFY(!db.addComando(QStringLiteral("new")));
            QVERIFY(!db.lastError().isEmpty());
            QVERIFY(!db.setIdioma(2));
            QVERIFY(!db.writeReadings({{"IP 7", "PP_CPU", "9 V", "9 %"}}));
            QVERIFY(!db.clearReadings());
            QVERIFY(!db.saveDados({"IP 7", "Help", "x", {}, {}, {}}));
            QCOMPARE(db.idioma(), std::optional<quint8>(1));
            QCOMPARE(db.masterRow("IP 7", "PP_CPU")->leitura, QStringLiteral("0.851 V"));
        }
        QCOMPARE(digest(m_path), before);
    }

    void writeWhileAnotherProgramHoldsTheLock()
    {
        Raw other(m_path);
        QVERIFY(other.exec(QStringLiteral("BEGIN IMMEDIATE")));
        Database db(m_path);
        QVERIFY(!db.setIdioma(3));
        QVERIFY(db.lastError().contains(QStringLiteral("locked"), Qt::CaseInsensitive));
        QVERIFY(other.exec(QStringLiteral("ROLLBACK")));
        QCOMPARE(db.idioma(), std::optional<quint8>(1));
        QVERIFY(db.setIdioma(3));
    }

    // A query that cannot be prepared keeps its own reason; running it anyway would only say
    // "No query Unable to fetch row".
    void failedPrepareKeepsItsReason()
    {
        QVERIFY(sqlfixture::run(m_path, QStringLiteral("DROP TABLE M")));
        Database db(m_path, Database::Access::ReadOnly);
        QVERIFY(db.maskTexts().isEmpty());
        QVERIFY2(db.lastError().startsWith(QStringLiteral("no such table: M")), qPrintable(db.lastError()));
        QVERIFY(!db.lastError().contains(QStringLiteral("fetch row")));
    }

    void missingFileIsNeverCreated()
    {
        const QString missing = m_dir.filePath(QStringLiteral("absent.vkt"));
        Database db(missing);
        QVERIFY(!db.isOpen() && !db.lastError().isEmpty());
        QVERIFY(db.comandos().isEmpty());
        QVERIFY(!db.modeloRef(QStringLiteral("A1660")));
        QVERIFY(!db.setIdioma(1) && !db.lastError().isEmpty());
        QVERIFY(!QFile::exists(missing));
    }

    // --- start-up check ------------------------------------------------------------------------

    void check_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<int>("expected");
        QTest::addColumn<QString>("detail"); // a part of the detail text
        QTest::newRow("good") << "good" << int(DatabaseProblem::None) << "";
        QTest::newRow("missing") << "missing" << int(DatabaseProblem::Missing) << "";
        QTest::newRow("text file") << "text" << int(DatabaseProblem::Corrupt) << "SQLite";
        QTest::newRow("Access file") << "access" << int(DatabaseProblem::Corrupt) << "Access format";
        QTest::newRow("damaged pages") << "damaged" << int(DatabaseProblem::Corrupt) << "";
        QTest::newRow("SQLite without tables") << "empty" << int(DatabaseProblem::NoSchema) << "Comandos";
        QTest::newRow("zero bytes") << "zero" << int(DatabaseProblem::NoSchema) << "";
        QTest::newRow("column missing") << "column" << int(DatabaseProblem::NoSchema) << "Tools.syncbd";
        QTest::newRow("locked") << "locked" << int(DatabaseProblem::Locked) << "";
        QTest::newRow("read-only file") << "readonly" << int(DatabaseProblem::ReadOnly) << "read-only";
    }
    void check()
    {
        QFETCH(QString, kind);
        QFETCH(QString, detail);
        QString path = m_path;
        const QString other = m_dir.filePath(kind + QStringLiteral(".vkt"));
        std::unique_ptr<Raw> holder;
        if (kind == QLatin1String("missing")) {
            path = other;
        } else if (kind == QLatin1String("text")) {
            writeFile(path = other, "Modelo;Malha\nIP 7;PP_CPU\n");
        } else if (kind == QLatin1String("access")) {
            writeFile(path = other, QByteArray("\x00\x01\x00\x00Standard Jet DB\x00", 20) + QByteArray(2048, '\0'));
        } else if (kind == QLatin1String("damaged")) {
            QFile file(m_path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QByteArray bytes = file.readAll();
            for (qsizetype n = 4096; n < bytes.size(); ++n) // every page after the first
                bytes[n] = char(0xA5);
            writeFile(path = other, bytes);
        } else if (kind == QLatin1String("empty")) {
            QVERIFY(sqlfixture::run(path = other, QStringLiteral("PRAGMA user_version = 7")));
        } else if (kind == QLatin1String("zero")) {
            writeFile(path = other, {});
        } else if (kind == QLatin1String("column")) {
            QVERIFY(sqlfixture::run(m_path, QStringLiteral("ALTER TABLE Tools DROP COLUMN syncbd")));
        } else if (kind == QLatin1String("locked")) {
            holder = std::make_unique<Raw>(m_path);
            QVERIFY(holder->exec(QStringLiteral("BEGIN IMMEDIATE")));
        } else if (kind == QLatin1String("readonly")) {
            if (::geteuid() == 0)
                QSKIP("running as root: file permissions do not stop writes");
            QFile::setPermissions(m_path, QFileDevice::ReadOwner);
        }
        const QByteArray before = digest(path);
        QString text;
        QTEST(int(Database::check(path, &text)), "expected");
        QVERIFY2(text.contains(detail), qPrintable(text));
        QCOMPARE(digest(path), before);
        QVERIFY(!QFile::exists(path + QStringLiteral("-journal")));
        if (kind == QLatin1String("missing"))
            QVERIFY(!QFile::exists(path));
        if (holder) // the lock is still the other program's
            QVERIFY(holder->exec(QStringLiteral("INSERT INTO M (String) VALUES ('still mine')")));
        QFile::setPermissions(m_path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }

    // --- the shipped Config.vkt -----------------------------------------------------------------

    void generatedConfigVkt()
    {
        const QString shipped = QStringLiteral(VEKTO_BIN_DIR "/Config.vkt");
        QVERIFY2(QFile::exists(shipped), "Config.vkt was not generated by the build");
        // Checked on a copy: the build's own file may belong to another user.
        const QString copy = m_dir.filePath(QStringLiteral("shipped.vkt"));
        QVERIFY(QFile::copy(shipped, copy));
        QFile::setPermissions(copy, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        QString detail;
        QVERIFY2(Database::check(copy, &detail) == DatabaseProblem::None, qPrintable(detail));
        // The lookup the connect button makes, on the shipped rows.
        Database db(shipped, Database::Access::ReadOnly);
        QCOMPARE(db.modeloRef(QStringLiteral("A1660")), std::optional<QString>(QStringLiteral("IP 7")));
        QVERIFY(db.comando(QStringLiteral("pmuadc --read all")));
    }

    // --- Access files and the first bytes of a file -----------------------------------------

    void tablesAndColumns()
    {
        if (!QFile::exists(sqlfixture::accessFile()))
            QSKIP("the shared Access fixture is not beside the project");
        AccessReader reader(sqlfixture::accessFile());
        QVERIFY2(reader.isOpen(), qPrintable(reader.lastError()));
        QCOMPARE(reader.tables(), QStringList{QStringLiteral("DateTest")});
        QCOMPARE(reader.columns(QStringLiteral("datetest")),
                 QStringList({"IDCol", "DateTimeCol", "DateCol", "TimeCol", "LongTextCol", "ShortTextCol"}));
        QCOMPARE(reader.columns(QStringLiteral("MSysObjects")), std::nullopt);
    }

    void knownValues_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("value");
        QTest::newRow("first id") << 0 << "IDCol" << "1";
        QTest::newRow("short text") << 0 << "ShortTextCol" << "Hello";
        QTest::newRow("memo text") << 0 << "LongTextCol" << "Hello";
        QTest::newRow("date as text") << 0 << "DateTimeCol" << "2021-12-02 00:00:00";
        QTest::newRow("column name in other case") << 1 << "shorttextcol" << "Year 1999";
        QTest::newRow("memo of another row") << 2 << "LongTextCol" << "Pre-1900 years";
        QTest::newRow("backslashes stay as stored") << 4 << "ShortTextCol" << "Escaped new line \\r\\n in field";
    }
    void knownValues()
    {
        if (!QFile::exists(sqlfixture::accessFile()))
            QSKIP("the shared Access fixture is not beside the project");
        QFETCH(int, row);
        QFETCH(QString, column);
        AccessReader reader(sqlfixture::accessFile());
        const auto rows = reader.rows(QStringLiteral("DateTest"), {column, QStringLiteral("IDCol")});
        QVERIFY2(rows.has_value(), qPrintable(reader.lastError()));
        QVERIFY(rows->size() > row);
        QTEST(rows->at(row).at(0), "value");
        // Rows come in their stored order.
        QCOMPARE(rows->at(row).at(1), QString::number(row + 1));
    }

    void missingTableOrColumn_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<QString>("named");
        QTest::newRow("table") << "Master" << QStringList{"Modelo"} << "Master";
        QTest::newRow("column") << "DateTest" << QStringList{"IDCol", "G1"} << "G1";
        QTest::newRow("system table") << "MSysObjects" << QStringList{"Id"} << "MSysObjects";
    }
    void missingTableOrColumn()
    {
        if (!QFile::exists(sqlfixture::accessFile()))
            QSKIP("the shared Access fixture is not beside the project");
        QFETCH(QString, table);
        QFETCH(QStringList, columns);
        QFETCH(QString, named);
        AccessReader reader(sqlfixture::accessFile());
        QCOMPARE(reader.rows(table, columns), std::nullopt);
        QVERIFY2(reader.lastError().contains(named), qPrintable(reader.lastError()));
    }

    // Cut or damaged copies are refused or read without crashing; none is taken for a good file.
    void damagedCopies_data()
    {
        QTest::addColumn<int>("keep");
        QTest::newRow("header only") << 100;
        QTest::newRow("one page") << 4096;
        QTest::newRow("half a page more") << 8192 + 2048;
        QTest::newRow("cut mid-file") << 65536 + 100;
    }
    void damagedCopies()
    {
        const QByteArray bytes = accessBytes();
        if (bytes.isEmpty())
            QSKIP("the shared Access fixture is not beside the project");
        QFETCH(int, keep);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("cut.mdb"));
        writeFile(path, bytes.left(keep));
        AccessReader reader(path);
        QVERIFY(!reader.isOpen());
        QVERIFY(!reader.lastError().isEmpty());
        QCOMPARE(reader.rows(QStringLiteral("DateTest"), {QStringLiteral("IDCol")}), std::nullopt);
    }
};

QTEST_GUILESS_MAIN(TestDatabase)
#include "tst_database.moc"
