// The NAND, additional-tests and battery screens as a technician uses them, on the simulated
// phone through the real serial link, the main window's menu and the shipped Config.vkt; then
// the command line's live judges on the same phones.

#include "AutoComparador.h"
#include "ConsoleTextEdit.h"
#include "DesktopProgram.h"
#include "FakeShell.h"
#include "Screens.h"
#include "SimProcess.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QtTest>

namespace {

struct CliRun
{
    int exitCode = -1;
    QJsonObject json;
    QString errors;
};

CliRun runCli(const QStringList &args)
{
    QProcess cli;
    cli.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"), args);
    CliRun run;
    if (!cli.waitForFinished(60000)) {
        cli.kill();
        cli.waitForFinished();
        run.errors = QStringLiteral("vekto-cli did not finish");
        return run;
    }
    run.exitCode = cli.exitStatus() == QProcess::NormalExit ? cli.exitCode() : -1;
    run.json = QJsonDocument::fromJson(cli.readAllStandardOutput()).object();
    run.errors = QString::fromUtf8(cli.readAllStandardError());
    return run;
}

QString label(QWidget *screen, const char *name)
{
    return screen->findChild<QLabel *>(QString::fromLatin1(name))->text();
}

QString raw(QWidget *screen, const char *name)
{
    return screen->findChild<ConsoleTextEdit *>(QString::fromLatin1(name))->rawText();
}

// The recorded side shows a good board's answer to the same test (prompt counters aside).
bool matchesRecording(QWidget *screen, const QString &configPath)
{
    return AutoComparador::evaluate(raw(screen, "txtDados"), raw(screen, "txtComparador"),
                                    Database(configPath).maskTexts(), false)
           == AutoComparador::Mark::Shown;
}

void click(QWidget *screen, const char *name)
{
    screen->findChild<QPushButton *>(QString::fromLatin1(name))->click();
}

} // namespace

class TestNandSim : public QObject
{
    Q_OBJECT

    ConfigCopy m_config;

    // The program connected to `sim`, with the menu a technician gets.
    static bool connect(DesktopProgram &program, FakeShell &shell, SimProcess &sim)
    {
        Screens::registerAll(*program.inicial, shell);
        program.inicial->resize(1366, 768);
        program.inicial->show();
        if (!program.selectPort(sim.port()))
            return false;
        program.connectButton()->click();
        return QTest::qWaitFor([&] { return program.inicial->status() == QLatin1String("Verde") && program.flag() == "1"; },
                               20000);
    }

private slots:
    void initTestCase()
    {
        if (!SimProcess::available() || !QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/vekto-cli")))
            QSKIP("vekto-sim, vekto-cli or Config.vkt was not built");
        QVERIFY(m_config.ok());
    }

    void goodIp7()
    {
        SimProcess sim;
        const QString started = sim.start(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        {
            DesktopProgram program(m_config.path());
            FakeShell shell;
            QVERIFY(connect(program, shell, sim));
            QCOMPARE(program.session.modelo(), QStringLiteral("IP 7"));

            // The NAND screen reads the size once on opening, then each test on its button.
            program.find<QPushButton>("Botoes_7")->click();
            QWidget *nand = program.inicial->screen(QStringLiteral("Nand"));
            QVERIFY(nand);
            QTRY_COMPARE_WITH_TIMEOUT(label(nand, "lbNand"), QStringLiteral("NAND 128 GB"), 20000);
            for (const char *button : {"btBl_0", "btBl_3"}) {
                QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
                click(nand, button);
                QTRY_COMPARE_WITH_TIMEOUT(label(nand, "lbStatus"), QStringLiteral("COMUNICAÇÃO OK"), 30000);
            }
            QVERIFY(raw(nand, "txtDados").size() >= 7001);

            // The DRAM test beside the recording of a good IP 7, and the battery screen from there.
            program.find<QPushButton>("Botoes_17")->click();
            QWidget *outros = program.inicial->screen(QStringLiteral("Outros"));
            QVERIFY(outros);
            QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
            click(outros, "btBl_5");
            QTRY_COMPARE_WITH_TIMEOUT(label(outros, "lbStatus"), QStringLiteral("COMUNICAÇÃO OK"), 30000);
            QVERIFY(raw(outros, "txtDados").contains(QStringLiteral("testmemory: Passed")));
            QVERIFY(matchesRecording(outros, m_config.path()));

            QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
            click(outros, "btBateria");
            QWidget *bateria = program.inicial->screen(QStringLiteral("Bateria"));
            QVERIFY(bateria);
            QVERIFY(!program.find<QPushButton>("Botoes_0"));
            QTRY_VERIFY_WITH_TIMEOUT(raw(bateria, "txtDados").contains(QStringLiteral("StateOfCharge")), 20000);
            QVERIFY(matchesRecording(bateria, m_config.path()));
            QVERIFY2(program.dialogs.shown.isEmpty(), qPrintable(program.dialogs.shown.join(u'\n')));

            QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
            program.connectButton()->click();
            QCOMPARE(program.flag(), QStringLiteral("0"));
        }

        // The same phone from the command line, model recognised as the connect button does.
        CliRun size = runCli({"run", "nand-size", "--port", sim.port(), "--model", "auto", "--db", m_config.path(),
                              "--json"});
        QVERIFY2(size.exitCode == 0, qPrintable(size.errors));
        QCOMPARE(size.json.value("model").toString(), QStringLiteral("IP 7"));
        QCOMPARE(size.json.value("rows")[0].toObject().value("caption").toString(), QStringLiteral("NAND 128 GB"));
        CliRun dram = runCli({"run", "outros", "--mode", "6", "--port", sim.port(), "--model", "IP 7", "--db",
                              m_config.path(), "--json"});
        QVERIFY2(dram.exitCode == 0, qPrintable(dram.errors));
        QCOMPARE(dram.json.value("status").toString(), QStringLiteral("COMUNICAÇÃO OK"));
    }

    // The oldest boards lack the NAND commands: said in the session language, never judged.
    void ip6NotFound()
    {
        SimProcess sim;
        const QString started = sim.start(QStringLiteral("IP 6"), QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));
        {
            QVERIFY(Database(m_config.path()).setIdioma(2));
            DesktopProgram program(m_config.path());
            FakeShell shell;
            QVERIFY(connect(program, shell, sim));
            QWidget *nand = program.inicial->openScreen(QStringLiteral("Nand"));
            QTRY_COMPARE_WITH_TIMEOUT(label(nand, "lbNand"), QStringLiteral("NAND Not available for 6/6P"), 20000);
            QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
            click(nand, "btBl_2");
            QTRY_COMPARE_WITH_TIMEOUT(raw(nand, "txtDados"), QStringLiteral("Not available for 6/6P"), 30000);
            QVERIFY(label(nand, "lbStatus").isEmpty());
            QVERIFY(!nand->findChild<QLabel *>(QStringLiteral("ok"))->isVisibleTo(nand));
            QVERIFY(!nand->findChild<QLabel *>(QStringLiteral("no"))->isVisibleTo(nand));
            QVERIFY(Database(m_config.path()).setIdioma(1));
            QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
            program.connectButton()->click();
        }
        CliRun uid = runCli({"run", "nand-status", "--mode", "0", "--port", sim.port(), "--model", "IP 6", "--db",
                             m_config.path(), "--json"});
        QCOMPARE(uid.exitCode, 1);
        QVERIFY(uid.json.value("status").isNull());
        QCOMPARE(uid.json.value("extra").toObject().value("replacement").toString(),
                 QStringLiteral("Não disponível para 6/6P"));
    }
};

QTEST_MAIN(TestNandSim)
#include "tst_nand_sim.moc"
