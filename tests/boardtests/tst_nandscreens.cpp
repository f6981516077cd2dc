// The NAND, additional-tests and battery screens on a scripted phone and a copy of Config.vkt:
// what each sends, what it shows once the answer is in, how long it waits for a phone that
// says nothing, and what the technician sees when a PDF or the phone is missing.

#include "Bateria.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "FakeDialogs.h"
#include "FakeSerialPort.h"
#include "FakeShell.h"
#include "Nand.h"
#include "NandEngine.h"
#include "Outros.h"
#include "OutrosEngine.h"
#include "Session.h"
#include "VCores.h"
#include "ConsoleTextEdit.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSqlQueryModel>
#include <QSqlRecord>
#include <QTemporaryDir>
#include <QtTest>

namespace {

const QByteArray Prompt = "[0000002a:0000001b] :-) ";

// One screen's surroundings: a copy of the shipped Config.vkt, a connected session on "IP 7",
// and a phone that answers the commands it knows with their lines and stays silent otherwise.
struct Rig
{
    QTemporaryDir dir;
    QString path = dir.filePath(QStringLiteral("Config.vkt"));
    Session session{path};
    FakeSerialPort port;
    ConsoleExchange exchange{session, port};
    FakeDialogs dialogs;
    FakeShell shell;
    ScreenContext context{session, exchange, dialogs};
    QMap<QString, QByteArray> answers; // command -> answer lines, each ending in LF
    QStringList sent;

    Rig()
    {
        QFile::copy(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), path);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        session.setModelo(QStringLiteral("IP 7"));
        port.open(QStringLiteral("pts"));
        session.setConnectionFlag(QStringLiteral("1"));
        port.onWrite = [this](const QByteArray &data) {
            const QString command = QString::fromUtf8(data).chopped(1);
            sent << command;
            if (answers.contains(command))
                port.buffer += data + '\n' + answers.value(command) + Prompt;
        };
    }

    // Runs the exchange to its end, as the main window's timers would.
    void finishExchange()
    {
        exchange.onTimer1();
        for (int i = 0; i < 60 && exchange.running(); ++i)
            exchange.onTimer2();
    }

    template<typename T> static T *child(QWidget *screen, const char *name)
    {
        return screen->findChild<T *>(QString::fromLatin1(name));
    }
};

QString rawText(QWidget *screen, const char *name)
{
    return Rig::child<ConsoleTextEdit>(screen, name)->rawText();
}

QString text(QWidget *screen, const char *name)
{
    return Rig::child<QLabel>(screen, name)->text();
}

bool shown(QWidget *screen, const char *name)
{
    return Rig::child<QWidget>(screen, name)->isVisibleTo(screen);
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
        QTest::newRow("between two classes") << true << QByteArray("size in KiB: 0x1406F40\n") << "NAND 21 GB APPROX.";
        QTest::newRow("IP 6") << true << QByteArray("Command \"nandsize\" not found\n") << "NAND Not available for 6/6P";
        QTest::newRow("no colon") << true << QByteArray("nand size check Passed 0x8000000\n")
                                  << "NAND Size not identified";
        QTest::newRow("silent phone") << true << QByteArray() << "NAND Size not identified";
        QTest::newRow("not connected") << false << QByteArray() << "";
    }
    void sizeOnOpening()
    {
        QFETCH(bool, connected);
        QFETCH(QByteArray, answer);
        QFETCH(QString, lbNand);
        Rig rig;
        rig.session.setIdioma(2);
        if (!answer.isEmpty())
            rig.answers.insert(QStringLiteral("nandsize"), answer);
        if (!connected)
            rig.session.setConnectionFlag(QStringLiteral("0"));
        Nand screen(rig.context, rig.shell);
        QCOMPARE(rig.sent, connected ? QStringList{QStringLiteral("nandsize")} : QStringList{});
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
        QCOMPARE(rig.sent.size(), 1);
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
        QTest::newRow("info without Pass") << 2 << QByteArray("NAND info\n  vendor name: Hynix\n") << "COMMUNICATION OK"
                                           << true << "";
        QTest::newRow("size failed") << 1 << QByteArray("nand size check Failed, the chip did not answer\n")
                                     << "COMMUNICATION OFF" << false << "";
        QTest::newRow("short syscfg list") << 3 << QByteArray("SrNm  F4GT2Y0XHG7K\nMLB#  C0753130FB6H1KJ1\n")
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
        Rig rig;
        rig.session.setConnectionFlag(QStringLiteral("0"));
        rig.session.setIdioma(2);
        Nand screen(rig.context, rig.shell);
        rig.session.setConnectionFlag(QStringLiteral("1"));
        const QString command = NandEngine::command(mode);
        rig.answers.insert(command, answer);

        Rig::child<QPushButton>(&screen, QStringLiteral("btBl_%1").arg(mode).toLatin1().constData())->click();
        QCOMPARE(rig.sent, QStringList{command});
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

    // A phone that says nothing: no verdict, the wait ends at the tick limit, the screen still works.
    void silentPhone()
    {
        Rig rig;
        Nand screen(rig.context, rig.shell);
        rig.finishExchange(); // the size request at opening
        rig.sent.clear();
        Rig::child<QPushButton>(&screen, "btBl_2")->click();
        rig.finishExchange();
        for (int i = 1; i < NandEngine::StatusTickLimit; ++i)
            screen.onTimerStatus();
        QVERIFY(screen.timerStatus().isActive());
        QVERIFY(shown(&screen, "lbAguarde"));
        screen.onTimerStatus();
        QVERIFY(!screen.timerStatus().isActive());
        QCOMPARE(text(&screen, "lbStatus"), QStringLiteral("Sem resposta do dispositivo"));
        QVERIFY(!shown(&screen, "ok") && !shown(&screen, "no"));
        QVERIFY(!shown(&screen, "lbAguarde"));

        rig.answers.insert(QStringLiteral("nanduid"), "NAND UID read Passed\nUID: 0B78BF7A72A8223977A26B3E47B79BBB\n");
        Rig::child<QPushButton>(&screen, "btBl_0")->click();
        rig.finishExchange();
        screen.onTimerStatus();
        QCOMPARE(text(&screen, "lbStatus"), QStringLiteral("COMUNICAÇÃO OK"));
        QCOMPARE(rig.sent, (QStringList{QStringLiteral("nand --getinfo"), QStringLiteral("nanduid")}));
    }

    // A size reading that never got its answer must not read the next test's answer as a size.
    void laterAnswerIsNotASize()
    {
        Rig rig;
        rig.answers.insert(QStringLiteral("nanduid"), "NAND UID read Passed\nUID: 0B78BF7A72A8223977A26B3E47B79BBB\n");
        Nand screen(rig.context, rig.shell);
        rig.finishExchange();
        screen.onTimerTamanho();
        Rig::child<QPushButton>(&screen, "btBl_0")->click();
        QVERIFY(!screen.timerTamanho().isActive());
        rig.finishExchange();
        screen.onTimerStatus();
        QCOMPARE(text(&screen, "lbNand"), QStringLiteral("NAND"));
    }

    void disconnectedOrGone()
    {
        Rig rig;
        rig.session.setConnectionFlag(QStringLiteral("0"));
        Nand nand(rig.context, rig.shell, [](const QString &) -> QWidget * { return nullptr; });
        Outros outros(rig.context, rig.shell);
        for (const char *button : {"btBl_0", "btBl_3", "btBl_4"}) {
            Rig::child<QPushButton>(&nand, button)->click();
            QCOMPARE(text(&nand, "lbStatus"), QStringLiteral("Desconectado"));
        }
        Rig::child<QPushButton>(&outros, "btBl_5")->click();
        QCOMPARE(text(&outros, "lbStatus"), QStringLiteral("Desconectado"));
        QVERIFY(rig.sent.isEmpty());
        QVERIFY(!nand.timerStatus().isActive() && !outros.timerStatus().isActive());

        // The cable goes while a test waits: the wait ends and says why.
        rig.session.setConnectionFlag(QStringLiteral("1"));
        Rig::child<QPushButton>(&outros, "btBl_6")->click();
        rig.session.setConnectionFlag(QStringLiteral("0"));
        outros.onTimerStatus();
        QVERIFY(!outros.timerStatus().isActive());
        QVERIFY(!outros.timerAguarde().isActive());
        QCOMPARE(text(&outros, "lbStatus"), QStringLiteral("Desconectado"));
    }

    // The NAND rails open in the one VCore screen, filtered on NAND, without a reading.
    void railsOpenInVCores()
    {
        Rig rig;
        rig.session.setConnectionFlag(QStringLiteral("0"));
        VCores vcores(rig.context);
        QStringList opened;
        Nand screen(rig.context, rig.shell, [&](const QString &name) -> QWidget * {
            opened << name;
            return &vcores;
        });
        rig.session.setConnectionFlag(QStringLiteral("1"));
        Rig::child<QPushButton>(&screen, "btBl_4")->click();
        QCOMPARE(opened, QStringList{QStringLiteral("VCores")});
        QVERIFY(rig.sent.isEmpty());
        QVERIFY(!vcores.readingUnderWay());
        QCOMPARE(Rig::child<QComboBox>(&vcores, "cbICs")->currentText(), QStringLiteral("NAND"));
        QSqlQueryModel *grid = vcores.Data1();
        QVERIFY(grid->rowCount() > 0);
        const int ci = grid->record().indexOf(QStringLiteral("Ci"));
        const int modelo = grid->record().indexOf(QStringLiteral("Modelo"));
        const QList<MasterRow> nandRows = Database(rig.path).nandRows(QStringLiteral("IP 7"));
        QCOMPARE(grid->rowCount(), nandRows.size());
        for (int row = 0; row < grid->rowCount(); ++row) {
            QVERIFY(grid->index(row, ci).data().toString().contains(QStringLiteral("NAND"), Qt::CaseInsensitive));
            QCOMPARE(grid->index(row, modelo).data().toString(), QStringLiteral("IP 7"));
        }
    }

    void pdfs_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("file");
        QTest::newRow("NAND") << "Nand" << "btPdf" << "xErrosNand.pdf";
        QTest::newRow("panic log") << "Outros" << "btPanicFull" << "xPanicFull.pdf";
    }
    void pdfs()
    {
        QFETCH(QString, screen);
        QFETCH(QString, button);
        QFETCH(QString, file);
        Rig rig;
        rig.session.setConnectionFlag(QStringLiteral("0"));
        rig.session.setIdioma(3);
        std::unique_ptr<QWidget> widget;
        if (screen == QLatin1String("Nand"))
            widget = std::make_unique<Nand>(rig.context, rig.shell);
        else
            widget = std::make_unique<Outros>(rig.context, rig.shell);
        auto *pdf = widget->findChild<QPushButton *>(button);
        pdf->click();
        QVERIFY(rig.shell.opened.isEmpty());
        QCOMPARE(rig.dialogs.shown.size(), 1);
        const QString expected = QStringLiteral("critical:Archivo no encontrado|Archivo PDF no encontrado junto al programa: ")
                                 + QDir::toNativeSeparators(rig.dir.filePath(file));
        QCOMPARE(rig.dialogs.shown.first(), expected);

        QFile present(rig.dir.filePath(file));
        QVERIFY(present.open(QIODevice::WriteOnly));
        present.close();
        pdf->click();
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
        QTest::newRow("Tristar read") << 2 << "TRISTAR" << QByteArray("tristar dx1: 0x12 (USB data +)\n") << "" << "";
    }
    void outrosTests()
    {
        QFETCH(int, mode);
        QFETCH(QString, keyWord);
        QFETCH(QByteArray, answer);
        QFETCH(QString, lbStatus);
        QFETCH(QString, whileWaiting);
        Rig rig;
        const QString recorded = QStringLiteral("\r\nrecorded ") + keyWord + QStringLiteral(" of a good IP 7\r\n");
        {
            Database db(rig.path);
            QVERIFY(db.saveDados({QStringLiteral("IP 7"), keyWord, recorded, {}, {}, {}}));
            QVERIFY(db.saveDados({QStringLiteral("IP 8"), keyWord, QStringLiteral("IP 8 board"), {}, {}, {}}));
        }
        const QString command = OutrosEngine::teste(mode)->command;
        rig.answers.insert(command, answer);
        Outros screen(rig.context, rig.shell);
        auto *txtDados = Rig::child<ConsoleTextEdit>(&screen, "txtDados");
        txtDados->setRawText(QStringLiteral("the previous answer"));

        Rig::child<QPushButton>(&screen, QStringLiteral("btBl_%1").arg(mode).toLatin1().constData())->click();
        QCOMPARE(rig.sent, QStringList{command});
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

    void outrosSilentPhone()
    {
        Rig rig;
        Outros screen(rig.context, rig.shell);
        Rig::child<QPushButton>(&screen, "btBl_5")->click();
        rig.finishExchange();
        for (int i = 1; i < OutrosEngine::StatusTickLimit; ++i)
            screen.onTimerStatus();
        QVERIFY(screen.timerStatus().isActive());
        screen.onTimerStatus();
        QVERIFY(!screen.timerStatus().isActive());
        QCOMPARE(text(&screen, "lbStatus"), QStringLiteral("Sem resposta do dispositivo"));
        QVERIFY(!shown(&screen, "ok") && !shown(&screen, "no"));
    }

    void bateria()
    {
        Rig rig;
        const QString recorded = QStringLiteral("\r\nVoltage: 3854 mV of a good IP 7\r\n");
        QVERIFY(Database(rig.path).saveDados({QStringLiteral("IP 7"), QStringLiteral("BATERIA"), recorded, {}, {}, {}}));
        rig.answers.insert(QStringLiteral("battery --properties"), "Voltage:                 3861 mV\n");

        rig.session.setConnectionFlag(QStringLiteral("0"));
        {
            Bateria idle(rig.context);
            QVERIFY(rig.sent.isEmpty());
            QVERIFY(rawText(&idle, "txtDados").isEmpty());
            QVERIFY(!Rig::child<QPushButton>(&idle, "btBateria")->isEnabled());
        }
        rig.session.setConnectionFlag(QStringLiteral("1"));
        Bateria screen(rig.context);
        QCOMPARE(rig.sent, QStringList{QStringLiteral("battery --properties")});
        QCOMPARE(rig.session.screenId(), QStringLiteral("14"));
        QVERIFY(!Rig::child<QPushButton>(&screen, "btBateria")->isEnabled());
        rig.finishExchange();
        QVERIFY(rawText(&screen, "txtDados").contains(QStringLiteral("3861 mV")));
        QCOMPARE(rawText(&screen, "txtComparador"), recorded);

        auto *button = Rig::child<QPushButton>(&screen, "btBateria");
        QVERIFY(button->isEnabled());
        button->click();
        QCOMPARE(rig.sent.size(), 2);
        QVERIFY(rawText(&screen, "txtDados").isEmpty());
        QVERIFY(rawText(&screen, "txtComparador").isEmpty());
        rig.finishExchange();
        QCOMPARE(rawText(&screen, "txtComparador"), recorded);
    }
};

QTEST_MAIN(TestNandScreens)
#include "tst_nandscreens.moc"
