// The command console end to end: the simulated phone on a pseudo-terminal, the real serial link,
// connection and exchange with their timers, the console screen and a copy of Config.vkt. A good
// board matches the shipped demo recording; an answer recorded here matches the next one.
#include "CliRun.h"
#include "ConnectionController.h"
#include "ConsoleTextEdit.h"
#include "Database.h"
#include "FakeShell.h"
#include "Master.h"
#include "SimProcess.h"

#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

class TestConsoleSim : public QObject
{
    Q_OBJECT

private slots:
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
        if (!SimProcess::available())
            QSKIP("vekto-sim or Config.vkt was not built");
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

QTEST_MAIN(TestConsoleSim)
#include "tst_console_sim.moc"
