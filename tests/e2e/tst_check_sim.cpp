// The board check from a terminal against simulated phones, as a technician runs it: a good
// board passes whole and lands in its history twice, a low rail and a missing I2C device are
// listed first with their net or connector, a pulled cable leaves an incomplete check stored
// whole, the PDF report names the failure, and bad input gets a clear word and exit code 2.

#include "CheckHistory.h"
#include "CheckReport.h"
#include "CliRun.h"
#include "DesktopProgram.h"
#include "FakeShell.h"
#include "Screens.h"
#include "SimProcess.h"
#include "Texts.h"

#include <QComboBox>
#include <QJsonArray>
#include <QProgressBar>
#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QTreeWidget>
#include <QtTest>

#include <unistd.h>

namespace {

// The first row the check lists as failed: its step, name and the step's detail.
QJsonObject firstFailure(const QJsonObject &check)
{
    for (const QJsonValue &s : check.value(QStringLiteral("steps")).toArray())
        for (const QJsonValue &r : s.toObject().value(QStringLiteral("rows")).toArray())
            if (r.toObject().value(QStringLiteral("verdict")).toString() == QLatin1String("fail"))
                return QJsonObject{{QStringLiteral("step"), s.toObject().value(QStringLiteral("step"))},
                                   {QStringLiteral("name"), r.toObject().value(QStringLiteral("name"))},
                                   {QStringLiteral("detail"), s.toObject().value(QStringLiteral("detail"))}};
    return {};
}

int rowCount(const QJsonObject &check)
{
    int n = 0;
    for (const QJsonValue &s : check.value(QStringLiteral("steps")).toArray())
        n += qMax(1, int(s.toObject().value(QStringLiteral("rows")).toArray().size()));
    return n;
}

} // namespace

class TestCheckSim : public QObject
{
    Q_OBJECT

    ConfigCopy m_config;
    SimProcess m_good;
    QTemporaryDir m_dir;
    QString m_serial;

    CliRun check(const QString &port, const QStringList &more = {})
    {
        return runCli(QStringList{QStringLiteral("check"), QStringLiteral("--port"), port, QStringLiteral("--model"),
                                  QStringLiteral("auto"), QStringLiteral("--db"), m_config.path(), QStringLiteral("--json")}
                      + more);
    }

    int storedChecks()
    {
        return int(CheckHistory::checks(m_config.path(), m_serial).size());
    }

private slots:
    void initTestCase()
    {
        if (!SimProcess::available() || !QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")))
            QSKIP("vekto-sim, vekto-cli or Config.vkt was not built");
        QVERIFY(m_config.ok());
        const QString started = m_good.start(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
    }

    void goodBoardPassesWholeAndIsStoredTwice()
    {
        const QString pdf = m_dir.filePath(QStringLiteral("good.pdf"));
        const CliRun first = check(m_good.port(), {QStringLiteral("--report"), pdf});
        QVERIFY2(first.exitCode == 0, qPrintable(first.describe()));
        QCOMPARE(first.json.value(QStringLiteral("complete")).toBool(), true);
        QCOMPARE(first.json.value(QStringLiteral("noAnswer")).toInt(), 0);
        QCOMPARE(first.json.value(QStringLiteral("stepsRun")), first.json.value(QStringLiteral("stepsTotal")));
        QVERIFY(firstFailure(first.json).isEmpty());
        m_serial = first.json.value(QStringLiteral("serial")).toString();
        QVERIFY2(m_serial.startsWith(QLatin1String("F17")), qPrintable(m_serial));
        // One progress line per step, numbered against the total.
        const int total = first.json.value(QStringLiteral("stepsTotal")).toInt();
        QVERIFY2(first.errors.contains(QStringLiteral("[%1/%1]").arg(total)), qPrintable(first.errors));
        QVERIFY(QFileInfo(pdf).size() > 0);

        const CliRun second = check(m_good.port());
        QCOMPARE(second.exitCode, 0);
        const CliRun history = runCli({QStringLiteral("history"), QStringLiteral("--serial"), m_serial,
                                       QStringLiteral("--db"), m_config.path()});
        QCOMPARE(history.exitCode, 0);
        QCOMPARE(history.text.count(QLatin1String("\tcomplete\tpass")), 2);
    }

    void faultIsListedFirst_data()
    {
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QString>("step");
        QTest::addColumn<bool>("withDetail");
        QTest::newRow("low rail") << QStringLiteral("low-rail") << QStringLiteral("rails") << false;
        QTest::newRow("missing I2C device") << QStringLiteral("i2c-missing") << QStringLiteral("i2c2") << true;
    }
    void faultIsListedFirst()
    {
        QFETCH(QString, profile);
        QFETCH(QString, step);
        QFETCH(bool, withDetail);
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 7"), profile);
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const QString pdf = m_dir.filePath(profile + QStringLiteral(".pdf"));
        const CliRun run = check(phone.port(), {QStringLiteral("--report"), pdf});
        QVERIFY2(run.exitCode == 1, qPrintable(run.describe()));
        QCOMPARE(run.json.value(QStringLiteral("complete")).toBool(), true);
        const QJsonObject failure = firstFailure(run.json);
        QCOMPARE(failure.value(QStringLiteral("step")).toString(), step);
        QCOMPARE(!failure.value(QStringLiteral("detail")).toString().isEmpty(), withDetail);

        // The text form lists the failure before any pass.
        const CliRun text = runCli({QStringLiteral("check"), QStringLiteral("--port"), phone.port(),
                                    QStringLiteral("--model"), QStringLiteral("IP 7"), QStringLiteral("--db"),
                                    m_config.path()});
        const QStringList lines = text.text.split(u'\n', Qt::SkipEmptyParts);
        QVERIFY2(lines.value(1).endsWith(QLatin1String("fail")) || lines.value(1).contains(QLatin1String("fail  (")),
                 qPrintable(text.text));
        QVERIFY(lines.value(1).contains(failure.value(QStringLiteral("name")).toString()));

        // The report, read back as text by pdftotext, names the failing net or device.
        const QString pdftotext = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
        if (pdftotext.isEmpty())
            QSKIP("pdftotext is not installed (scripts/install-deps.sh installs it)");
        QProcess extract;
        extract.start(pdftotext, {pdf, QStringLiteral("-")});
        QVERIFY(extract.waitForFinished(30000));
        const QString pdfText = QString::fromUtf8(extract.readAllStandardOutput());
        QVERIFY2(pdfText.contains(failure.value(QStringLiteral("name")).toString()), qPrintable(pdfText.left(2000)));
        QVERIFY(pdfText.contains(m_serial));
        const qsizetype failureAt = pdfText.indexOf(failure.value(QStringLiteral("name")).toString());
        QVERIFY2(failureAt < pdfText.indexOf(QLatin1String("APROVADO")), "the failure comes before the passes");
    }

    void repairShowsBeforeAndAfter()
    {
        // Checks of this board, newest first: the fault checks above, then the two good ones.
        const QList<CheckRecord> list = CheckHistory::checks(m_config.path(), m_serial);
        QVERIFY(list.size() >= 4);
        std::optional<CheckResult> faulty;
        std::optional<CheckResult> good;
        for (const CheckRecord &c : list) {
            const auto loaded = CheckHistory::load(m_config.path(), c.id);
            QVERIFY(loaded);
            if (!faulty && loaded->anyFailed() && loaded->steps.value(1).anyFailed())
                faulty = loaded;
            if (!loaded->anyFailed())
                good = loaded;
        }
        QVERIFY(faulty && good);
        // The technician repairs the low rail and compares with the check from before the repair.
        const CheckComparison before(*faulty);
        int compared = 0;
        for (const JudgedRow &r : good->steps.value(1).rows) {
            const std::optional<JudgedRow> earlier = before.row(QStringLiteral("rails"), r.name);
            QVERIFY2(earlier, qPrintable(r.name));
            ++compared;
            if (earlier->verdict == Verdict::Fail) {
                QVERIFY(earlier->caption != r.caption);
                QCOMPARE(r.verdict, Verdict::Pass);
            }
        }
        QVERIFY(compared > 0);
    }

    void pulledCableLeavesAnIncompleteCheckStoredWhole()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 7"), QStringLiteral("unplug"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const int before = storedChecks();
        const CliRun run = check(phone.port());
        QVERIFY2(run.exitCode == 1, qPrintable(run.describe()));
        QCOMPARE(run.json.value(QStringLiteral("complete")).toBool(), false);
        QCOMPARE(run.json.value(QStringLiteral("status")).toString(), QStringLiteral("lost"));
        QVERIFY(run.json.value(QStringLiteral("stepsRun")).toInt() < run.json.value(QStringLiteral("stepsTotal")).toInt());
        QVERIFY(run.errors.contains(QLatin1String("incomplete")));
        QCOMPARE(storedChecks(), before + 1);
        const std::optional<CheckResult> stored =
            CheckHistory::load(m_config.path(), qint64(run.json.value(QStringLiteral("storedId")).toDouble()));
        QVERIFY(stored);
        QVERIFY(!stored->complete());
        QCOMPARE(int(stored->toRecord().rows.size()), rowCount(run.json));
    }

    void silentPhoneGivesNoAnswerAtEveryStep()
    {
        SimProcess phone;
        const QString started = phone.start(QStringLiteral("IP 7"), QStringLiteral("silent"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        const CliRun run = runCli({QStringLiteral("check"), QStringLiteral("--port"), phone.port(), QStringLiteral("--model"),
                                   QStringLiteral("IP 7"), QStringLiteral("--db"), m_config.path(), QStringLiteral("--json")});
        QVERIFY2(run.exitCode == 1, qPrintable(run.describe()));
        QCOMPARE(run.json.value(QStringLiteral("judged")).toBool(), false);
        QCOMPARE(run.json.value(QStringLiteral("noAnswer")).toInt(), run.json.value(QStringLiteral("stepsTotal")).toInt());
        QCOMPARE(run.json.value(QStringLiteral("serial")).toString(), QStringLiteral("unknown"));
        QVERIFY(!CheckHistory::checks(m_config.path(), QStringLiteral("unknown")).isEmpty());
    }

    void databaseRefusingTheCheckStoresNothing_data()
    {
        QTest::addColumn<bool>("readOnly");
        QTest::newRow("write lock of another program") << false;
        QTest::newRow("read-only file") << true;
    }
    void databaseRefusingTheCheckStoresNothing()
    {
        QFETCH(bool, readOnly);
        if (readOnly && ::geteuid() == 0)
            QSKIP("running as root: file permissions do not stop writes");
        const int before = storedChecks();
        const QString name = QStringLiteral("other-program");
        {
            QSqlDatabase other = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            other.setDatabaseName(m_config.path());
            QVERIFY(other.open());
            if (!readOnly)
                QVERIFY(QSqlQuery(other).exec(QStringLiteral("BEGIN IMMEDIATE")));
            else
                QVERIFY(QFile::setPermissions(m_config.path(), QFileDevice::ReadOwner));
            const CliRun run = check(m_good.port());
            QFile::setPermissions(m_config.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner);
            QVERIFY(QSqlQuery(other).exec(QStringLiteral("ROLLBACK")) || readOnly);
            other.close();
            QVERIFY2(run.exitCode == 2, qPrintable(run.describe()));
            QVERIFY2(run.errors.contains(QLatin1String("not stored")) && run.errors.contains(m_config.path()),
                     qPrintable(run.errors));
            // The check itself still ran whole and says so.
            QCOMPARE(run.json.value(QStringLiteral("complete")).toBool(), true);
        }
        QSqlDatabase::removeDatabase(name);
        QCOMPARE(storedChecks(), before);
    }

    // The screen on the same good board: everything passes, and choosing the low-rail check from
    // before shows the failing rail's old value beside its good one.
    void screenShowsTheCheckBesideAnEarlierOne()
    {
        DesktopProgram program(m_config.path());
        FakeShell shell;
        Screens::registerAll(*program.inicial, shell);
        program.inicial->show();
        QVERIFY(program.selectPort(m_good.port()));
        program.connectButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
        QTRY_COMPARE_WITH_TIMEOUT(program.inicial->status(), QStringLiteral("Verde"), 20000);
        program.find<QPushButton>("Botoes_18")->click();
        auto *run = program.find<QPushButton>("btChecar");
        auto *report = program.find<QPushButton>("btRelatorio");
        auto *tree = program.find<QTreeWidget>("twResultados");
        auto *earlier = program.find<QComboBox>("cbAnterior");
        QVERIFY(run && report && tree && earlier);
        QTRY_VERIFY(run->isEnabled());
        run->click();
        QVERIFY(program.find<QPushButton>("btCancelar")->isEnabled());
        QTRY_VERIFY_WITH_TIMEOUT(report->isEnabled(), 120000);
        auto *bar = program.find<QProgressBar>("pbEtapas");
        QCOMPARE(bar->value(), bar->maximum());
        QCOMPARE(tree->topLevelItem(0)->text(0), Texts::Traduz(QStringLiteral("Nenhuma falha"), 1));

        const QColor failColour = CheckReport::verdictColour(Verdict::Fail);
        const QString passWord = CheckReport::verdictWord(Verdict::Pass, 1);
        bool sideBySide = false;
        for (int i = 1; i < earlier->count() && !sideBySide; ++i) {
            earlier->setCurrentIndex(i);
            QVERIFY(!tree->isColumnHidden(5));
            for (int top = 0; top < tree->topLevelItemCount(); ++top)
                for (int c = 0; c < tree->topLevelItem(top)->childCount(); ++c) {
                    const QTreeWidgetItem *item = tree->topLevelItem(top)->child(c);
                    if (item->background(5).color() == failColour && item->text(4) == passWord
                        && item->text(5) != item->text(2))
                        sideBySide = true;
                }
        }
        QVERIFY2(sideBySide, "no earlier check showed a failed value beside a passing one");
        const QString html = m_dir.filePath(QStringLiteral("screen.html"));
        program.dialogs.saveNames.push_back(html);
        report->click();
        QFile saved(html);
        QVERIFY(saved.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(saved.readAll());
        QVERIFY(text.contains(m_serial));
        QVERIFY(text.contains(Texts::Traduz(QStringLiteral("Checagem anterior"), 1)));
        earlier->setCurrentIndex(0);
        QVERIFY(tree->isColumnHidden(5));
    }

    void badInput_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("message");
        QTest::newRow("no port") << QStringList{QStringLiteral("check"), QStringLiteral("--model"), QStringLiteral("IP 7")}
                                 << QStringLiteral("--port and --model");
        QTest::newRow("report of another kind")
            << QStringList{QStringLiteral("check"), QStringLiteral("--port"), QStringLiteral("/dev/null"),
                           QStringLiteral("--model"), QStringLiteral("IP 7"), QStringLiteral("--report"),
                           QStringLiteral("r.txt")}
            << QStringLiteral(".html or .pdf");
        QTest::newRow("missing database")
            << QStringList{QStringLiteral("check"), QStringLiteral("--port"), QStringLiteral("/dev/null"),
                           QStringLiteral("--model"), QStringLiteral("IP 7"), QStringLiteral("--db"),
                           QStringLiteral("/nonexistent/Config.vkt")}
            << QStringLiteral("/nonexistent/Config.vkt");
        QTest::newRow("history without serial") << QStringList{QStringLiteral("history")} << QStringLiteral("--serial");
        QTest::newRow("unknown option") << QStringList{QStringLiteral("history"), QStringLiteral("--serial"),
                                                       QStringLiteral("X"), QStringLiteral("--colour")}
                                        << QStringLiteral("colour");
    }
    void badInput()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, message);
        const CliRun run = runCli(args);
        QVERIFY2(run.exitCode == 2, qPrintable(run.describe()));
        QVERIFY2(run.errors.contains(message), qPrintable(run.errors));
    }
};

QTEST_MAIN(TestCheckSim)
#include "tst_check_sim.moc"
