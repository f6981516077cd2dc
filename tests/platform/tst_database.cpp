// The database layer on real SQLite files built from the shipped schema and seeds: every query
// round trip, quotes as plain characters, the text orders the screens rely on, writes that are
// all-or-nothing, and a start-up check that tells each kind of bad file apart without touching it.
#include "Database.h"
#include "DatabaseBuilder.h"

#include <QCryptographicHash>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlError>
#include <QTemporaryDir>
#include <QtTest>
#include <unistd.h>

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

QByteArray fileHash(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256);
}

// A second, independent connection, as another program would hold.
class RawConnection
{
public:
    explicit RawConnection(const QString &path)
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
        db.setDatabaseName(path);
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=0"));
        db.open();
    }
    ~RawConnection()
    {
        QSqlDatabase::database(name, false).close();
        QSqlDatabase::removeDatabase(name);
    }
    bool exec(const QString &sql)
    {
        QSqlQuery query(QSqlDatabase::database(name, false));
        return query.exec(sql);
    }
    const QString name = QStringLiteral("tst-raw-%1").arg(quintptr(this));
};

QStringList malhas(const QList<MasterRow> &rows)
{
    QStringList names;
    for (const MasterRow &row : rows)
        names << row.malha;
    return names;
}

bool chmodIsEnforced() { return ::geteuid() != 0; }

// Every write refused, the reason given, reading still fine and the file unchanged.
void expectWritesRefused(Database &db)
{
    QVERIFY(!db.addComando(QStringLiteral("new")));
    QVERIFY(!db.lastError().isEmpty());
    QVERIFY(!db.setIdioma(2));
    QVERIFY(!db.writeReadings({{"IP 7", "PP_CPU", "9 V", "9 %"}}));
    QVERIFY(!db.clearReadings());
    QVERIFY(!db.saveDados({"IP 7", "Help", "x", {}, {}, {}}));
    QVERIFY(!db.lastError().isEmpty());
    QCOMPARE(db.idioma(), std::optional<quint8>(1));
    QCOMPARE(db.masterRow("IP 7", "PP_CPU")->leitura, QStringLiteral("0.851 V"));
}

} // namespace

class TestDatabase : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_path;

    QString build(const QString &name, const QString &extraSql = {})
    {
        QStringList seeds = DatabaseBuilder::seedFiles(sourceData + QStringLiteral("/seed"));
        // The illustrative demo recordings and masks would stand in the way of the rows below.
        seeds.removeIf([](const QString &f) { return f.endsWith(QLatin1String("_demo.sql")); });
        if (!extraSql.isEmpty()) {
            const QString extra = m_dir.filePath(name + QStringLiteral(".rows.sql"));
            QFile file(extra);
            if (file.open(QIODevice::WriteOnly))
                file.write(extraSql.toUtf8());
            seeds << extra;
        }
        const QString target = m_dir.filePath(name);
        QString error;
        if (!DatabaseBuilder::build(sourceData + QStringLiteral("/schema.sql"), seeds, target, &error))
            qWarning("build failed: %s", qPrintable(error));
        return target;
    }

private slots:
    void init()
    {
        QVERIFY(m_dir.isValid());
        static int n = 0;
        m_path = build(QStringLiteral("Config%1.vkt").arg(++n), QString::fromUtf8(testRows));
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
        QFETCH(QStringList, expected);
        QCOMPARE(DatabaseBuilder::splitStatements(script), expected);
    }

    void seedFilesInNameOrder()
    {
        QTemporaryDir dir;
        for (const char *name : {"b.sql", "a.sql", "C.sql", "a.txt"}) {
            QFile file(dir.filePath(QString::fromLatin1(name)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
        QStringList names;
        for (const QString &path : DatabaseBuilder::seedFiles(dir.path()))
            names << QFileInfo(path).fileName();
        QCOMPARE(names, (QStringList{"C.sql", "a.sql", "b.sql"}));
    }

    void failedBuildLeavesTargetUntouched()
    {
        const QByteArray before = fileHash(m_path);
        const QString bad = m_dir.filePath(QStringLiteral("zz-bad.sql"));
        QFile file(bad);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("INSERT INTO Tools (Idioma) VALUES ('2');\nINSERT INTO Nowhere VALUES (1);\n");
        file.close();
        QString error;
        QVERIFY(!DatabaseBuilder::build(sourceData + QStringLiteral("/schema.sql"), {bad}, m_path, &error));
        QVERIFY2(error.contains(QStringLiteral("zz-bad.sql")) && error.contains(QStringLiteral("statement 2")),
                 qPrintable(error));
        QCOMPARE(fileHash(m_path), before);
        QVERIFY(!QFile::exists(m_path + QStringLiteral(".part")));
    }

    // --- Comandos, Dados, M -----------------------------------------------------------------

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

    // Keys typed in another letter case find the same rows, as in the Access file.
    void keysIgnoreLetterCase_data()
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
        QTest::newRow("model number") << "modelos" << "a1660" << "" << true;
        QTest::newRow("rail rows of the model") << "master" << "ip 7" << "pp_cpu" << true;
        QTest::newRow("rail of another model") << "master" << "ip 7 plus" << "PP_GPU" << false;
    }
    void keysIgnoreLetterCase()
    {
        QFETCH(QString, kind);
        QFETCH(QString, first);
        QFETCH(QString, second);
        QFETCH(bool, found);
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
        QCOMPARE(got, found);
        QVERIFY2(db.lastError().isEmpty(), qPrintable(db.lastError()));
    }

    // A file made before the keys ignored letter case: upgraded whole, once, rows and indexes kept.
    void oldFileUpgradedToCaseInsensitiveKeys()
    {
        QFile schemaFile(sourceData + QStringLiteral("/schema.sql"));
        QVERIFY(schemaFile.open(QIODevice::ReadOnly));
        const QString oldSchemaPath = m_dir.filePath(QStringLiteral("old-schema.sql"));
        QFile oldSchema(oldSchemaPath);
        QVERIFY(oldSchema.open(QIODevice::WriteOnly));
        oldSchema.write(schemaFile.readAll().replace(" COLLATE NOCASE", ""));
        oldSchema.close();
        const QString old = m_dir.filePath(QStringLiteral("old.vkt"));
        QString error;
        QVERIFY2(DatabaseBuilder::build(oldSchemaPath, DatabaseBuilder::seedFiles(sourceData + QStringLiteral("/seed")),
                                        old, &error),
                 qPrintable(error));
        QList<DadosRecord> before;
        {
            Database db(old);
            QVERIFY(db.addMaskText(QStringLiteral("abc")) && db.addMaskText(QStringLiteral("ABCD")));
            QVERIFY(!db.comandoExists(QStringLiteral("NAND --GETINFO")));
            before = db.allDados();
        }

        QVERIFY2(Database::upgradeCollation(old, &error), qPrintable(error));
        {
            Database db(old);
            QVERIFY(db.comandoExists(QStringLiteral("NAND --GETINFO")));
            QVERIFY(db.dadosRecord(QStringLiteral("ip 7"), QStringLiteral("NAND --GETINFO")));
            const QStringList masks = db.maskTexts();
            QVERIFY(masks.indexOf(QStringLiteral("ABCD")) < masks.indexOf(QStringLiteral("abc")));
            QCOMPARE(db.allDados(), before);
            QVERIFY(db.masterRow(QStringLiteral("IP 7"), QStringLiteral("pp_cpu")));
        }
        QCOMPARE(Database::check(old), DatabaseProblem::None);
        RawConnection raw(old);
        QSqlQuery indexes(QSqlDatabase::database(raw.name, false));
        QVERIFY(indexes.exec(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE type = 'index'")));
        QVERIFY(indexes.next());
        QCOMPARE(indexes.value(0).toInt(), 10);
        indexes.finish();

        // A file that is up to date is not written again.
        const QByteArray hash = fileHash(old);
        QVERIFY(Database::upgradeCollation(old, &error));
        QCOMPARE(fileHash(old), hash);
        QVERIFY(Database::upgradeCollation(m_path, &error));
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
        const QString m = QStringLiteral("IP 7");
        QTest::newRow("Modelo, Malha") << m << 0 << QString() << false << int(O::ModeloMalha)
                                       << QStringList{"PP_CPU", "PP_GPU", "PP_NAND", "PP_O'BRIEN", "PP_SOC"};
        QTest::newRow("Malha") << m << 0 << QString() << false << int(O::Malha)
                               << QStringList{"PP_CPU", "PP_GPU", "PP_NAND", "PP_O'BRIEN", "PP_SOC"};
        QTest::newRow("Orig as text") << m << 0 << QString() << false << int(O::Orig)
                                      << QStringList{"PP_GPU", "PP_NAND", "PP_SOC", "PP_CPU", "PP_O'BRIEN"};
        QTest::newRow("Modelo, Orig with Reft") << m << 0 << QString() << true << int(O::ModeloOrig)
                                                << QStringList{"PP_GPU", "PP_NAND", "PP_CPU", "PP_O'BRIEN"};
        QTest::newRow("CI, Malha") << m << 0 << QString() << false << int(O::CiMalha)
                                   << QStringList{"PP_O'BRIEN", "PP_NAND", "PP_CPU", "PP_GPU", "PP_SOC"};
        QTest::newRow("CI, Orig") << m << 0 << QString() << false << int(O::CiOrig)
                                  << QStringList{"PP_O'BRIEN", "PP_NAND", "PP_GPU", "PP_CPU", "PP_SOC"};
        // Text order: "9,0 %" > "12,5 %" > "1,0 %" > "0,1 %" > "".
        QTest::newRow("Porc desc as text") << m << 0 << QString() << false << int(O::PorcDesc)
                                           << QStringList{"PP_NAND", "PP_GPU", "PP_O'BRIEN", "PP_CPU", "PP_SOC"};
        QTest::newRow("chip filter") << m << 0 << QStringLiteral("PMU") << false << int(O::ModeloMalha)
                                     << QStringList{"PP_CPU", "PP_GPU", "PP_SOC"};
        QTest::newRow("percent is literal") << m << 0 << QStringLiteral("%") << false << int(O::Malha) << QStringList{};
        QTest::newRow("underscore is literal") << m << 1 << QStringLiteral("_") << false << int(O::Malha)
                                               << QStringList{"PP_LDO"};
        QTest::newRow("rail class 2") << m << 2 << QString() << false << int(O::ModeloMalha) << QStringList{"BUCK3"};
        QTest::newRow("model is exact") << QStringLiteral("IP 7 Plus") << 0 << QString() << false
                                        << int(O::ModeloMalha) << QStringList{"PP_CPU"};
        QTest::newRow("quoted model") << QStringLiteral("IP 7' OR '1'='1") << -1 << QString() << false
                                      << int(O::Malha) << QStringList{};
    }
    void masterFiltersAndOrders()
    {
        QFETCH(QString, modelo);
        QFETCH(int, tipo);
        QFETCH(QString, ci);
        QFETCH(bool, reftOnly);
        QFETCH(int, order);
        QFETCH(QStringList, expected);
        MasterFilter filter;
        filter.modelo = modelo;
        if (tipo >= 0)
            filter.tipo = tipo;
        if (!ci.isNull())
            filter.ciContains = ci;
        filter.withReftOnly = reftOnly;
        filter.order = MasterFilter::Order(order);
        Database db(m_path);
        QCOMPARE(malhas(db.masterRows(filter)), expected);
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
        for (const MasterRow &row : db.masterRows({})) {
            QVERIFY(row.leitura.isEmpty());
            QVERIFY(row.porc.isEmpty());
        }
        QCOMPARE(db.masterRows({}).size(), 9);
    }

    void oneReadingIsOneTransaction()
    {
        {
            RawConnection raw(m_path);
            QVERIFY(raw.exec(QStringLiteral("CREATE TRIGGER refuse BEFORE UPDATE ON Master WHEN NEW.Malha = 'PP_GPU' "
                                            "BEGIN SELECT RAISE(ABORT, 'refused by test'); END")));
        }
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

        for (int slot : {0, 4}) {
            QVERIFY(!db.recordReadings(slot, rows));
            QVERIFY(!db.lastError().isEmpty());
        }

        QVERIFY(db.setRecordings({"IP 7", "PP_GPU"}, "1", "2", "3"));
        const MasterRow gpu = *db.masterRow("IP 7", "PP_GPU");
        QCOMPARE((QStringList{gpu.g1, gpu.g2, gpu.g3}), (QStringList{"1", "2", "3"}));
        const QList<MasterRow> before = db.masterRows({});
        QVERIFY(db.setRecordings({"IP 9", "PP_GPU"}, "1", "2", "3")); // no such row: nothing written
        QCOMPARE(db.masterRows({}), before);
    }

    // --- Rf, i, Modelos, settings ---------------------------------------------------------

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

    void modeloRef_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("expected"); // null: not found
        QTest::newRow("IP 7") << "A1660" << "IP 7";
        QTest::newRow("IP X") << "A1902" << "IP X";
        QTest::newRow("IP 6s Plus") << "A1699" << "IP 6s Plus";
        QTest::newRow("unknown") << "A9999" << QString();
        QTest::newRow("framed already") << "ASTA1660098" << QString();
        QTest::newRow("quote") << "A1660'" << QString();
        QTest::newRow("empty") << "" << QString();
    }
    void modeloRef()
    {
        QFETCH(QString, number);
        QFETCH(QString, expected);
        Database db(m_path);
        const std::optional<QString> ref = db.modeloRef(number);
        QCOMPARE(ref.has_value(), !expected.isNull());
        if (ref)
            QCOMPARE(*ref, expected);
        QVERIFY(db.lastError().isEmpty());
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
            RawConnection raw(m_path);
            QVERIFY(raw.exec(QStringLiteral("DELETE FROM Ultimo")));
            QVERIFY(raw.exec(QStringLiteral("DELETE FROM Tools")));
        }
        Database db(m_path);
        QVERIFY(!db.ultimoModelo());
        QVERIFY(!db.idioma());
        QVERIFY(db.setUltimoModelo(QStringLiteral("IP X")));
        QVERIFY(db.setIdioma(2));
        QCOMPARE(db.ultimoModelo(), std::optional<QString>(QStringLiteral("IP X")));
        QCOMPARE(db.idioma(), std::optional<quint8>(2));
        {
            RawConnection raw(m_path);
            QVERIFY(raw.exec(QStringLiteral("INSERT INTO Ultimo (Modelo) VALUES ('second')")));
        }
        QVERIFY(db.setUltimoModelo(QStringLiteral("IP 6")));
        QCOMPARE(db.ultimoModelo(), std::optional<QString>(QStringLiteral("IP 6")));
        RawConnection raw(m_path);
        QSqlQuery rows(QSqlDatabase::database(raw.name, false));
        QVERIFY(rows.exec(QStringLiteral("SELECT Modelo FROM Ultimo ORDER BY rowid")));
        QStringList all;
        while (rows.next())
            all << rows.value(0).toString();
        QCOMPARE(all, (QStringList{"IP 6", "second"}));
    }

    // --- failures -----------------------------------------------------------------------------

    void writesOnReadOnlyConnectionFail()
    {
        const QByteArray before = fileHash(m_path);
        {
            Database db(m_path, Database::Access::ReadOnly);
            QVERIFY(db.isOpen());
            expectWritesRefused(db);
        }
        QCOMPARE(fileHash(m_path), before);
    }

    void writeWhileAnotherProgramHoldsTheLock()
    {
        RawConnection other(m_path);
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
        {
            RawConnection raw(m_path);
            QVERIFY(raw.exec(QStringLiteral("DROP TABLE M")));
        }
        Database db(m_path, Database::Access::ReadOnly);
        QVERIFY(db.maskTexts().isEmpty());
        QVERIFY2(db.lastError().startsWith(QStringLiteral("no such table: M")), qPrintable(db.lastError()));
        QVERIFY(!db.lastError().contains(QStringLiteral("fetch row")));
    }

    void missingFileIsNeverCreated()
    {
        const QString missing = m_dir.filePath(QStringLiteral("absent.vkt"));
        Database db(missing);
        QVERIFY(!db.isOpen());
        QVERIFY(!db.lastError().isEmpty());
        QVERIFY(db.comandos().isEmpty());
        QVERIFY(!db.modeloRef(QStringLiteral("A1660")));
        QVERIFY(!db.setIdioma(1));
        QVERIFY(!db.lastError().isEmpty());
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
        QTest::newRow("garbage") << "garbage" << int(DatabaseProblem::Corrupt) << "SQLite";
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
        QFETCH(int, expected);
        QFETCH(QString, detail);
        QString path = m_path;
        auto writeFile = [&](const QByteArray &bytes) {
            path = m_dir.filePath(kind + QStringLiteral(".vkt"));
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        };
        std::unique_ptr<RawConnection> holder;
        if (kind == QLatin1String("missing")) {
            path = m_dir.filePath(QStringLiteral("nothing.vkt"));
        } else if (kind == QLatin1String("garbage")) {
            QByteArray bytes;
            for (int n = 0; n < 4096; ++n)
                bytes.append(char((n * 131 + 7) & 0xff));
            writeFile(bytes);
        } else if (kind == QLatin1String("text")) {
            writeFile("Modelo;Malha\nIP 7;PP_CPU\n");
        } else if (kind == QLatin1String("access")) {
            writeFile(QByteArray("\x00\x01\x00\x00Standard Jet DB\x00", 20) + QByteArray(2048, '\0'));
        } else if (kind == QLatin1String("damaged")) {
            QFile file(m_path);
            QVERIFY(file.open(QIODevice::ReadOnly));
            QByteArray bytes = file.readAll();
            for (qsizetype n = 4096; n < bytes.size(); ++n) // every page after the first
                bytes[n] = char(0xA5);
            writeFile(bytes);
        } else if (kind == QLatin1String("empty")) {
            path = m_dir.filePath(QStringLiteral("empty.vkt"));
            RawConnection raw(path);
            QVERIFY(raw.exec(QStringLiteral("PRAGMA user_version = 7")));
        } else if (kind == QLatin1String("zero")) {
            writeFile({});
        } else if (kind == QLatin1String("column")) {
            RawConnection raw(m_path);
            QVERIFY(raw.exec(QStringLiteral("ALTER TABLE Tools DROP COLUMN syncbd")));
        } else if (kind == QLatin1String("locked")) {
            holder = std::make_unique<RawConnection>(m_path);
            QVERIFY(holder->exec(QStringLiteral("BEGIN IMMEDIATE")));
        } else if (kind == QLatin1String("readonly")) {
            if (!chmodIsEnforced())
                QSKIP("running as root: file permissions do not stop writes");
            QFile::setPermissions(m_path, QFileDevice::ReadOwner);
        }

        const QByteArray before = fileHash(path);
        QString text;
        QCOMPARE(int(Database::check(path, &text)), expected);
        QVERIFY2(text.contains(detail), qPrintable(text));
        QCOMPARE(fileHash(path), before);
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
        Database db(shipped, Database::Access::ReadOnly);

        // The lookup the connect button makes, on the shipped rows.
        QCOMPARE(db.modeloRef(QStringLiteral("A1660")), std::optional<QString>(QStringLiteral("IP 7")));
        QVERIFY(db.comando(QStringLiteral("pmuadc --read all")));
    }
};

QTEST_GUILESS_MAIN(TestDatabase)
#include "tst_database.moc"
