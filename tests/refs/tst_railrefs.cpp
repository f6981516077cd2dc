// Rail references learned from recorded good boards, on a copy of the shipped Config.vkt: the
// median rule, an undo that puts every byte back, and the demo marking the grids show.
#include "ConsoleExchange.h"
#include "Database.h"
#include "FakeDialogs.h"
#include "RailLearning.h"
#include "RefOrigins.h"
#include "SerialPort.h"
#include "Session.h"
#include "VCores.h"

#include <QFile>
#include <QFont>
#include <QLabel>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QSqlQueryModel>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

namespace {

class SilentPort : public SerialPort
{
public:
    int open(const QString &) override { return NoError; }
    void close() override {}
    bool isOpen() const override { return true; }
    void write(const QByteArray &) override {}
    QByteArray readAll() override { return {}; }
};

struct ConfigFile
{
    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("Config.vkt"));
    ConfigFile()
    {
        QFile::copy(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), path);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
};

// Every row of the tables a learning touches, rowids included, as one text.
QString dump(Database &db)
{
    QString text;
    for (const char *table : {"Master", "RefOrigin", "RefUndo"}) {
        QSqlQuery q(db.connection());
        if (!q.exec(QStringLiteral("SELECT rowid, * FROM %1 ORDER BY rowid").arg(QLatin1String(table))))
            return q.lastError().text();
        while (q.next()) {
            for (int c = 0; c < q.record().count(); ++c)
                text += q.value(c).toString() + u'\t';
            text += u'\n';
        }
    }
    return text;
}

MasterFilter modelRows(const QString &model)
{
    MasterFilter filter;
    filter.modelo = model;
    return filter;
}

} // namespace

class TestRailRefs : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
            QSKIP("Config.vkt is not built");
    }

    void medianRule_data()
    {
        QTest::addColumn<QString>("g1");
        QTest::addColumn<QString>("g2");
        QTest::addColumn<QString>("g3");
        QTest::addColumn<QString>("refv"); // the learned reference; empty when none is learned
        QTest::addColumn<int>("readings");

        QTest::newRow("one volt reading") << "0.912 V" << "" << "" << "0.912" << 1;
        QTest::newRow("two: the mean of both") << "0.900 V" << "" << "0.911 V" << "0.906" << 2;
        QTest::newRow("three: the middle one") << "0.950 V" << "0.893 V" << "0.900 V" << "0.900" << 3;
        QTest::newRow("volts cut to fewer decimals") << "0.85 V" << "0.9 V" << "0.893 V" << "0.893" << 3;
        QTest::newRow("negative volts") << "-0.120 V" << "-0.131 V" << "" << "-0.126" << 2;
        QTest::newRow("current with a comma") << "48,6 mA" << "" << "" << "48,6" << 1;
        QTest::newRow("currents keep their finest decimals") << "352 mA" << "352,4 mA" << "360,12 mA" << "352,40" << 3;
        QTest::newRow("two currents round half away") << "352,4 mA" << "352,5 mA" << "" << "352,5" << 2;
        QTest::newRow("no-reading texts skipped") << "Sem Medición*" << "1.800 V" << "No Measurement*" << "1.800" << 1;
        QTest::newRow("a rail that is off") << "0 V" << "0 V" << "" << "0" << 2;
        QTest::newRow("mixed units learn nothing") << "0.900 V" << "352,4 mA" << "" << "" << 2;
        QTest::newRow("nothing recorded") << "" << "" << "" << "" << 0;
        QTest::newRow("not readings") << "0.9V" << "1.2.3 V" << "'0.900 V'" << "" << 0;
        QTest::newRow("a 100 KB text") << QString(100 * 1024, u'9') + QStringLiteral(" V") << "" << "" << "" << 0;
    }

    void medianRule()
    {
        QFETCH(QString, g1);
        QFETCH(QString, g2);
        QFETCH(QString, g3);
        QFETCH(QString, refv);
        QFETCH(int, readings);
        MasterRow row;
        row.modelo = QStringLiteral("IP 7");
        row.malha = QStringLiteral("PP_CPU");
        row.refv = QStringLiteral("0.850");
        row.g1 = g1;
        row.g2 = g2;
        row.g3 = g3;
        const RailLearning::RailPlan plan = RailLearning::planRail(row);
        QCOMPARE(plan.readings, readings);
        QCOMPARE(plan.outcome == RailLearning::Outcome::Learned, !refv.isEmpty());
        QCOMPARE(plan.newRefv, refv);
    }

    // Learning then undoing leaves Master and the origins exactly as they were, rowids
    // included, whether the rail had an origin row or not.
    void learnThenUndoRestoresEveryByte()
    {
        ConfigFile config;
        Database db(config.path);
        const QString model = QStringLiteral("IP 7");
        QVERIFY(db.setRecordings({model, QStringLiteral("PP_CPU")}, QStringLiteral("0.880 V"), QStringLiteral("0.890 V"), {}));
        QVERIFY(db.setRecordings({model, QStringLiteral("I_PP_CPU")}, QStringLiteral("340,1 mA"), {}, QStringLiteral("Sem Medição*")));
        QVERIFY(db.deleteRefOrigin(RefOrigins::Rail, model, QStringLiteral("I_PP_CPU")));
        const QString before = dump(db);

        const RailLearning::Plan plan = RailLearning::plan(model, db.masterRows(modelRows(model)));
        QCOMPARE(plan.learnable(), 2);
        QVERIFY(RailLearning::learn(db, plan, {QStringLiteral("2026-11-23T10:00:00Z"), QStringLiteral("1.81"), {}}));
        QCOMPARE(db.masterRow(model, QStringLiteral("PP_CPU"))->refv, QStringLiteral("0.885"));
        QCOMPARE(db.masterRow(model, QStringLiteral("I_PP_CPU"))->refv, QStringLiteral("340,1"));
        const auto learned = db.refOrigin(RefOrigins::Rail, model, QStringLiteral("I_PP_CPU"));
        QVERIFY(learned);
        QCOMPARE(RefOrigins::state(learned, QStringLiteral("340,1")), RefOrigins::State::Learned);
        QCOMPARE(learned->boards, 1);
        QVERIFY(dump(db) != before);

        QVERIFY(RailLearning::undo(db, model));
        QCOMPARE(dump(db), before);
        QVERIFY(!RailLearning::canUndo(db, model));
    }

    // A file from before origins were kept gets the tables at start-up and can learn.
    void olderFileGetsTheTables()
    {
        ConfigFile config;
        {
            Database db(config.path);
            QSqlQuery q(db.connection());
            QVERIFY(q.exec(QStringLiteral("DROP TABLE RefOrigin")));
            QVERIFY(q.exec(QStringLiteral("DROP TABLE RefUndo")));
        }
        Database db(config.path);
        QVERIFY2(db.addMissingTables(), qPrintable(db.lastError()));
        QVERIFY(db.refOrigins(RefOrigins::Rail, QStringLiteral("IP 7")).isEmpty());
        QVERIFY(db.setRecordings({QStringLiteral("IP 7"), QStringLiteral("PP_CPU")}, QStringLiteral("0.880 V"), {}, {}));
        const RailLearning::Plan plan =
            RailLearning::plan(QStringLiteral("IP 7"), db.masterRows(modelRows(QStringLiteral("IP 7"))));
        QVERIFY2(RailLearning::learn(db, plan, {}), qPrintable(db.lastError()));
        QVERIFY(RailLearning::undo(db, QStringLiteral("IP 7")));
        QCOMPARE(db.refOrigin(RefOrigins::Rail, QStringLiteral("IP 7"), QStringLiteral("PP_CPU")), std::nullopt);
    }

    // Shipped references show in italics with the note; a learned one does not, and says so
    // on hover in the session language.
    void gridMarksDemoReferences()
    {
        ConfigFile config;
        Session session(config.path);
        SilentPort port;
        ConsoleExchange exchange(session, port);
        FakeDialogs dialogs;
        session.setIdioma(2);
        session.setModelo(QStringLiteral("IP 7"));
        {
            Database db(config.path);
            QVERIFY(db.setRecordings({QStringLiteral("IP 7"), QStringLiteral("PP_CPU")}, QStringLiteral("0.880 V"), {}, {}));
        }
        VCores screen({session, exchange, dialogs});
        const QAbstractItemModel *shown = screen.findChild<QTableView *>(QStringLiteral("grid"))->model();
        const QSqlRecord record = screen.Data1()->record();
        const auto cell = [&](const QString &malha, const char *column, int role) {
            for (int r = 0; r < shown->rowCount(); ++r)
                if (screen.Data1()->record(r).value(QStringLiteral("Malha")).toString() == malha)
                    return shown->data(shown->index(r, record.indexOf(QLatin1String(column))), role);
            return QVariant();
        };
        QVERIFY(cell(QStringLiteral("PP_CPU"), "refv", Qt::FontRole).value<QFont>().italic());
        QVERIFY(cell(QStringLiteral("PP_CPU"), "Malha", Qt::ToolTipRole).toString().contains(QLatin1String("Demo data")));
        QVERIFY(screen.findChild<QLabel *>(QStringLiteral("lbOrigem"))->isVisibleTo(&screen));

        screen.aprender();
        QVERIFY2(dialogs.shown.last().contains(QLatin1String("1 rails of model IP 7")), qPrintable(dialogs.shown.last()));
        QCOMPARE(cell(QStringLiteral("PP_CPU"), "refv", Qt::DisplayRole).toString(), QStringLiteral("0.880"));
        QVERIFY(!cell(QStringLiteral("PP_CPU"), "refv", Qt::FontRole).value<QFont>().italic());
        QVERIFY(cell(QStringLiteral("PP_CPU"), "Leitura", Qt::ToolTipRole).toString().startsWith(QLatin1String("Learned from 1 board")));
        QVERIFY(cell(QStringLiteral("PP_GPU"), "refv", Qt::FontRole).value<QFont>().italic());
    }

    // While a reading runs the recorded slots may be about to change: nothing is learned.
    void learningWaitsForTheReading()
    {
        ConfigFile config;
        Session session(config.path);
        SilentPort port;
        ConsoleExchange exchange(session, port);
        FakeDialogs dialogs;
        session.setModelo(QStringLiteral("IP 7"));
        session.setConnectionFlag(QStringLiteral("1"));
        session.setConnectionValidated(true);
        {
            Database db(config.path);
            QVERIFY(db.setRecordings({QStringLiteral("IP 7"), QStringLiteral("PP_CPU")}, QStringLiteral("0.880 V"), {}, {}));
        }
        VCores screen({session, exchange, dialogs});
        screen.ExecutaLeitura();
        QVERIFY(screen.readingUnderWay());
        screen.aprender();
        QCOMPARE(dialogs.shown.size(), 1);
        QVERIFY2(dialogs.shown.first().startsWith(QLatin1String("info:")), qPrintable(dialogs.shown.first()));
        QCOMPARE(Database(config.path).masterRow(QStringLiteral("IP 7"), QStringLiteral("PP_CPU"))->refv, QStringLiteral("0.900"));
    }
};

QTEST_MAIN(TestRailRefs)
#include "tst_railrefs.moc"
