// The board check without a phone: how a serial number is read, how the verdicts of a whole
// check add up, the history in a real SQLite file (old files, quotes, a file that refuses the
// write) and the run's own rules (a step given up, a cable pulled half-way).

#include "BoardCheck.h"
#include "CheckHistory.h"
#include "CheckSteps.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "DatabaseBuilder.h"
#include "FakeSerialPort.h"
#include "OutrosEngine.h"
#include "Session.h"

#include <QSignalSpy>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

#include <unistd.h>

Q_DECLARE_METATYPE(CheckStepResult)

namespace {

const QString Prompt = QStringLiteral("[0000A1B2:00C3D4E5] :-) ");

QString console(const QString &command, const QString &lines)
{
    return QStringLiteral("\r\n") + command + QStringLiteral("\r\r\n") + QString(lines).replace(u'\n', QLatin1String("\r\n"))
        + Prompt;
}

JudgedRow row(const QString &name, Verdict v)
{
    return {name, QJsonValue(), name + QStringLiteral(" value"), QJsonValue(), v};
}

CheckStepResult step(const QString &key, QList<JudgedRow> rows, bool answered = true)
{
    return {key, {}, answered ? CheckStepResult::Outcome::Judged : CheckStepResult::Outcome::NoAnswer, rows, {}, 0};
}

} // namespace

class TestBoardCheck : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    QString freshDatabase(const QString &name, bool withHistory = true)
    {
        const QString path = m_dir.filePath(name);
        QString schemaPath = QStringLiteral(VEKTO_SOURCE_DIR "/data/schema.sql");
        if (!withHistory) {
            // A file made before the history existed: the schema up to its first table.
            QFile schema(schemaPath);
            if (!schema.open(QIODevice::ReadOnly))
                return {};
            QString text = QString::fromUtf8(schema.readAll());
            text.truncate(text.indexOf(QLatin1String("CREATE TABLE Checagem")));
            schemaPath = m_dir.filePath(name + QStringLiteral(".sql"));
            QFile old(schemaPath);
            if (!old.open(QIODevice::WriteOnly))
                return {};
            old.write(text.toUtf8());
        }
        QString error;
        return DatabaseBuilder::build(schemaPath, {}, path, &error) ? path : QString();
    }

private slots:
    void serialNumber_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("serial");
        const QString c = CheckSteps::serialCommand();
        QTest::newRow("bare value") << console(c, QStringLiteral("F1714605E3BF\n")) << QStringLiteral("F1714605E3BF");
        QTest::newRow("key and value") << console(c, QStringLiteral("SrNm  C39TK0ABHG7F\n")) << QStringLiteral("C39TK0ABHG7F");
        QTest::newRow("quotes kept") << console(c, QStringLiteral("F17'\"X\n")) << QStringLiteral("F17'\"X");
        QTest::newRow("unknown command") << console(c, QStringLiteral("Command \"syscfg\" not found\n")) << QString();
        QTest::newRow("key missing") << console(c, QStringLiteral("Error: key SrNm not found\n")) << QString();
        QTest::newRow("only echo and prompt") << console(c, QString()) << QString();
        QTest::newRow("silent") << QStringLiteral("\r\n") << QString();
    }
    void serialNumber()
    {
        QFETCH(QString, answer);
        QFETCH(QString, serial);
        QCOMPARE(CheckSteps::serialFromAnswer(answer), serial);
    }

    // A talkative phone repeats its log lines between the properties; each property is one row.
    void batteryPropertiesListedOnce()
    {
        const QString noise = QStringLiteral("AppleARMPMU: event 1 charger poll\n");
        const QList<JudgedRow> rows = CheckSteps::batteryRows(console(
            OutrosEngine::bateriaCommand(), QStringLiteral("Voltage: 3854 mV\n") + noise + noise
                                                + QStringLiteral("Current: -285 mA\nVoltage: 3853 mV\n") + noise));
        QStringList shown;
        for (const JudgedRow &r : rows) {
            shown << r.name + u'=' + r.caption;
            QCOMPARE(r.verdict, Verdict::None);
        }
        QCOMPARE(shown, (QStringList{QStringLiteral("Voltage=3854 mV"), QStringLiteral("AppleARMPMU=event 1 charger poll"),
                                     QStringLiteral("Current=-285 mA")}));
    }

    void verdictOfTheWholeCheck_data()
    {
        QTest::addColumn<QList<CheckStepResult>>("steps");
        QTest::addColumn<int>("end");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("first"); // step and row listed first; "-" for a step without answer
        const auto pass = row(QStringLiteral("PP_CPU"), Verdict::Pass);
        const auto fail = row(QStringLiteral("PP_GPU"), Verdict::Fail);
        const auto none = row(QStringLiteral("Voltage"), Verdict::None);
        QTest::newRow("all pass") << QList{step("rails", {pass}), step("bateria", {none})} << 0 << 0 << QStringLiteral("rails PP_CPU");
        QTest::newRow("failure listed first") << QList{step("rails", {pass}), step("i2c2", {pass, fail})} << 0 << 1
                                              << QStringLiteral("i2c2 PP_GPU");
        QTest::newRow("no answer listed first") << QList{step("rails", {pass}), step("dram", {}, false)} << 0 << 1
                                                << QStringLiteral("dram -");
        QTest::newRow("pulled cable") << QList{step("rails", {pass})} << int(CheckResult::End::Lost) << 1 << QStringLiteral("rails PP_CPU");
        QTest::newRow("cancelled") << QList{step("rails", {pass})} << int(CheckResult::End::Cancelled) << 1
                                   << QStringLiteral("rails PP_CPU");
        QTest::newRow("nothing judged") << QList{step("bateria", {none})} << 0 << 1 << QStringLiteral("bateria Voltage");
    }
    void verdictOfTheWholeCheck()
    {
        QFETCH(QList<CheckStepResult>, steps);
        QFETCH(int, end);
        QFETCH(int, exitCode);
        QFETCH(QString, first);
        CheckResult r;
        r.steps = steps;
        r.end = CheckResult::End(end);
        QCOMPARE(r.exitCode(), exitCode);
        const CheckLine line = r.failuresFirst().first();
        QCOMPARE(line.step->key + u' ' + (line.row ? line.row->name : QStringLiteral("-")), first);
        QCOMPARE(r.toJson().value(QStringLiteral("failed")).toBool(), r.anyFailed());
    }

    void historyKeepsAWholeCheck_data()
    {
        QTest::addColumn<bool>("oldFile");
        QTest::addColumn<QString>("serial");
        QTest::newRow("current file") << false << QStringLiteral("F1714605E3BF");
        QTest::newRow("file from before the history") << true << QStringLiteral("F17'; DROP TABLE Checagem; --\"");
        QTest::newRow("unknown serial") << false << CheckSteps::unknownSerial();
    }
    void historyKeepsAWholeCheck()
    {
        QFETCH(bool, oldFile);
        QFETCH(QString, serial);
        const QString path = freshDatabase(QStringLiteral("h%1.vkt").arg(QTest::currentDataTag()).remove(u' '), !oldFile);
        QVERIFY(!path.isEmpty());
        if (oldFile) {
            // Stored straight into it: the tables arrive with the check.
            QVERIFY(CheckHistory::checks(path, serial).isEmpty());
        }
        CheckResult r;
        r.model = QStringLiteral("IP 7");
        r.serial = serial;
        r.version = QStringLiteral("1.81");
        r.when = QDateTime(QDate(2026, 3, 4), QTime(10, 20, 30));
        r.end = CheckResult::End::Lost;
        r.steps = {step("rails", {row(QStringLiteral("PP_CPU"), Verdict::Pass), row(QStringLiteral("PP_GPU"), Verdict::Fail)}),
                   step("dram", {}, false), step("bateria", {row(QStringLiteral("Voltage"), Verdict::None)})};
        QCOMPARE(CheckHistory::store(path, r), QString());
        QVERIFY(r.storedId > 0);

        const QList<CheckRecord> list = CheckHistory::checks(path, serial);
        QCOMPARE(list.size(), 1);
        QCOMPARE(list.first().completa, false);
        const std::optional<CheckResult> back = CheckHistory::load(path, r.storedId);
        QVERIFY(back);
        QCOMPARE(back->serial, serial);
        QCOMPARE(back->when, r.when);
        QCOMPARE(back->toRecord().rows, r.toRecord().rows);
        QCOMPARE(back->noAnswerCount(), 1);
        QVERIFY(back->anyFailed());
    }

    void refusedWriteStoresNothing_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::newRow("locked by another program") << QStringLiteral("locked");
        QTest::newRow("read-only file") << QStringLiteral("readonly");
        QTest::newRow("missing file") << QStringLiteral("missing");
    }
    void refusedWriteStoresNothing()
    {
        QFETCH(QString, kind);
        if (kind == QLatin1String("readonly") && ::geteuid() == 0)
            QSKIP("running as root: file permissions do not stop writes");
        const QString file = QStringLiteral("refused-%1.vkt").arg(kind);
        const QString path = kind == QLatin1String("missing") ? m_dir.filePath(file) : freshDatabase(file);
        QVERIFY(!path.isEmpty());
        CheckResult r;
        r.serial = QStringLiteral("X1");
        r.steps = {step("rails", {row(QStringLiteral("PP_CPU"), Verdict::Pass), row(QStringLiteral("PP_GPU"), Verdict::Fail)})};
        QString problem;
        {
            QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), kind);
            other.setDatabaseName(path);
            if (kind == QLatin1String("locked")) {
                QVERIFY(other.open());
                QVERIFY(QSqlQuery(other).exec(QStringLiteral("BEGIN IMMEDIATE")));
            } else if (kind == QLatin1String("readonly")) {
                QVERIFY(QFile::setPermissions(path, QFileDevice::ReadOwner));
            }
            problem = CheckHistory::store(path, r);
            if (other.isOpen())
                QSqlQuery(other).exec(QStringLiteral("ROLLBACK"));
            other.close();
        }
        QSqlDatabase::removeDatabase(kind);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        QVERIFY2(problem.contains(path), qPrintable(problem));
        QCOMPARE(r.storedId, 0);
        QVERIFY(CheckHistory::checks(path, QStringLiteral("X1")).isEmpty());
        // A missing file is not created by storing into it.
        QCOMPARE(QFile::exists(path), kind != QLatin1String("missing"));
    }

    void comparisonFindsTheSameRow()
    {
        CheckResult before;
        before.steps = {step("rails", {row(QStringLiteral("PP_CPU"), Verdict::Fail)}),
                        step("i2c2", {row(QStringLiteral("x74"), Verdict::Pass)})};
        const CheckComparison c(before);
        QVERIFY(c.row(QStringLiteral("rails"), QStringLiteral("PP_CPU")));
        QCOMPARE(c.row(QStringLiteral("rails"), QStringLiteral("PP_CPU"))->verdict, Verdict::Fail);
        // The same name in another step is another row.
        QVERIFY(!c.row(QStringLiteral("i2c2"), QStringLiteral("PP_CPU")));
        QVERIFY(!c.row(QStringLiteral("rails"), QStringLiteral("x74")));
    }

    // The run itself, on a scripted line: a step that is given up, and a cable pulled mid-check.
    void givenUpStepIsNoAnswerAndTheCheckGoesOn()
    {
        Session session(QStringLiteral("unused.vkt"));
        FakeSerialPort port;
        QVERIFY(port.open(QStringLiteral("fake")) == SerialPort::NoError);
        ConsoleExchange exchange(session, port);
        session.setConnectionFlag(QStringLiteral("1"));
        BoardCheck check(session, exchange);
        QVERIFY(check.start(QStringLiteral("IP 7"), QStringLiteral("unused.vkt")));
        QCOMPARE(port.written.size(), 1);
        QCOMPARE(port.written.first(), CheckSteps::serialCommand().toUtf8() + '\r');

        check.onStepTimeout();
        QTRY_COMPARE(port.written.size(), 2);
        QCOMPARE(port.written.last(), QByteArray("pmuadc --read all\r"));
        QCOMPARE(check.result().steps.size(), 1);
        QCOMPARE(check.result().steps.first().outcome, CheckStepResult::Outcome::NoAnswer);
        QVERIFY(check.running());

        QSignalSpy finished(&check, &BoardCheck::finished);
        port.pull();
        session.setConnectionFlag(QStringLiteral("0")); // what the connection does on a lost port
        QTRY_COMPARE(finished.size(), 1);
        QCOMPARE(check.result().end, CheckResult::End::Lost);
        // The answer the cable cut is not a step's answer.
        QCOMPARE(check.result().steps.size(), 1);
        QCOMPARE(check.result().exitCode(), 1);
        QVERIFY(!check.running());
    }

    void refusesWhenThePhoneIsNotReady()
    {
        Session session(QStringLiteral("unused.vkt"));
        FakeSerialPort port;
        ConsoleExchange exchange(session, port);
        BoardCheck check(session, exchange);
        QVERIFY(!check.start(QStringLiteral("IP 7"), QStringLiteral("unused.vkt")));
        QVERIFY(port.written.isEmpty());
    }
};

QTEST_GUILESS_MAIN(TestBoardCheck)
#include "tst_boardcheck.moc"
