// The screens of the main window's menu as a technician uses them, on the simulated phone
// through the real serial link and the shipped Config.vkt: the I2C automatic run on a board that
// lost one device behind its front camera flex (it must name the silent device and the connector
// to check), the IC data dump, the NAND, additional-tests and battery screens, the command
// console; then the command line's live judges on the same phones.

#include "AutoComparador.h"
#include "CliRun.h"
#include "ConnectionController.h"
#include "ConsoleTextEdit.h"
#include "DesktopProgram.h"
#include "FakeShell.h"
#include "I2C.h"
#include "Master.h"
#include "Screens.h"
#include "ScreenControls.h"
#include "SimProcess.h"

#include <QComboBox>
#include <QFrame>
#include <QJsonArray>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest>

namespace {

const QString Connector = QStringLiteral("J4503 - Flex Front Camera and Prox. Sensor Cable");
const QString Device = QStringLiteral("x39 - Prox ALS Sensor");

// The recorded side shows a good board's answer to the same test (prompt counters aside).
bool matchesRecording(QWidget *screen, const QString &configPath)
{
    return AutoComparador::evaluate(rawText(screen, "txtDados"), rawText(screen, "txtComparador"),
                                    Database(configPath).maskTexts(), false)
           == AutoComparador::Mark::Shown;
}

} // namespace

class TestMenuSim : public QObject
{
    Q_OBJECT

    ConfigCopy m_config;
    SimPhones m_phones;

    // The program connected to `sim`, with the menu a technician gets.
    static bool connectWithMenu(DesktopProgram &program, FakeShell &shell, SimProcess *sim)
    {
        Screens::registerAll(*program.inicial, shell);
        program.inicial->resize(1366, 768);
        program.inicial->show();
        if (!sim || !program.selectPort(sim->port()))
            return false;
        program.connectButton()->click();
        return QTest::qWaitFor([&] { return program.inicial->status() == QLatin1String("Verde") && program.flag() == "1"
                                            && !program.connection.timerVerificaVersao().isActive(); },
                               20000);
    }

private slots:
    void initTestCase()
    {
        if (!SimProcess::available() || !QFile::exists(cliProgram()))
            QSKIP("vekto-sim, vekto-cli or Config.vkt was not built");
        QVERIFY(m_config.ok());
    }

    void i2cAndIcFromTheMenu()
    {
        DesktopProgram program(m_config.path());
        FakeShell shell;
        QVERIFY(connectWithMenu(program, shell, m_phones.get(QStringLiteral("IP 7"), QStringLiteral("i2c-missing"))));
        QCOMPARE(program.session.modelo(), QStringLiteral("IP 7"));

        // Menu element 9: the automatic run, each answer handed over into the screen's txtDados.
        program.find<QPushButton>("Botoes_9")->click();
        auto *i2c = qobject_cast<I2C *>(program.inicial->screen(QStringLiteral("I2C")));
        QVERIFY(i2c);
        i2c->findChild<QPushButton *>(QStringLiteral("btAutoTeste"))->click();
        QVERIFY(i2c->autoRunning());
        QTRY_VERIFY_WITH_TIMEOUT(!i2c->autoRunning(), 90000);
        const QString failures = i2c->findChild<QPlainTextEdit *>(QStringLiteral("txtDadosI2C"))->toPlainText();
        QVERIFY2(failures.contains(QStringLiteral("I2C 2\n") + Connector + QStringLiteral(" \n") + Device),
                 qPrintable(failures));
        QCOMPARE(failures.count(QStringLiteral("I2C ")), 1);
        auto *log = i2c->findChild<QListWidget *>(QStringLiteral("ListView"));
        QCOMPARE(log->item(log->count() - 1)->text(), QStringLiteral("Teste Finalizados"));
        QCOMPARE(log->findItems(QStringLiteral("COMUNICAÇÃO OFF"), Qt::MatchContains).size(), 1);

        // Menu element 8: the Tristar data dump, handed over into the IC screen's txtDados.
        program.find<QPushButton>("Botoes_8")->click();
        QWidget *ic = program.inicial->screen(QStringLiteral("IC"));
        QVERIFY(ic);
        QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
        ic->findChild<QPushButton *>(QStringLiteral("btBl_1"))->click();
        QTRY_COMPARE_WITH_TIMEOUT(ic->findChild<QLabel *>(QStringLiteral("lbStatus"))->text(),
                                  QStringLiteral("COMUNICAÇÃO OK"), 40000);
        QCOMPARE(ic->findChild<QLabel *>(QStringLiteral("lbIC"))->text(), QStringLiteral("TRISTAR"));
        QVERIFY2(program.dialogs.shown.isEmpty(), qPrintable(program.dialogs.shown.join(u'\n')));
    }

    void i2cOnTheCommandLine()
    {
        const CliRun run = runCli({"run", "i2c", "--port", m_phones.get(QStringLiteral("IP 7"), QStringLiteral("i2c-missing"))->port(), "--model", "auto", "--db", m_config.path(), "--json"});
        QVERIFY2(run.exitCode == 1, qPrintable(run.describe()));
        const QJsonObject &report = run.json;
        QCOMPARE(report.value(QStringLiteral("model")).toString(), QStringLiteral("IP 7"));
        const QJsonObject extra = report.value(QStringLiteral("extra")).toObject();
        QCOMPARE(extra.value(QStringLiteral("buses")).toArray(), (QJsonArray{0, 1, 2, 3, 4}));
        QVERIFY(extra.value(QStringLiteral("failures")).toString().contains(Connector + QStringLiteral(" \n") + Device));
        QCOMPARE(extra.value(QStringLiteral("FrameResultadoOK")).toBool(), false);
        QStringList failed;
        for (const QJsonValue &v : report.value(QStringLiteral("rows")).toArray())
            if (v.toObject().value(QStringLiteral("verdict")).toString() == QLatin1String("fail"))
                failed << v.toObject().value(QStringLiteral("name")).toString();
        QCOMPARE(failed, QStringList{QStringLiteral("x39")});
    }
    void nandOutrosBateriaOnAGoodIp7()
    {
        SimProcess *sim = m_phones.get(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY(sim);
        {
            DesktopProgram program(m_config.path());
            FakeShell shell;
            QVERIFY(connectWithMenu(program, shell, sim));
            QCOMPARE(program.session.modelo(), QStringLiteral("IP 7"));

            // The NAND screen reads the size once on opening, then each test on its button.
            program.find<QPushButton>("Botoes_7")->click();
            QWidget *nand = program.inicial->screen(QStringLiteral("Nand"));
            QVERIFY(nand);
            QTRY_COMPARE_WITH_TIMEOUT(text(nand, "lbNand"), QStringLiteral("NAND 128 GB"), 20000);
            for (const char *button : {"btBl_0", "btBl_3"}) {
                QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
                click(nand, button);
                QTRY_COMPARE_WITH_TIMEOUT(text(nand, "lbStatus"), QStringLiteral("COMUNICAÇÃO OK"), 30000);
            }
            QVERIFY(rawText(nand, "txtDados").size() >= 7001);

            // The DRAM test beside the recording of a good IP 7, and the battery screen from there.
            program.find<QPushButton>("Botoes_17")->click();
            QWidget *outros = program.inicial->screen(QStringLiteral("Outros"));
            QVERIFY(outros);
            QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
            click(outros, "btBl_5");
            QTRY_COMPARE_WITH_TIMEOUT(text(outros, "lbStatus"), QStringLiteral("COMUNICAÇÃO OK"), 30000);
            QVERIFY(rawText(outros, "txtDados").contains(QStringLiteral("testmemory: Passed")));
            QVERIFY(matchesRecording(outros, m_config.path()));

            QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
            click(outros, "btBateria");
            QWidget *bateria = program.inicial->screen(QStringLiteral("Bateria"));
            QVERIFY(bateria);
            QVERIFY(!program.find<QPushButton>("Botoes_0"));
            QTRY_VERIFY_WITH_TIMEOUT(rawText(bateria, "txtDados").contains(QStringLiteral("StateOfCharge")), 20000);
            QVERIFY(matchesRecording(bateria, m_config.path()));
            QVERIFY2(program.dialogs.shown.isEmpty(), qPrintable(program.dialogs.shown.join(u'\n')));

            QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
            program.connectButton()->click();
            QCOMPARE(program.flag(), QStringLiteral("0"));
        }

        // The same phone from the command line, model recognised as the connect button does.
        const CliRun size = runCli({"run", "nand-size", "--port", sim->port(), "--model", "auto", "--db", m_config.path(),
                              "--json"});
        QVERIFY2(size.exitCode == 0, qPrintable(size.describe()));
        QCOMPARE(size.json.value("model").toString(), QStringLiteral("IP 7"));
        QCOMPARE(size.json.value("rows")[0].toObject().value("caption").toString(), QStringLiteral("NAND 128 GB"));
    }


    // The command console: a good board matches the shipped demo recording; an answer recorded
    // here matches the next one; the console saved for support is judged as the screen judged it.
    void recordAndCompare_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("keepDemo");
        QTest::newRow("IP 7, demo recording") << "IP 7" << "nand --getinfo" << true;
        QTest::newRow("IP X, demo recording") << "IP X" << "syscfg list" << true;
        QTest::newRow("IP 8, recorded here") << "IP 8" << "i2c -s 0" << false;
    }

    void recordAndCompare()
    {
        QFETCH(QString, model);
        QFETCH(QString, command);
        QFETCH(bool, keepDemo);
        ConfigCopy config;
        QVERIFY(config.ok());
        const QString path = config.path();
        if (!keepDemo)
            QVERIFY(Database(path).deleteDados(model, command));
        SimProcess phone;
        const QString started = phone.start(model, QStringLiteral("good"));
        QVERIFY2(started.isEmpty(), qPrintable(started));

        Session session(path);
        session.setModelo(QStringLiteral("IP 6"));
        FakeDialogs dialogs;
        FakeShell shell;
        QtSerialPortLink port;
        ConsoleExchange exchange(session, port);
        ConnectionController connection(session, exchange, port);
        connection.setModelLookup([&path](const QString &number) { return Database(path).modeloRef(number); });
        connect(&connection, &ConnectionController::modelRecognised, &session, &Session::setModelo);
        {
            // Opened before connecting: the screen waits and may send once the phone is known.
            Master screen({session, exchange, dialogs}, shell);
            auto *send = screen.findChild<QPushButton *>(QStringLiteral("btSend"));
            QVERIFY(!send->isEnabled());
            connection.connectClicked(phone.port(), QStringLiteral("1"));
            QTRY_VERIFY_WITH_TIMEOUT(session.modelo() == model, 20000);
            QTRY_VERIFY_WITH_TIMEOUT(session.connectedAndIdle() && send->isEnabled(), 20000);

            auto *list = screen.findChild<QComboBox *>(QStringLiteral("txtComandos"));
            auto *console = screen.findChild<ConsoleTextEdit *>(QStringLiteral("txtConsole"));
            auto *recorded = screen.findChild<ConsoleTextEdit *>(QStringLiteral("txtComparador"));
            auto *mark = screen.findChild<QFrame *>(QStringLiteral("lbAutoComparador"));
            list->setEditText(command);
            screen.send();
            QVERIFY(screen.waiting());
            QTRY_VERIFY_WITH_TIMEOUT(!screen.waiting(), 30000);
            const QString answer = console->rawText();
            QVERIFY2(answer.startsWith(QStringLiteral("\r\n") + command + QStringLiteral("\r\r\n")), qPrintable(answer));
            QVERIFY(answer.endsWith(QStringLiteral("] :-) ")));
            QCOMPARE(!mark->isHidden(), keepDemo);

            if (!keepDemo) {
                QVERIFY(recorded->rawText().isEmpty());
                screen.recordAnswer();
                QCOMPARE(Database(path).dadosRecord(model, command)->dados, answer);
                // Sent again with the Enter key: the prompt's counters differ, the mark shows.
                QTest::keyClick(list->lineEdit(), Qt::Key_Return);
                QVERIFY(screen.waiting());
                QTRY_VERIFY_WITH_TIMEOUT(!screen.waiting(), 30000);
                QVERIFY(console->rawText() != answer);
                QVERIFY(!mark->isHidden());
            }
            QVERIFY2(dialogs.shown.isEmpty(), qPrintable(dialogs.shown.join(u'\n')));

            // The console saved for support is judged by the command line as the screen judged it.
            QTemporaryDir dir;
            const QString saved = dir.filePath(QStringLiteral("console.txt"));
            dialogs.saveNames = {saved};
            screen.saveConsole();
            const CliRun judged = runCli({"judge", "compare", "--model", model, "--command", command, "--answer", saved,
                                          "--db", path});
            QVERIFY2(judged.exitCode == (mark->isHidden() ? 1 : 0), qPrintable(judged.describe()));
        }
        port.close();
    }
};

QTEST_MAIN(TestMenuSim)
#include "tst_menu_sim.moc"
