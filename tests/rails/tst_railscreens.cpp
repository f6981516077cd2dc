// The rail screens on a real Config.vkt: a reading through the exchange lands in Master, the
// recorded slots outlive the screen, and a write that fails leaves no row half-written.
#include "BuckLdo.h"
#include "BuckTeste.h"
#include "ConsoleExchange.h"
#include "Database.h"
#if defined(__GNUC__) && !defined(__clang__)
// GCC 12 sees a moved-from optional<QString> in the fake's input queue as uninitialised.
#endif
#include "FakeDialogs.h"
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

    void read(RailScreen &screen)
    {
        screen.ExecutaLeitura();
        finishExchange();
        screen.onTimer1();
        screen.onTimer2();
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
        QVERIFY(!screen.findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"))->isEnabled());
        QVERIFY(!screen.findChild<QComboBox *>(QStringLiteral("cbICs"))->isEnabled());
        screen.onTimer1(); // the exchange is still running: nothing happens
        QVERIFY(screen.timer1().isActive());
        b.finishExchange();
        screen.onTimer1();
        QVERIFY(!screen.timer1().isActive());
        QVERIFY(screen.timer2().isActive());
        screen.onTimer2();
        QVERIFY(screen.findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"))->isEnabled());

        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), QStringLiteral("0.893 V"));
        QCOMPARE(b.leitura(QStringLiteral("I_PP_CPU")), QStringLiteral("352,3 mA"));
        QCOMPARE(b.leitura(QStringLiteral("PP_GPU")), QStringLiteral("0 V"));
        // Class 2 rails are not this screen's.
        QCOMPARE(b.leitura(QStringLiteral("PP1V8_SDRAM")), QString());

        QSqlQueryModel *grid = screen.Data1();
        QVERIFY(grid->rowCount() > 0);
        for (int r = 0; r < grid->rowCount(); ++r)
            QVERIFY2(!gridValue(grid, r, QStringLiteral("Leitura")).isEmpty(),
                     qPrintable(gridValue(grid, r, QStringLiteral("Malha"))));
    }

    void chipFilterAndDecimals()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt")) << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        VCores screen(b.context);
        auto *decimals = screen.findChild<QComboBox *>(QStringLiteral("ComboDecimais"));
        decimals->setCurrentText(QStringLiteral("2")); // a change starts a reading when idle
        QCOMPARE(b.port.written.size(), 1);
        b.finishExchange();
        screen.onTimer1();
        screen.onTimer2();
        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), QStringLiteral("0.89 V"));
        QCOMPARE(Database(b.path).combo(1).value_or(QString()), QStringLiteral("2"));

        screen.findChild<QComboBox *>(QStringLiteral("cbICs"))->setCurrentText(QStringLiteral("NAND"));
        QCOMPARE(b.port.written.size(), 2);
        b.finishExchange();
        screen.onTimer1();
        screen.onTimer2();
        QSqlQueryModel *grid = screen.Data1();
        QVERIFY(grid->rowCount() > 0);
        for (int r = 0; r < grid->rowCount(); ++r)
            QVERIFY(gridValue(grid, r, QStringLiteral("Ci")).contains(QStringLiteral("NAND")));

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
        QCOMPARE(b.dialogs.shown.last(), QStringLiteral("question:Excluir|Deseja excluir os dados gravados?"));
    }

    // After a model change the grid lists every rail, whatever the chip list still says:
    // Gravar records exactly those rows.
    void gravarRecordsTheRowsShown()
    {
        Bench b;
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        VCores screen(b.context);
        screen.findChild<QComboBox *>(QStringLiteral("cbICs"))->setCurrentText(QStringLiteral("NAND"));
        b.finishExchange();
        screen.onTimer1();
        screen.onTimer2();
        b.session.setModelo(QStringLiteral("IP 8"));
        b.session.setModelo(QStringLiteral("IP 7"));
        QSqlQueryModel *grid = screen.Data1();
        QStringList shown;
        for (int r = 0; r < grid->rowCount(); ++r)
            shown << gridValue(grid, r, QStringLiteral("Malha"));
        QVERIFY2(shown.contains(QStringLiteral("PP_CPU")), qPrintable(shown.join(u',')));

        b.dialogs.answers = {true};
        screen.gravar(1);
        QVERIFY(!b.leitura(QStringLiteral("PP_CPU"), 1).isEmpty());
        for (int r = 0; r < grid->rowCount(); ++r)
            QCOMPARE(gridValue(grid, r, QStringLiteral("G1")), gridValue(grid, r, QStringLiteral("Leitura")));
    }

    void failingWriteLeavesNoRowHalfWritten()
    {
        Bench b;
        {
            Database db(b.path);
            QSqlQuery q(db.connection());
            // The last rail of the reading cannot be written.
            QVERIFY(q.exec(QStringLiteral(
                "CREATE TRIGGER refuse BEFORE UPDATE OF Leitura ON Master "
                "WHEN NEW.Malha = 'PP_GPU_BUCK8' AND NEW.Leitura <> '' BEGIN SELECT RAISE(ABORT, 'refused'); END")));
        }
        b.port.answers << simAnswer(QStringLiteral("ip7/pmuadc-all.txt"));
        VCores screen(b.context);
        b.read(screen);
        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), QString());
        QVERIFY(b.dialogs.shown.last().startsWith(QStringLiteral("critical:")));
        QVERIFY(screen.findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"))->isEnabled());
    }

    // The flag is "1" after the empty first answer of a silent port: no reading before the
    // phone is validated, or every rail would read "Sem Medição*" at "0 %".
    void readButtonWaitsForTheValidation()
    {
        Bench b;
        b.session.setConnectionFlag(QStringLiteral("0"));
        b.session.setConnectionFlag(QStringLiteral("1"));
        VCores screen(b.context);
        auto *button = screen.findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"));
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
        QVERIFY(!screen.findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"))->isEnabled());
        QVERIFY(screen.findChild<QComboBox *>(QStringLiteral("cbICs"))->isEnabled());
        // The reading never came: the one that was there is back, in the file and the grid.
        QCOMPARE(b.leitura(QStringLiteral("PP_CPU")), before);
        QSqlQueryModel *grid = screen.Data1();
        bool shown = false;
        for (int r = 0; r < grid->rowCount(); ++r)
            shown = shown || (gridValue(grid, r, QStringLiteral("Malha")) == QLatin1String("PP_CPU")
                              && gridValue(grid, r, QStringLiteral("Leitura")) == before);
        QVERIFY(shown);
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

        combo->setCurrentText(QStringLiteral("abc"));
        screen.btBl(BuckTeste::TesteIndex);
        combo->setCurrentText(QStringLiteral("100"));
        screen.btBl(BuckTeste::TesteIndex);
        combo->setCurrentText(QStringLiteral(" 1"));
        b.dialogs.answers = {false};
        screen.btBl(BuckTeste::TesteIndex); // the 50-second question answered No
        QCOMPARE(b.port.written.size(), 1);

        combo->setCurrentText(QStringLiteral(" 1 2"));
        b.port.answers.prepend(simAnswer(QStringLiteral("ip7/buckcheck/1.txt")));
        screen.btBl(BuckTeste::TesteIndex);
        QCOMPARE(b.port.written.last(), QByteArray("buckcheck 12\r"));
        b.finishExchange();
        QCOMPARE(list->count(), 1);
        QVERIFY(list->item(0)->text().endsWith(QStringLiteral(": PASS")));
        QCOMPARE(list->item(0)->data(Qt::UserRole).toBool(), true);
    }

    void infoBucksPerModel()
    {
        const auto same = [](const QString &k) { return k; };
        QVERIFY(BuckTeste::infoBucks(QStringLiteral("IP 6"), same).contains(QStringLiteral("buck6 = NC")));
        QVERIFY(BuckTeste::infoBucks(QStringLiteral("IP 6s Plus"), same).contains(QStringLiteral("buck6 = CAMERA")));
        QVERIFY(BuckTeste::infoBucks(QStringLiteral("IP 8"), same).contains(QStringLiteral("buck9 = CAMERA")));
        QCOMPARE(BuckTeste::infoBucks(QStringLiteral("IP X"), same), QStringLiteral("\n\n   VAR2"));
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
        const QString info = screen.findChild<QLabel *>(QStringLiteral("lbInfoBucks"))->text();
        QCOMPARE(int(info.count(QStringLiteral("IP 6 / IP 6 Plus"))), notes);
        b.session.setIdioma(2); // and again after the screen re-captions itself
        screen.retranslate();
        QCOMPARE(int(screen.findChild<QLabel *>(QStringLiteral("lbInfoBucks"))->text().count(QStringLiteral("IP 6 / IP 6 Plus"))),
                 notes);
    }
};

QTEST_MAIN(TestRailScreens)
#include "tst_railscreens.moc"
