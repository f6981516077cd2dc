// The rail screens on a real Config.vkt: a reading through the exchange lands in Master, the
// recorded slots outlive the screen, and a write that fails leaves no row half-written.
#include "BuckLdo.h"
#include "BuckTeste.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "FakeDialogs.h"
#include "RailVerdictModel.h"
#include "SerialPort.h"
#include "Session.h"
#include "VCores.h"

#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSqlQuery>
#include <QSqlQueryModel>
#include <QSqlRecord>
#include <QTableView>
#include <QTemporaryDir>
#include <QtTest>

namespace {

// A phone that answers every command with the next scripted text, all in one slice.
class ScriptedPort : public SerialPort
{
public:
    QByteArrayList answers;
    QByteArrayList written;
    QByteArray pending;
    int open(const QString &) override { return NoError; }
    void close() override {}
    bool isOpen() const override { return true; }
    void write(const QByteArray &data) override
    {
        written << data;
        if (!answers.isEmpty())
            pending = data + "\n" + answers.takeFirst() + "[0000001A:0000BEEF] :-) ";
    }
    QByteArray readAll() override { return std::exchange(pending, {}); }
};

QByteArray simAnswer(const QString &relative)
{
    QFile f(QStringLiteral(VEKTO_SOURCE_DIR "/sim/answers/") + relative);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

struct Bench
{
    QTemporaryDir dir;
    QString path;
    Session session;
    ScriptedPort port;
    ConsoleExchange exchange;
    FakeDialogs dialogs;
    ScreenContext context{session, exchange, dialogs};

    Bench()
        : path(dir.filePath(QStringLiteral("Config.vkt"))), session(path), exchange(session, port)
    {
        QFile::copy(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), path);
        QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
        session.setModelo(QStringLiteral("IP 7"));
        session.setConnectionFlag(QStringLiteral("1"));
        session.setConnectionValidated(true);
    }

    // Runs the exchange to its end, as the main window's timers would.
    void finishExchange()
    {
        exchange.onTimer1();
        for (int i = 0; i < 60 && exchange.running(); ++i)
            exchange.onTimer2();
    }

    // The exchange under way to its end, then the screen's two ticks that store and show it.
    void settle(RailScreen &screen)
    {
        finishExchange();
        screen.onTimer1();
        screen.onTimer2();
    }
    void read(RailScreen &screen)
    {
        screen.ExecutaLeitura();
        settle(screen);
    }

    QString leitura(const QString &malha, int slot = 0)
    {
        Database db(path);
        const auto row = db.masterRow(QStringLiteral("IP 7"), malha);
        if (!row)
            return QStringLiteral("<no row>");
        return slot == 0 ? row->leitura : slot == 1 ? row->g1 : slot == 2 ? row->g2 : row->g3;
    }
};

QString gridValue(QSqlQueryModel *model, int row, const QString &column)
{
    return model->data(model->index(row, model->record().indexOf(column))).toString();
}

// One column of the grid, top to bottom.
QStringList column(QSqlQueryModel *model, const QString &name)
{
    QStringList values;
    for (int r = 0; r < model->rowCount(); ++r)
        values << gridValue(model, r, name);
    return values;
}

template<typename T> T *child(QWidget &screen, const char *name)
{
    return screen.findChild<T *>(QLatin1String(name));
}

} // namespace

class TestRailScreens : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
            QSKIP("Config.vkt was not built");
        if (simAnswer(QStringLiteral("ip7/pmuadc-all.txt")).isEmpty())
            QSKIP("the simulator's answers are not in this tree");
    }

    void readingLandsInMaster()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        VCores screen(b.context);
        screen.ExecutaLeitura();
        QCOMPARE(b.port.written, QByteArrayList{"pmuadc --read all\r"});
        QCOMPARE(b.session.screenId(), QStringLiteral("16"));
        QVERIFY(!child<QPushButton>(screen, "btExecutaLeitura")->isEnabled());
        QVERIFY(!child<QComboBox>(screen, "cbICs")->isEnabled());
        screen.onTimer1(); // the exchange is still running: nothing happens
        QVERIFY(screen.timer1().isActive());
        b.finishExchange();
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(screen.timer2().isActive());
        screen.onTimer2();
        QVERIFY(child<QPushButton>(screen, "btExecutaLeitura")->isEnabled());

        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), QStringLiteral("0.893 V"));
        QCOMPARE(b.leitura(QStringLiteral("I_PP_CPU")), QStringLiteral("352,3 mA"));
        QCOMPARE(b.leitura(QStringLiteral("PP_GPU")), QStringLiteral("0 V"));
        // Class 2 rails are not this screen's.
        QCOMPARE(b.leitura(QStringLiteral("PP1V8_SDRAM")), QString());

        const QStringList shown = column(screen.Data1(), QStringLiteral("Leitura"));
        QVERIFY(!shown.isEmpty() && !shown.contains(QString()));
    }

    void chipFilterAndDecimals()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt")) << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        VCores screen(b.context);
        auto *decimals = screen.findChild<QComboBox *>(QStringLiteral("ComboDecimais"));
        decimals->setCurrentText(QStringLiteral("2")); // a change starts a reading when idle
        QCOMPARE(b.port.written.size(), 1);
        b.settle(screen);
        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), QStringLiteral("0.89 V"));
        QCOMPARE(Database(b.path).combo(1).value_or(QString()), QStringLiteral("2"));

        child<QComboBox>(screen, "cbICs")->setCurrentText(QStringLiteral("NAND"));
        QCOMPARE(b.port.written.size(), 2);
        b.settle(screen);
        const QStringList chips = column(screen.Data1(), QStringLiteral("Ci"));
        QVERIFY(!chips.isEmpty());
        QCOMPARE(chips.filter(QStringLiteral("NAND")), chips);

        // Restored at the next opening.
        VCores again(b.context);
        QCOMPARE(again.findChild<QComboBox *>(QStringLiteral("ComboDecimais"))->currentText(), QStringLiteral("2"));
    }

    void recordedSlotsSurviveARestart()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        {
            BuckLdo screen(b.context);
            b.read(screen);
            b.dialogs.answers = {true};
            screen.gravar(2);
            QVERIFY(screen.readingsSaved());
        }
        QCOMPARE(b.leitura(QStringLiteral("PP1V8_SDRAM"), 2), b.leitura(QStringLiteral("PP1V8_SDRAM")));
        QVERIFY(!b.leitura(QStringLiteral("PP1V8_SDRAM"), 2).isEmpty());
        QCOMPARE(b.leitura(QStringLiteral("PP1V8_SDRAM"), 1), QString());

        BuckLdo reopened(b.context);
        b.dialogs.answers = {false};
        reopened.excluir(2);
        QVERIFY(!b.leitura(QStringLiteral("PP1V8_SDRAM"), 2).isEmpty());
        b.dialogs.answers = {true};
        reopened.excluir(2);
        QCOMPARE(b.leitura(QStringLiteral("PP1V8_SDRAM"), 2), QString());
        QCOMPARE(b.dialogs.shown.last(), QStringLiteral("question:Excluir|Deseja excluir os dados gravados?\n\nGravação 2"));
        QVERIFY(b.dialogs.shown.contains(QStringLiteral("question:Gravar|Deseja salvar?\n\nGravação 2")));
        QCOMPARE(reopened.findChild<QPushButton *>(QStringLiteral("btGravar_2"))->text(), QStringLiteral("Gravar 2"));
    }

    // After a model change the grid lists every rail, whatever the chip list still says:
    // Gravar records exactly those rows.
    void gravarRecordsTheRowsShown()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        VCores screen(b.context);
        child<QComboBox>(screen, "cbICs")->setCurrentText(QStringLiteral("NAND"));
        b.settle(screen);
        b.session.setModelo(QStringLiteral("IP 8"));
        b.session.setModelo(QStringLiteral("IP 7"));
        QVERIFY(column(screen.Data1(), QStringLiteral("Malha")).contains(QStringLiteral("PP_CPU")));
        b.dialogs.answers = {true};
        screen.gravar(1);
        QVERIFY(!b.leitura(QStringLiteral("PP_CPU"), 1).isEmpty());
        QCOMPARE(column(screen.Data1(), QStringLiteral("G1")), column(screen.Data1(), QStringLiteral("Leitura")));
    }

    void failingWriteLeavesNoRowHalfWritten()
    {
        Bench b;
        // The last rail of the reading cannot be written.
        QVERIFY(QSqlQuery(Database(b.path).connection())
                    .exec(QStringLiteral("CREATE TRIGGER refuse BEFORE UPDATE OF Leitura ON Master WHEN NEW.Malha = "
                                         "'PP_GPU_BUCK8' AND NEW.Leitura <> '' BEGIN SELECT RAISE(ABORT, 'refused'); END")));
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        VCores screen(b.context);
        b.read(screen);
        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), QString());
        QVERIFY(b.dialogs.shown.last().startsWith(QStringLiteral("critical:")));
        QVERIFY(child<QPushButton>(screen, "btExecutaLeitura")->isEnabled());
    }

    // The flag is "1" after the empty first answer of a silent port: no reading before the
    // phone is validated, or every rail would read "Sem Medição*" at "0 %".
    void readButtonWaitsForTheValidation()
    {
        Bench b;
        b.session.setConnectionFlag(QStringLiteral("0"));
        b.session.setConnectionFlag(QStringLiteral("1"));
        VCores screen(b.context);
        auto *button = child<QPushButton>(screen, "btExecutaLeitura");
        QVERIFY(!button->isEnabled());
        screen.ExecutaLeitura();
        QVERIFY(b.port.written.isEmpty());
        b.session.setConnectionValidated(true);
        QVERIFY(button->isEnabled());
        b.session.setConnectionFlag(QStringLiteral("0"));
        QVERIFY(!button->isEnabled());
    }

    void pulledCableGivesTheScreenBack()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        VCores screen(b.context);
        b.read(screen);
        const QString before = b.leitura(QStringLiteral("PP_CPU"));
        QVERIFY(!before.isEmpty());
        screen.ExecutaLeitura();
        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), QString()); // wiped as a reading starts
        b.session.setConnectionFlag(QStringLiteral("0"));
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(!screen.readingUnderWay());
        QVERIFY(!child<QPushButton>(screen, "btExecutaLeitura")->isEnabled());
        QVERIFY(child<QComboBox>(screen, "cbICs")->isEnabled());
        // The reading never came: the one that was there is back, in the file and the grid.
        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), before);
        const int cpu = int(column(screen.Data1(), QStringLiteral("Malha")).indexOf(QStringLiteral("PP_CPU")));
        QCOMPARE(column(screen.Data1(), QStringLiteral("Leitura")).value(cpu), before);
    }

    void buckTeste()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/buck.txt")) << simAnswer(QStringLiteral("ip7/buckcheck/1.txt"));
        BuckTeste screen(b.context);
        auto *list = screen.findChild<QListWidget *>(QStringLiteral("ListView"));
        auto *combo = screen.findChild<QComboBox *>(QStringLiteral("Combo1"));

        screen.btBl(BuckTeste::LeituraIndex);
        QCOMPARE(b.port.written.last(), QByteArray("buck\r"));
        QCOMPARE(combo->currentText(), QStringLiteral("5"));
        b.finishExchange();
        QVERIFY(list->count() > 5);
        QCOMPARE(list->item(0)->text(), QStringLiteral("   buck0 voltage: 0.902 V"));

        // A number that cannot be sent clears the previous result and says so.
        auto *status = screen.findChild<QLabel *>(QStringLiteral("lbStatus"));
        combo->setCurrentText(QStringLiteral("abc"));
        screen.btBl(BuckTeste::TesteIndex);
        QCOMPARE(list->count(), 0);
        QCOMPARE(status->text(), QStringLiteral("Número do buck inválido (1 a 99)"));
        combo->setCurrentText(QStringLiteral("100"));
        screen.btBl(BuckTeste::TesteIndex);
        b.session.setConnectionFlag(QStringLiteral("0"));
        screen.btBl(BuckTeste::LeituraIndex);
        QCOMPARE(status->text(), QStringLiteral("Desconectado"));
        b.session.setConnectionFlag(QStringLiteral("1"));
        combo->setCurrentText(QStringLiteral(" 1"));
        b.dialogs.answers = {false};
        screen.btBl(BuckTeste::TesteIndex); // the 50-second question answered No
        QCOMPARE(b.port.written.size(), 1);

        combo->setCurrentText(QStringLiteral(" 1 2"));
        b.port.answers.prepend(simAnswer(QStringLiteral("ip7/buckcheck/1.txt")));
        screen.btBl(BuckTeste::TesteIndex);
        QCOMPARE(b.port.written.last(), QByteArray("buckcheck 12\r"));
        QVERIFY(status->text().isEmpty());
        b.finishExchange();
        QCOMPARE(list->count(), 1);
        QVERIFY(list->item(0)->text().endsWith(QStringLiteral(": PASS")));
        QCOMPARE(list->item(0)->data(Qt::UserRole).toBool(), true);
    }

    // A stored row judged as the command line judges a fresh reading (the tolerance itself is the
    // rail engine's table).
    void rowVerdict_data()
    {
        QTest::addColumn<QString>("malha");
        QTest::addColumn<QString>("refv");
        QTest::addColumn<QString>("leitura");
        QTest::addColumn<QString>("porc");
        QTest::addColumn<int>("expected");
        const int pass = int(Verdict::Pass), fail = int(Verdict::Fail), none = int(Verdict::None);
        QTest::newRow("within") << "PP_CPU" << "0.900" << "0.893 V" << "-0,7 %" << pass;
        QTest::newRow("far below") << "PP_CPU" << "0.900" << "0.714 V" << "-20,6 %" << fail;
        // "0 %" is what a missing measurement is given: it must not turn green.
        QTest::newRow("referenced rail not measured") << "PP_GPU" << "0.800" << "Sem Medição*" << "0 %" << fail;
        QTest::newRow("not measured in English") << "PP_GPU" << "0.800" << "No Measurement*" << "0 %" << fail;
        QTest::newRow("VAR rail far off") << "PP_SOC_VAR" << "0.800" << "0.500 V" << "-37,5 %" << none;
        QTest::newRow("VAR2 rail") << "PP_SRAM_VAR2" << "0.800" << "0.500 V" << "-37,5 %" << none;
        QTest::newRow("not read") << "PP_CPU" << "0.900" << "" << "" << none;
        QTest::newRow("no reference") << "PP_X" << "" << "0.500 V" << "" << none;
        QTest::newRow("reference 0 is not judged") << "PP_X" << "0" << "0.500 V" << "0 %" << none;
        // The verdict comes from the numbers, not from a percentage text cut for the grid.
        QTest::newRow("absurd reading with a short text") << "PP_CPU" << "0.900" << "9000.000 V" << "99999" << fail;
        // Only the shown reading is left: it is judged whatever decimals or unit it was cut to.
        QTest::newRow("two decimals still millivolts") << "PP_CPU" << "0.850" << "0.85 V" << "0 %" << pass;
        QTest::newRow("one decimal, low") << "PP_CPU" << "0.850" << "0.7 V" << "-17,6 %" << fail;
        QTest::newRow("cut to zero") << "PP_CPU" << "0.850" << "0 V" << "-100 %" << fail;
        QTest::newRow("milliamps") << "I_PP_CPU" << "12,3" << "12,3 mA" << "0 %" << pass;
    }
    void rowVerdict()
    {
        QFETCH(QString, malha);
        QFETCH(QString, refv);
        QFETCH(QString, leitura);
        QFETCH(QString, porc);
        QFETCH(int, expected);
        QCOMPARE(int(RailVerdictModel::rowVerdict(malha, refv, leitura, porc)), expected);
    }

    // The colours reach the grid's reading cells only; the texts stay as written.
    void gridColoursFollowTheVerdict()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt")).replace("vbuck0: 893.630 mV", "vbuck0: 714.000 mV");
        VCores screen(b.context);
        b.read(screen);
        const QAbstractItemModel *shown = screen.findChild<QTableView *>(QStringLiteral("grid"))->model();
        QSqlQueryModel *grid = screen.Data1();
        const QSqlRecord record = grid->record();
        const auto colour = [&](int row, const char *column) {
            return shown->data(shown->index(row, record.indexOf(QLatin1String(column))), Qt::BackgroundRole);
        };
        int passed = 0;
        bool sawCpu = false;
        for (int r = 0; r < grid->rowCount(); ++r) {
            const QString malha = gridValue(grid, r, QStringLiteral("Malha"));
            QVERIFY(!colour(r, "Malha").isValid());
            QCOMPARE(colour(r, "Leitura"), colour(r, "Porc"));
            if (malha == QLatin1String("PP_CPU")) {
                sawCpu = true;
                QCOMPARE(gridValue(grid, r, QStringLiteral("Leitura")), QStringLiteral("0.714 V"));
                QCOMPARE(gridValue(grid, r, QStringLiteral("Porc")), QStringLiteral("-20,6 %"));
                QCOMPARE(colour(r, "Leitura").value<QColor>(), RailVerdictModel::FailColour);
            } else if (colour(r, "Leitura").isValid()) {
                passed += colour(r, "Leitura").value<QColor>() == RailVerdictModel::PassColour;
            }
        }
        QVERIFY(sawCpu);
        QVERIFY(passed > 3);
    }

    void buckLdoButtonsOpenTheirScreens()
    {
        Bench b;
        VCores vcores(b.context);
        BuckLdo screen(b.context);
        QStringList opened;
        screen.setScreenOpener([&](const QString &name) -> QWidget * {
            opened << name;
            return name == QLatin1String("VCores") ? &vcores : nullptr;
        });
        for (const char *name : {"Botao1", "Botao2", "Botao3"}) {
            auto *button = screen.findChild<QPushButton *>(QLatin1String(name));
            QVERIFY(!button->isHidden());
            button->click();
        }
        QCOMPARE(opened, (QStringList{"VCores", "BuckTeste", "VCores"}));
        QCOMPARE(vcores.findChild<QComboBox *>(QStringLiteral("cbICs"))->currentText(), QStringLiteral("NAND"));
        const QStringList chips = column(vcores.Data1(), QStringLiteral("Ci"));
        QCOMPARE(chips.filter(QStringLiteral("NAND")), chips);
    }

    void ip6NoteShownOnce_data()
    {
        QTest::addColumn<QString>("modelo");
        QTest::addColumn<int>("notes");
        QTest::newRow("IP 6") << "IP 6" << 1;
        QTest::newRow("IP 6 Plus") << "IP 6 Plus" << 1;
        QTest::newRow("IP 6s") << "IP 6s" << 0;
    }
    void ip6NoteShownOnce()
    {
        QFETCH(QString, modelo);
        QFETCH(int, notes);
        Bench b;
        b.session.setModelo(modelo);
        BuckTeste screen(b.context);
        auto *info = child<QLabel>(screen, "lbInfoBucks");
        QCOMPARE(int(info->text().count(QStringLiteral("IP 6 / IP 6 Plus"))), notes);
        b.session.setIdioma(2); // and again after the screen re-captions itself
        screen.retranslate();
        QCOMPARE(int(info->text().count(QStringLiteral("IP 6 / IP 6 Plus"))), notes);
    }
};

QTEST_MAIN(TestRailScreens)
#include "tst_railscreens.moc"
