// Reference files between two benches, each a copy of the shipped Config.vkt: what one bench
// learned arrives on the other with its origin, a newer local reference is never silently
// overwritten, and a file that cannot be trusted changes nothing at all.
#include "Database.h"
#include "RailLearning.h"
#include "RefFile.h"
#include "RefImport.h"
#include "RefOrigins.h"

#include <QCryptographicHash>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QString Model = QStringLiteral("IP 7");

struct Bench
{
    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("Config.vkt"));
    Bench()
    {
        QFile::copy(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), path);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
    QString file(const QString &name) const { return dir.filePath(name); }
};

MasterFilter modelRows(const QString &model)
{
    MasterFilter filter;
    filter.modelo = model;
    return filter;
}

// Records the readings in slot 1 of the given rails and learns them at `at`.
bool learnAt(Database &db, const QList<QPair<QString, QString>> &readings, const QString &at)
{
    for (const auto &[malha, reading] : readings)
        if (!db.setRecordings({Model, malha}, reading, {}, {}))
            return false;
    QList<MasterRow> rows;
    for (const auto &[malha, reading] : readings)
        rows.append(*db.masterRow(Model, malha));
    return RailLearning::learn(db, RailLearning::plan(Model, rows), {at, QStringLiteral("1.81"), {}});
}

bool exportTo(Database &db, const QString &path, const QStringList &models = {})
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly)
           && file.write(RefFile::write(RefFile::collect(db, models, QStringLiteral("2026-03-01T12:00:00Z"),
                                                         QStringLiteral("1.81")))) > 0;
}

QJsonObject railModel(const QString &model, const QString &malha, const QString &refv)
{
    return {{"model", model}, {"rails", QJsonArray{QJsonObject{{"malha", malha}, {"refv", refv}}}}};
}

QByteArray refsJson(int version, const QJsonArray &models)
{
    return QJsonDocument(QJsonObject{{"format", RefFile::Format}, {"version", version},
                                     {"exported", "2026-03-01T12:00:00Z"}, {"models", models}})
        .toJson();
}

QByteArray fileHash(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha1) : QByteArray();
}

} // namespace

class TestRefFile : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
            QSKIP("Config.vkt is not built");
    }

    // Bench A learns rails, changes its I2C list and its recorded answer; bench B, fresh, gets
    // exactly those references with where they came from. Importing again changes nothing.
    void exportImportRoundTrip()
    {
        Bench a, b;
        const QString refs = a.file(QStringLiteral("shop refs.json"));
        {
            Database db(a.path);
            QVERIFY(learnAt(db, {{QStringLiteral("PP_CPU"), QStringLiteral("0.871 V")},
                                 {QStringLiteral("I_PP_CPU"), QStringLiteral("340,2 mA")}},
                            QStringLiteral("2026-02-01T08:00:00Z")));
            QVERIFY(db.replaceI2cEntries(Model, {QStringLiteral("0x74-PMU"), QStringLiteral("2x40-Pelorin \"new\" part")}));
            QVERIFY(db.saveDados({Model, QStringLiteral("nanduid"), QStringLiteral("UID 'abc'\r\n"), {}, {}, {}}));
            QVERIFY(db.addMaskText(QStringLiteral("SERIAL-\"42\"")));
            QVERIFY(exportTo(db, refs, {Model}));
        }
        Database db(b.path);
        const RefImport::Report report = RefImport::runFile(db, refs);
        QVERIFY2(report.ok(), qPrintable(report.detail));
        QVERIFY(report.conflicts.isEmpty());
        QCOMPARE(report.rails.replaced, 2);
        QCOMPARE(report.i2c.replaced, 1);
        QCOMPARE(report.dados.added + report.dados.replaced, 1);
        QCOMPARE(report.masksAdded, 1);

        Database source(a.path);
        for (const MasterRow &row : source.masterRows(modelRows(Model)))
            QCOMPARE(db.masterRow(Model, row.malha)->refv, row.refv);
        const auto cpu = db.refOrigin(RefOrigins::Rail, Model, QStringLiteral("PP_CPU"));
        QCOMPARE(RefOrigins::state(cpu, QStringLiteral("0.871")), RefOrigins::State::Imported);
        QCOMPARE(cpu->at, QStringLiteral("2026-02-01T08:00:00Z"));
        QCOMPARE(cpu->boards, 1);
        QCOMPARE(cpu->file, QStringLiteral("shop refs.json"));
        QCOMPARE(RefOrigins::state(db.refOrigin(RefOrigins::Rail, Model, QStringLiteral("PP_GPU")), QStringLiteral("0")),
                 RefOrigins::State::Demo);
        QCOMPARE(db.i2cEntries(Model), source.i2cEntries(Model));
        QCOMPARE(db.dadosRecord(Model, QStringLiteral("nanduid"))->dados, QStringLiteral("UID 'abc'\r\n"));
        QVERIFY(db.maskTexts().contains(QStringLiteral("SERIAL-\"42\"")));

        const RefImport::Report again = RefImport::runFile(db, refs);
        QVERIFY(again.ok() && again.conflicts.isEmpty());
        QCOMPARE(again.rails.replaced + again.rails.added + again.i2c.replaced + again.dados.replaced + again.masksAdded, 0);
    }

    // Which local reference gives way to a different one from a file learned on 2026-02-01.
    void newerOriginWins_data()
    {
        QTest::addColumn<QString>("local"); // how bench B's PP_CPU reference came to be
        QTest::addColumn<bool>("conflict");
        QTest::newRow("shipped demo") << "demo" << false;
        QTest::newRow("learned before") << "2026-01-01T00:00:00Z" << false;
        QTest::newRow("learned after") << "2026-06-01T00:00:00Z" << true;
        QTest::newRow("changed by hand") << "hand" << true;
        QTest::newRow("origin unknown") << "unknown" << true;
    }

    void newerOriginWins()
    {
        QFETCH(QString, local);
        QFETCH(bool, conflict);
        Bench a, b;
        const QString refs = a.file(QStringLiteral("refs.json"));
        {
            Database db(a.path);
            QVERIFY(learnAt(db, {{QStringLiteral("PP_CPU"), QStringLiteral("0.871 V")}}, QStringLiteral("2026-02-01T08:00:00Z")));
            QVERIFY(exportTo(db, refs));
        }
        Database db(b.path);
        if (local.startsWith(QLatin1String("2026")))
            QVERIFY(learnAt(db, {{QStringLiteral("PP_CPU"), QStringLiteral("0.905 V")}}, local));
        else if (local == QLatin1String("hand"))
            QVERIFY(db.setRefv({Model, QStringLiteral("PP_CPU")}, QStringLiteral("0.905")));
        else if (local == QLatin1String("unknown"))
            QVERIFY(db.setRefv({Model, QStringLiteral("PP_CPU")}, QStringLiteral("0.905"))
                    && db.deleteRefOrigin(RefOrigins::Rail, Model, QStringLiteral("PP_CPU")));
        const QString before = db.masterRow(Model, QStringLiteral("PP_CPU"))->refv;

        const RefImport::Report report = RefImport::runFile(db, refs);
        QVERIFY2(report.ok(), qPrintable(report.detail));
        QCOMPARE(report.conflicts.size(), conflict ? 1 : 0);
        QCOMPARE(db.masterRow(Model, QStringLiteral("PP_CPU"))->refv, conflict ? before : QStringLiteral("0.871"));
        if (conflict) {
            const RefImport::Conflict &c = report.conflicts.first();
            QCOMPARE(c.item, QStringLiteral("PP_CPU"));
            QCOMPARE(c.local, before);
            QCOMPARE(c.incoming, QStringLiteral("0.871"));
        }
    }

    // A file that cannot be trusted is refused whole, with a reason, and the database keeps
    // every byte.
    void badFilesChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("content"); // "@" stands for a good export of IP 7
        QTest::addColumn<int>("problem");
        using P = RefImport::Problem;
        QTest::newRow("truncated") << QByteArray("@half") << int(P::File);
        QTest::newRow("not json") << QByteArray("Malha;refv\nPP_CPU;0.9\n") << int(P::File);
        QTest::newRow("another json") << QJsonDocument(QJsonObject{{"models", QJsonArray{}}}).toJson() << int(P::File);
        QTest::newRow("newer format") << refsJson(2, {}) << int(P::File);
        QTest::newRow("unknown model after a known one")
            << refsJson(1, {railModel("IP 7", "PP_CPU", "0.700"), railModel("IP 99", "PP_CPU", "0.700")})
            << int(P::UnknownModel);
        QTest::newRow("not a reference value")
            << refsJson(1, {railModel("IP 7", "PP_CPU", "0.9'); DROP TABLE Master;--")}) << int(P::File);
        QTest::newRow("100 KB net name") << refsJson(1, {railModel("IP 7", QString(100 * 1024, u'N'), "0.700")})
                                         << int(P::File);
        QTest::newRow("missing file") << QByteArray() << int(P::File);
    }

    void badFilesChangeNothing()
    {
        QFETCH(QByteArray, content);
        QFETCH(int, problem);
        Bench b;
        const QString refs = b.file(QStringLiteral("refs.json"));
        {
            Database db(b.path);
            QVERIFY(learnAt(db, {{QStringLiteral("PP_CPU"), QStringLiteral("0.871 V")}}, QStringLiteral("2026-02-01T08:00:00Z")));
            QVERIFY(exportTo(db, refs, {Model}));
            QVERIFY(db.setRefv({Model, QStringLiteral("PP_CPU")}, QStringLiteral("0.901")));
        }
        if (content.startsWith('@')) {
            QFile f(refs);
            QVERIFY(f.open(QIODevice::ReadWrite));
            const QByteArray whole = f.readAll();
            f.resize(0);
            f.write(whole.left(whole.size() / 2));
        } else if (content.isEmpty()) {
            QFile::remove(refs);
        } else {
            QFile f(refs);
            QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
            f.write(content);
        }
        const QByteArray before = fileHash(b.path);
        Database db(b.path);
        const RefImport::Report report = RefImport::runFile(db, refs);
        QCOMPARE(int(report.problem), problem);
        QVERIFY(!report.detail.isEmpty());
        QVERIFY(!report.messageKey().isEmpty());
        QCOMPARE(fileHash(b.path), before);
    }
};

QTEST_MAIN(TestRefFile)
#include "tst_reffile.moc"
