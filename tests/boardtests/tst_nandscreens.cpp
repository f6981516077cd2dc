// The NAND, additional-tests and battery screens on a scripted phone and a copy of Config.vkt:
// what each sends, what it shows once the answer is in, how long it waits for a phone that
// says nothing, and what the technician sees when a PDF or the phone is missing.

#include "Bateria.h"
#include "Database.h"
#include "I2C.h"
#include "Nand.h"
#include "NandEngine.h"
#include "Outros.h"
#include "OutrosEngine.h"
#include "ScreenBench.h"
#include "VCores.h"

#include <QComboBox>
#include <QDir>
#include <QPushButton>
#include <QSqlQueryModel>
#include <QSqlRecord>
#include <QtTest>

namespace {

const QByteArray UidPassed = "NAND UID read Passed\nUID: 0B78BF7A72A8223977A26B3E47B79BBB\n";

// A phone that says nothing: no verdict, the wait ends at the tick limit, and the screen still
// judges the next answer.
template<typename S> void silentThenAnswered(S &screen, ScreenBench &bench, int mode, int tickLimit)
{
    bench.port.written.clear();
    click(&screen, QStringLiteral("btBl_%1").arg(mode));
    const QString command = bench.sent().value(0);
    bench.finishExchange();
    for (int i = 1; i < tickLimit; ++i)
        screen.onTimerStatus();
    QVERIFY(screen.timerStatus().isActive());
    QVERIFY(shown(&screen, "lbAguarde"));
    screen.onTimerStatus();
    QVERIFY(!screen.timerStatus().isActive());
    QCOMPARE(text(&screen, "lbStatus"), QStringLiteral("Sem resposta do dispositivo"));
    QVERIFY(!shown(&screen, "ok") && !shown(&screen, "no"));
    QVERIFY(!shown(&screen, "lbAguarde"));

    bench.answers.insert(command.toUtf8(), UidPassed);
    click(&screen, QStringLiteral("btBl_%1").arg(mode));
    bench.finishExchange();
    screen.onTimerStatus();
    QCOMPARE(text(&screen, "lbStatus"), QStringLiteral("COMUNICAÇÃO OK"));
    QCOMPARE(bench.sent(), (QStringList{command, command}));
}

} // namespace

class TestNandScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
            QSKIP("Config.vkt was not built");
    }

    // The size is asked for once at opening, and only of a phone that is ready.
    void sizeOnOpening_data()
    {
        QTest::addColumn<bool>("connected");
        QTest::addColumn<QByteArray>("answer"); // empty: the phone stays silent
        QTest::addColumn<QString>("lbNand");
        QTest::newRow("IP 7") << true << QByteArray("nand size check Passed, size in KiB: 0x8000000\n") << "NAND 128 GB";
        QTest::newRow("IP 6") << true << QByteArray("Command \"nandsize\" not found\n") << "NAND Not available for 6/6P";
        QTest::newRow("silent phone") << true << QByteArray() << "NAND Size not identified";
        QTest::newRow("not connected") << false << QByteArray() << "";
    }
    void sizeOnOpening()
    {
        QFETCH(bool, connected);
        QFETCH(QByteArray, answer);
        QFETCH(QString, lbNand);
        ScreenBench rig;
        rig.session.setIdioma(2);
        if (!answer.isEmpty())
            rig.answers.insert("nandsize", answer);
        if (!connected)
            rig.session.setConnectionFlag(QStringLiteral("0"));
        Nand screen(rig.context, rig.shell);
        QCOMPARE(rig.sent(), connected ? QStringList{QStringLiteral("nandsize")} : QStringList{});
        QCOMPARE(screen.timerTamanho().isActive(), connected);
        if (!connected) {
            QVERIFY(text(&screen, "lbNand").isEmpty());
            return;
        }
        rig.finishExchange();
        // A silent phone is waited for up to the tick limit, then the size stays unknown.
        const int ticks = answer.isEmpty() ? NandEngine::SizeTickLimit : 1;
        for (int i = 1; i < ticks; ++i)
            screen.onTimerTamanho();
        QVERIFY(screen.timerTamanho().isActive());
        QVERIFY(text(&screen, "lbNand").isEmpty());
        screen.onTimerTamanho();
        QVERIFY(!screen.timerTamanho().isActive());
        QCOMPARE(text(&screen, "lbNand"), lbNand);
        QCOMPARE(rig.sent().size(), 1);
    }

    void statusCheck_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("lbStatus");
        QTest::addColumn<bool>("ok");
        QTest::addColumn<QString>("console"); // empty: the answer as received
        QTest::newRow("uid") << 0 << QByteArray("NAND UID read Passed\nUID: 0B78BF7A72A8223977A26B3E47B79BBB\n")
                             << "COMMUNICATION OK" << true << "";
        QTest::newRow("size failed") << 1 << QByteArray("nand size check Failed, the chip did not answer\n")
                                     << "COMMUNICATION OFF" << false << "";
        QTest::newRow("IP 6") << 0 << QByteArray("Command \"nanduid\" not found in this build\n") << "" << false
                              << "Not available for 6/6P";
    }
    void statusCheck()
    {
        QFETCH(int, mode);
        QFETCH(QByteArray, answer);
        QFETCH(QString, lbStatus);
        QFETCH(bool, ok);
        QFETCH(QString, console);
        ScreenBench rig;
        rig.session.setConnectionFlag(QStringLiteral("0"));
        rig.session.setIdioma(2);
        Nand screen(rig.context, rig.shell);
        rig.session.setConnectionFlag(QStringLiteral("1"));
        const QString command = NandEngine::command(mode);
        rig.answers.insert(command.toUtf8(), answer);

        click(&screen, QStringLiteral("btBl_%1").arg(mode));
        QCOMPARE(rig.sent(), QStringList{command});
        QCOMPARE(rig.session.screenId(), QStringLiteral("4"));
        QVERIFY(shown(&screen, "lbAguarde"));
        QVERIFY(screen.timerStatus().isActive());
        // While the answer is coming in, the check waits without counting.
        for (int i = 0; i < 2 * NandEngine::StatusTickLimit; ++i)
            screen.onTimerStatus();
        QVERIFY(screen.timerStatus().isActive());
        rig.finishExchange();
        screen.onTimerStatus();

        QVERIFY(!screen.timerStatus().isActive());
        QVERIFY(!shown(&screen, "lbAguarde"));
        QCOMPARE(text(&screen, "lbStatus"), lbStatus);
        QCOMPARE(shown(&screen, "ok"), ok);
        QCOMPARE(shown(&screen, "no"), !ok && !lbStatus.isEmpty());
        QCOMPARE(shown(&screen, "lbStatus2"), ok);
        QCOMPARE(rawText(&screen, "txtDados"),
                 console.isEmpty() ? rig.exchange.console() : console);
        // The status check names the NAND when the size never did.
        QCOMPARE(text(&screen, "lbNand"), lbStatus.isEmpty() ? QString() : QStringLiteral("NAND"));
    }

    void silentPhone_data()
    {
        QTest::addColumn<bool>("nand");
        QTest::newRow("NAND info") << true;
        QTest::newRow("DRAM") << false;
    }
    void silentPhone()
    {
        QFETCH(bool, nand);
        ScreenBench rig;
        if (nand) {
            Nand screen(rig.context, rig.shell);
            rig.finishExchange(); // the size request at opening
            silentThenAnswered(screen, rig, 2, NandEngine::StatusTickLimit);
        } else {
            Outros screen(rig.context, rig.shell);
            silentThenAnswered(screen, rig, 5, OutrosEngine::StatusTickLimit);
        }
    }

    // A size reading that never got its answer must not read the next test's answer as a size.
    void laterAnswerIsNotASize()
    {
        ScreenBench rig;
        rig.answers.insert("nanduid", UidPassed);
        Nand screen(rig.context, rig.shell);
        rig.finishExchange();
        screen.onTimerTamanho();
        child<QPushButton>(&screen, "btBl_0")->click();
        QVERIFY(!screen.timerTamanho().isActive());
        rig.finishExchange();
        screen.onTimerStatus();
        QCOMPARE(text(&screen, "lbNand"), QStringLiteral("NAND"));
    }

    void disconnectedOrGone()
    {
        ScreenBench rig;
        rig.session.setConnectionFlag(QStringLiteral("0"));
        Nand nand(rig.context, rig.shell, [](const QString &) -> QWidget * { return nullptr; });
        Outros outros(rig.context, rig.shell);
        for (const char *button : {"btBl_0", "btBl_3", "btBl_4"}) {
            child<QPushButton>(&nand, button)->click();
            QCOMPARE(text(&nand, "lbStatus"), QStringLiteral("Desconectado"));
        }
        child<QPushButton>(&outros, "btBl_5")->click();
        QCOMPARE(text(&outros, "lbStatus"), QStringLiteral("Desconectado"));
        QVERIFY(rig.sent().isEmpty());
        QVERIFY(!nand.timerStatus().isActive() && !outros.timerStatus().isActive());

        // The cable goes while a test waits: the wait ends and says why.
        rig.session.setConnectionFlag(QStringLiteral("1"));
        child<QPushButton>(&outros, "btBl_6")->click();
        rig.session.setConnectionFlag(QStringLiteral("0"));
        outros.onTimerStatus();
        QVERIFY(!outros.timerStatus().isActive());
        QVERIFY(!outros.timerAguarde().isActive());
        QCOMPARE(text(&outros, "lbStatus"), QStringLiteral("Desconectado"));
    }

    // The NAND rails open in the one VCore screen, filtered on NAND, without a reading.
    void railsOpenInVCores()
    {
        ScreenBench rig;
        rig.session.setConnectionFlag(QStringLiteral("0"));
        VCores vcores(rig.context);
        QStringList opened;
        Nand screen(rig.context, rig.shell, [&](const QString &name) -> QWidget * {
            opened << name;
            return &vcores;
        });
        rig.session.setConnectionFlag(QStringLiteral("1"));
        child<QPushButton>(&screen, "btBl_4")->click();
        QCOMPARE(opened, QStringList{QStringLiteral("VCores")});
        QVERIFY(rig.sent().isEmpty());
        QVERIFY(!vcores.readingUnderWay());
        QCOMPARE(child<QComboBox>(&vcores, "cbICs")->currentText(), QStringLiteral("NAND"));
        QSqlQueryModel *grid = vcores.Data1();
        QVERIFY(grid->rowCount() > 0);
        const int ci = grid->record().indexOf(QStringLiteral("Ci"));
        const int modelo = grid->record().indexOf(QStringLiteral("Modelo"));
        for (int row = 0; row < grid->rowCount(); ++row) {
            QVERIFY(grid->index(row, ci).data().toString().contains(QStringLiteral("NAND"), Qt::CaseInsensitive));
            QCOMPARE(grid->index(row, modelo).data().toString(), QStringLiteral("IP 7"));
        }
    }

    // Each screen's PDF beside the program: a missing one is said, naming the file; once there, it opens.
    void pdfs_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("file");
        QTest::newRow("NAND") << "Nand" << "btPdf" << "xErrosNand.pdf";
        QTest::newRow("panic log") << "Outros" << "btPanicFull" << "xPanicFull.pdf";
        QTest::newRow("I2C schematic of the model") << "I2C" << "btPdf" << I2CEngine::pdfName(QStringLiteral("IP 7"));
    }
    void pdfs()
    {
        QFETCH(QString, screen);
        QFETCH(QString, button);
        QFETCH(QString, file);
        ScreenBench rig;
        rig.session.setConnectionFlag(QStringLiteral("0"));
        std::unique_ptr<QWidget> widget;
        if (screen == QLatin1String("Nand"))
            widget = std::make_unique<Nand>(rig.context, rig.shell);
        else if (screen == QLatin1String("Outros"))
            widget = std::make_unique<Outros>(rig.context, rig.shell);
        else
            widget = std::make_unique<I2C>(rig.context, rig.shell);
        click(widget.get(), button);
        QVERIFY(rig.shell.opened.isEmpty());
        QCOMPARE(rig.dialogs.shown.size(), 1);
        QVERIFY(rig.dialogs.shown.first().startsWith(QStringLiteral("critical:")));
        QVERIFY(rig.dialogs.shown.first().endsWith(QDir::toNativeSeparators(rig.dir.filePath(file))));

        QFile present(rig.dir.filePath(file));
        QVERIFY(present.open(QIODevice::WriteOnly));
        present.close();
        click(widget.get(), button);
        QCOMPARE(rig.shell.opened, QStringList{rig.dir.filePath(file)});
        QCOMPARE(rig.dialogs.shown.size(), 1);
    }

    // Each test's answer beside the recording of its key word for the selected model.
    void outrosTests_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("keyWord");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("lbStatus");
        QTest::addColumn<QString>("whileWaiting");
        QTest::newRow("DRAM passed") << 5 << "DRAM" << QByteArray("memory test walking-1    Passed\ntestmemory: Passed\n")
                                     << "COMUNICAÇÃO OK" << "";
        QTest::newRow("DRAM 1MB failed") << 6 << "DRAM" << QByteArray("block 3 addr 0x800003000 write ok read MISMATCH\n")
                                         << "COMUNICAÇÃO OFF" << "TESTE 15s";
        QTest::newRow("Tristar id") << 1 << "TRISTAR" << QByteArray("tristar id: TRISTAR rev B1\n") << "" << "";
    }
    void outrosTests()
    {
        QFETCH(int, mode);
        QFETCH(QString, keyWord);
        QFETCH(QByteArray, answer);
        QFETCH(QString, lbStatus);
        QFETCH(QString, whileWaiting);
        ScreenBench rig;
        const QString recorded = QStringLiteral("\r\nrecorded ") + keyWord + QStringLiteral(" of a good IP 7\r\n");
        {
            Database db(rig.path);
            QVERIFY(db.saveDados({QStringLiteral("IP 7"), keyWord, recorded, {}, {}, {}}));
            QVERIFY(db.saveDados({QStringLiteral("IP 8"), keyWord, QStringLiteral("IP 8 board"), {}, {}, {}}));
        }
        const QString command = OutrosEngine::teste(mode)->command;
        rig.answers.insert(command.toUtf8(), answer);
        Outros screen(rig.context, rig.shell);
        auto *txtDados = child<ConsoleTextEdit>(&screen, "txtDados");
        txtDados->setRawText(QStringLiteral("the previous answer"));

        click(&screen, QStringLiteral("btBl_%1").arg(mode));
        QCOMPARE(rig.sent(), QStringList{command});
        QCOMPARE(rig.session.screenId(), QStringLiteral("17"));
        QCOMPARE(txtDados->rawText(), whileWaiting);
        QVERIFY(rawText(&screen, "txtComparador").isEmpty());
        QVERIFY(screen.timerAguarde().isActive());
        rig.finishExchange();
        QCOMPARE(txtDados->rawText(), rig.exchange.console());
        QCOMPARE(rawText(&screen, "txtComparador"), recorded);
        screen.onTimerStatus();
        QVERIFY(!screen.timerStatus().isActive());
        QVERIFY(!screen.timerAguarde().isActive());
        QCOMPARE(text(&screen, "lbStatus"), lbStatus);
        QVERIFY(shown(&screen, "lbStatus2"));
        QCOMPARE(shown(&screen, "ok"), lbStatus == QStringLiteral("COMUNICAÇÃO OK"));
        QCOMPARE(shown(&screen, "no"), lbStatus == QStringLiteral("COMUNICAÇÃO OFF"));

        // Another model shows that model's recording.
        rig.session.setModelo(QStringLiteral("IP 8"));
        QCOMPARE(rawText(&screen, "txtComparador"), QStringLiteral("IP 8 board"));
        QCOMPARE(text(&screen, "lbDispositivo"), QStringLiteral("  Modelo: IP 8"));
    }

    void bateria()
    {
        ScreenBench rig;
        const QString recorded = QStringLiteral("\r\nVoltage: 3854 mV of a good IP 7\r\n");
        QVERIFY(Database(rig.path).saveDados({QStringLiteral("IP 7"), QStringLiteral("BATERIA"), recorded, {}, {}, {}}));
        rig.answers.insert("battery --properties", "Voltage:                 3861 mV\n");

        rig.session.setConnectionFlag(QStringLiteral("0"));
        {
            Bateria idle(rig.context);
            QVERIFY(rig.sent().isEmpty());
            QVERIFY(rawText(&idle, "txtDados").isEmpty());
            QVERIFY(!child<QPushButton>(&idle, "btBateria")->isEnabled());
        }
        rig.session.setConnectionFlag(QStringLiteral("1"));
        Bateria screen(rig.context);
        QCOMPARE(rig.sent(), QStringList{QStringLiteral("battery --properties")});
        QCOMPARE(rig.session.screenId(), QStringLiteral("14"));
        QVERIFY(!child<QPushButton>(&screen, "btBateria")->isEnabled());
        rig.finishExchange();
        QVERIFY(rawText(&screen, "txtDados").contains(QStringLiteral("3861 mV")));
        QCOMPARE(rawText(&screen, "txtComparador"), recorded);

        auto *button = child<QPushButton>(&screen, "btBateria");
        QVERIFY(button->isEnabled());
        button->click();
        QCOMPARE(rig.sent().size(), 2);
        QVERIFY(rawText(&screen, "txtDados").isEmpty());
        QVERIFY(rawText(&screen, "txtComparador").isEmpty());
        rig.finishExchange();
        QCOMPARE(rawText(&screen, "txtComparador"), recorded);
    }
};

QTEST_MAIN(TestNandScreens)
#include "tst_nandscreens.moc"
