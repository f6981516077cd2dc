// The import of a previous installation's data: which columns and rows come over, that the
// technician's recordings win only where they should, that a second run changes nothing, and
// that any failure - in the source file or half-way through the writes - leaves Config.vkt
// byte for byte as it was. Both files are SQLite files built by the test; the Access path is
// the same import over the libmdb reader, checked with the shared fixture.

#include "Database.h"
#include "DatabaseBuilder.h"
#include "Texts.h"
#include "UserImport.h"
#include "platform/SqlFixture.h"

#include <QTemporaryDir>
#include <QtTest>

using UserImport::Problem;
using sqlfixture::digest;
Q_DECLARE_METATYPE(UserImport::Problem)

namespace {

const QString Schema = QStringLiteral(VEKTO_SOURCE_DIR "/data/schema.sql");

// Every row of the tables the import touches, in a fixed order, as one text.
QString dump(const QString &path)
{
    sqlfixture::Raw raw(path);
    QStringList text;
    for (const char *table : {"Master", "Dados", "Comandos", "Combos", "Tools", "M"})
        text += raw.rows(QStringLiteral("SELECT * FROM %1 ORDER BY 1, 2, 3").arg(QLatin1String(table)));
    return text.join(u'\n');
}

const QString Master = QStringLiteral("INSERT INTO Master (Modelo, Malha, Ci, TIPO, Reft, refv, Leitura, G1, G2, G3) "
                                      "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
const QString Dados = QStringLiteral("INSERT INTO Dados (Aparelho, Comando, Dados, Info, Info2, Info3) VALUES (?, ?, ?, ?, ?, ?)");
const QString Comandos = QStringLiteral("INSERT INTO Comandos (Comando, Info, Info2, Info3) VALUES (?, ?, ?, ?)");
const QString Combos = QStringLiteral("INSERT INTO Combos (Combo1, Combo2, Combo3, Combo4, Combo5, Combo6, Combo7, Combo8, "
                                      "Combo9, Combo10) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");

} // namespace

class TestUserImport : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_config;
    QString m_user;

    // The freshly installed Config.vkt: shipped references, commands, one recorded answer.
    bool makeConfig()
    {
        QFile::remove(m_config);
        return DatabaseBuilder::build(Schema, {}, m_config)
            && sqlfixture::runAll(m_config, {
                {Master, "IP 7", "PP_VDD_MAIN", "U1", 1, "VDD_MAIN", "4.000", "", "", "", ""},
                {Master, "IP 7", "PP1V8", "U2", 2, "PP1V8_NEW", "1.800", "1.799", "", "", ""},
                {Master, "IP X", "PP3V0", "U3", 2, "PP3V0", "3.000", "", "", "", ""},
                {Dados, "IP 7", "nand --getinfo", "shipped answer", "nota", "note", "nota es"},
                {Dados, "IP 8", "bl -n", "shipped bl", "", "", ""},
                {Comandos, "nand --getinfo", "texto novo", "new text", "texto nuevo"},
                {Comandos, "bl -n", "", "", ""},
                {Combos, "3", "1", "", "", "", "", "", "", "", ""},
                {QStringLiteral("INSERT INTO Tools (Idioma, syncbd) VALUES ('2', '0')")},
                {QStringLiteral("INSERT INTO M (String) VALUES ('SERIAL')")},
            });
    }

    // The previous installation's User.vkt: the technician's recordings and own commands.
    bool makeUser(const QList<QVariantList> &extra = {})
    {
        QFile::remove(m_user);
        QList<QVariantList> rows = {
            {Master, "IP 7", "PP_VDD_MAIN", "OLD", 9, "OLD_LABEL", "9.999", "8.888", "3.998", "3.999", "4.001"},
            {Master, "IP 7", "PP1V8", "OLD", 9, "OLD", "0.000", "0.000", "1.801", "", "1.799"},
            {Master, "IP 6", "PP_GONE", "U9", 1, "GONE", "1.000", "", "1.000", "", ""},
            {Dados, "IP 7", "nand --getinfo", "my answer", "minha nota", "my note", "mi nota"},
            {Dados, "IP 7", "my --own", "own answer", "", "", ""},
            {Comandos, "nand --getinfo", "texto antigo", "old text", "texto viejo"},
            {Comandos, "my --own", "meu", "mine", "mío"},
            {Combos, "2", "0", "a", "b", "c", "d", "e", "f", "g", "h"},
            {QStringLiteral("INSERT INTO Tools (Idioma, syncbd) VALUES ('3', '2')")},
            {QStringLiteral("INSERT INTO M (String) VALUES ('USER MASK')")},
        };
        rows += extra;
        return DatabaseBuilder::build(Schema, {}, m_user) && sqlfixture::runAll(m_user, rows);
    }

private slots:
    void init()
    {
        QVERIFY(m_dir.isValid());
        m_config = m_dir.filePath(QStringLiteral("Config.vkt"));
        m_user = m_dir.filePath(QStringLiteral("User.vkt"));
        QVERIFY(makeConfig());
        QVERIFY(makeUser());
    }

    void rules()
    {
        const UserImport::Report report = UserImport::run(m_user, m_config);
        QVERIFY2(report.ok(), qPrintable(report.detail));
        QCOMPARE(report.masterCopied, 2);
        QCOMPARE(report.masterWithoutCounterpart, 1);
        QCOMPARE(report.dadosAdded, 1);
        QCOMPARE(report.dadosReplaced, 1);
        QCOMPARE(report.comandosAdded, 1);
        QCOMPARE(report.comandosKept, 1);
        QVERIFY(report.combosCopied);

        Database db(m_config);
        // Recorded slots come over; reference columns and the last reading stay as shipped.
        const auto main = db.masterRow(QStringLiteral("IP 7"), QStringLiteral("PP_VDD_MAIN"));
        QVERIFY(main);
        QCOMPARE(QStringList({main->g1, main->g2, main->g3}), QStringList({"3.998", "3.999", "4.001"}));
        QCOMPARE(QStringList({main->ci, main->reft, main->refv, main->leitura}), QStringList({"U1", "VDD_MAIN", "4.000", ""}));
        QCOMPARE(main->tipo, 1);
        const auto pp1v8 = db.masterRow(QStringLiteral("IP 7"), QStringLiteral("PP1V8"));
        QCOMPARE(QStringList({pp1v8->g1, pp1v8->g2, pp1v8->g3, pp1v8->leitura}), QStringList({"1.801", "", "1.799", "1.799"}));
        // A row with no counterpart adds nothing.
        QCOMPARE(db.masterRow(QStringLiteral("IP 6"), QStringLiteral("PP_GONE")), std::nullopt);
        QCOMPARE(db.masterRows({}).size(), 3);

        // The technician's recording wins, notes included; a new recording is added.
        QCOMPARE(db.dadosRecord(QStringLiteral("IP 7"), QStringLiteral("nand --getinfo")),
                 DadosRecord({"IP 7", "nand --getinfo", "my answer", "minha nota", "my note", "mi nota"}));
        QCOMPARE(db.dadosRecord(QStringLiteral("IP 7"), QStringLiteral("my --own"))->dados, QStringLiteral("own answer"));
        QCOMPARE(db.dadosRecord(QStringLiteral("IP 8"), QStringLiteral("bl -n"))->dados, QStringLiteral("shipped bl"));

        // Shipped commands keep their texts; the technician's own command is added.
        QCOMPARE(db.comando(QStringLiteral("nand --getinfo")),
                 ComandoRecord({"nand --getinfo", "texto novo", "new text", "texto nuevo"}));
        QCOMPARE(db.comando(QStringLiteral("my --own")), ComandoRecord({"my --own", "meu", "mine", "mío"}));

        QCOMPARE(db.combos(), QStringList({"2", "0", "a", "b", "c", "d", "e", "f", "g", "h"}));
        // Tables the import does not own stay as shipped.
        QCOMPARE(db.idioma(), quint8(2));
        QCOMPARE(db.syncbd(), QStringLiteral("0"));
        QCOMPARE(db.maskTexts(), QStringList{QStringLiteral("SERIAL")});
    }

    void twiceIsOnce()
    {
        QVERIFY(UserImport::run(m_user, m_config).ok());
        const QString once = dump(m_config);
        const UserImport::Report second = UserImport::run(m_user, m_config);
        QVERIFY(second.ok());
        QCOMPARE(dump(m_config), once);
        // The second run finds everything in place: nothing is added again.
        QCOMPARE(second.dadosAdded, 0);
        QCOMPARE(second.comandosAdded, 0);
    }

    void awkwardTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("quotes") << QStringLiteral("it's \"quoted\" ' OR '1'='1");
        QTest::newRow("NUL inside") << QStringLiteral("before") + QChar(0) + QStringLiteral("after");
        QTest::newRow("100 KB") << QString(100 * 1024, u'x');
        QTest::newRow("accents and signs") << QStringLiteral("Nº série ® — ação");
    }
    void awkwardTexts()
    {
        QFETCH(QString, text);
        QVERIFY(makeUser({{Dados, "IP X", text, text, text, "", ""}, {Comandos, text, text, "", ""}}));
        const UserImport::Report report = UserImport::run(m_user, m_config);
        QVERIFY2(report.ok(), qPrintable(report.detail));
        Database db(m_config);
        const auto record = db.dadosRecord(QStringLiteral("IP X"), text);
        QVERIFY(record);
        QCOMPARE(record->dados, text);
        QCOMPARE(db.comando(text)->info, text);
    }

    // A fault in the middle of the writes (after Master and Dados were written) undoes all.
    void failureHalfWayChangesNothing()
    {
        QVERIFY(sqlfixture::run(m_config, QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON Comandos "
                                                         "BEGIN SELECT RAISE(ABORT, 'disk full'); END")));
        const QByteArray before = digest(m_config);
        const UserImport::Report report = UserImport::run(m_user, m_config);
        QCOMPARE(report.problem, Problem::ConfigFailed);
        QVERIFY2(report.detail.contains(QStringLiteral("disk full")), qPrintable(report.detail));
        QCOMPARE(report.masterCopied, 0);
        QCOMPARE(digest(m_config), before);
    }

    // A source that cannot be imported is refused with its reason and leaves Config.vkt alone.
    void badSource_data()
    {
        QTest::addColumn<QString>("source");     // User.vkt, or another file named here
        QTest::addColumn<QByteArray>("content"); // written over User.vkt unless null
        QTest::addColumn<QString>("sql");        // or run on the built User.vkt
        QTest::addColumn<Problem>("problem");
        const QString user = QStringLiteral("User.vkt");
        QTest::newRow("empty file") << user << QByteArray("") << "" << Problem::Empty;
        QTest::newRow("text file") << user << QByteArray("Modelo;Malha;G1\n") << "" << Problem::NotADatabase;
        QTest::newRow("SQLite header, then garbage") << user << QByteArray("SQLite format 3\0", 16) + QByteArray(4000, '\x55')
                                                     << "" << Problem::Unreadable;
        QTest::newRow("NUL bytes") << user << QByteArray(64, '\0') << "" << Problem::NotADatabase;
        QTest::newRow("Jet signature only") << user << QByteArray("\x00\x01\x00\x00Standard Jet DB\x00", 20) << ""
                                            << Problem::Unreadable;
        QTest::newRow("ACE signature only") << user << QByteArray("\x00\x01\x00\x00Standard ACE DB\x00", 20) << ""
                                            << Problem::Unreadable;
        QTest::newRow("table missing") << user << QByteArray() << "DROP TABLE Combos" << Problem::OtherSchema;
        QTest::newRow("column missing") << user << QByteArray() << "ALTER TABLE Master DROP COLUMN G2" << Problem::OtherSchema;
        QTest::newRow("missing file") << "none.vkt" << QByteArray() << "" << Problem::Missing;
        QTest::newRow("the same file") << "Config.vkt" << QByteArray() << "" << Problem::SameFile;
        QTest::newRow("Access file of another schema") << sqlfixture::accessFile() << QByteArray() << ""
                                                       << Problem::OtherSchema;
    }
    void badSource()
    {
        QFETCH(QString, source);
        QFETCH(QByteArray, content);
        QFETCH(QString, sql);
        if (source.startsWith(u'/') && !QFile::exists(source))
            QSKIP("the shared Access fixture is not beside the project");
        if (!sql.isEmpty())
            QVERIFY(sqlfixture::run(m_user, sql));
        if (!content.isNull()) {
            QFile f(m_user);
            QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
            f.write(content);
        }
        const QByteArray before = digest(m_config);
        const UserImport::Report report = UserImport::run(QDir::isAbsolutePath(source) ? source : m_dir.filePath(source), m_config);
        QTEST(report.problem, "problem");
        QVERIFY(!report.detail.isEmpty());
        QVERIFY(!report.messageKey().isEmpty());
        QCOMPARE(digest(m_config), before);
    }

    void lockedFiles()
    {
        // Another program holding a write lock on either file.
        for (const QString &locked : {m_user, m_config}) {
            sqlfixture::Raw other(locked);
            QVERIFY(other.exec(QStringLiteral("BEGIN EXCLUSIVE")));
            QCOMPARE(UserImport::run(m_user, m_config).problem, locked == m_user ? Problem::Locked : Problem::ConfigFailed);
            QVERIFY(other.exec(QStringLiteral("ROLLBACK")));
        }
        QVERIFY(!dump(m_config).contains(QStringLiteral("my answer")));
    }

    void everyProblemHasItsText()
    {
        for (Problem p : {Problem::Missing, Problem::Empty, Problem::NotADatabase, Problem::Unreadable, Problem::Locked,
                          Problem::OtherSchema, Problem::SameFile, Problem::ConfigFailed}) {
            UserImport::Report report;
            report.problem = p;
            for (quint8 idioma : {1, 2, 3})
                QVERIFY2(!Texts::Traduz(report.messageKey(), idioma).isEmpty(), qPrintable(report.messageKey()));
        }
    }
};

QTEST_MAIN(TestUserImport)
#include "tst_userimport.moc"
