// Each reading screen reads the simulated phone end to end: the pseudo-terminal, the real serial
// link and the exchange with its timers, the hand-over and what the screen judged; then the
// command line live on the same phones. One low-rail "IP 8" board serves Tigris, Tristar and
// Chestnut (each sees exactly one value out of its band); the VCore rails read into Config.vkt
// and are judged as the grid judges, and references learned from them catch the low rail; the
// radios of a good and a dead-radio board.
#include "Acorn.h"
#include "Chestnut.h"
#include "CliRun.h"
#include "Database.h"
#include "Displays.h"
#include "RFs.h"
#include "RadioEngine.h"
#include "RailEngine.h"
#include "SimProcess.h"
#include "Tigris.h"
#include "Tristar.h"
#include "VCores.h"

#include <QJsonArray>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSlider>
#include <QtTest>
#include <memory>

namespace {

constexpr int Patience = 40000;

std::unique_ptr<ChipScreen> makeChipScreen(const QString &name, const ScreenContext &context)
{
    if (name == QLatin1String("Tigris"))
        return std::make_unique<Tigris>(context);
    if (name == QLatin1String("Tristar"))
        return std::make_unique<Tristar>(context);
    if (name == QLatin1String("Chestnut"))
        return std::make_unique<Chestnut>(context);
    return std::make_unique<Acorn>(context);
}

// Opens a chip screen on a connected phone (it reads at once); the controls it failed.
QStringList chipFailures(SimLink &link, const QString &name)
{
    std::unique_ptr<ChipScreen> screen = makeChipScreen(name, link.context);
    auto *read = screen->findChild<QPushButton *>(QStringLiteral("btExecutaLeitura"));
    if (read->isEnabled()
        || !QTest::qWaitFor([&] { return read->isEnabled() && link.session.connectedAndIdle(); }, Patience))
        return {QStringLiteral("no reading")};
    QStringList failed;
    for (const ChipReading &r : screen->result().readings) {
        if (r.state != ChipReading::State::Read)
            failed << r.row.control + QStringLiteral(" not read");
        if (r.verdict == Verdict::Fail)
            failed << r.row.control;
    }
    return failed;
}

// Takes a VCore reading into Config.vkt; the rails it stored out of tolerance, as the grid
// judges what it reads back (a rail whose reference is "0" is shown, not judged).
QStringList railFailures(SimLink &link, const QString &config, const QString &model)
{
    {
        VCores screen(link.context);
        screen.ExecutaLeitura();
        if (!screen.readingUnderWay() || !QTest::qWaitFor([&] { return !screen.readingUnderWay(); }, Patience))
            return {QStringLiteral("no reading")};
    }
    MasterFilter filter;
    filter.modelo = model;
    filter.tipo = VCores::Tipo;
    filter.withReftOnly = true;
    const QList<MasterRow> rows = Database(config).masterRows(filter);
    QStringList failed;
    if (rows.size() < 8)
        failed << QStringLiteral("only %1 rails").arg(rows.size());
    for (const MasterRow &row : rows) {
        RailMeasurement m;
        m.leitura = row.leitura;
        m.porc = row.porc;
        const RailVerdict v = RailEngine::verdict(m, row.refv, RailEngine::DefaultTolerancePercent);
        if (row.leitura.isEmpty() || (v == RailVerdict::None) != (row.refv == QLatin1String("0")))
            failed << row.malha + QStringLiteral(" unjudged");
        else if (v == RailVerdict::Fail)
            failed << row.malha;
    }
    return failed;
}

QJsonObject rowNamed(const QJsonArray &rows, const QString &name)
{
    for (const QJsonValue &row : rows)
        if (row.toObject().value(QStringLiteral("name")).toString() == name)
            return row.toObject();
    return {};
}

} // namespace

class TestReadingsSim : public QObject
{
    Q_OBJECT

    SimPhones m_phones;

private slots:
    void initTestCase()
    {
        if (!SimProcess::available())
            QSKIP("vekto-sim or Config.vkt was not built");
    }

    void reading_data()
    {
        QTest::addColumn<QString>("screen");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<QStringList>("failing");
        QTest::newRow("Tigris low rail") << "Tigris" << "IP 8" << "low-rail" << QStringList{"VBus_V"};
        QTest::newRow("Tristar low rail") << "Tristar" << "IP 8" << "low-rail" << QStringList{"Malha2_V"};
        QTest::newRow("Chestnut low rail") << "Chestnut" << "IP 8" << "low-rail" << QStringList{"iLDO_V(1)"};
        QTest::newRow("Acorn good IP X") << "Acorn" << "IP X" << "good" << QStringList{};
        QTest::newRow("VCores good IP 7") << "VCores" << "IP 7" << "good" << QStringList{};
        QTest::newRow("VCores good IP X") << "VCores" << "IP X" << "good" << QStringList{};
        QTest::newRow("VCores low rail") << "VCores" << "IP 7" << "low-rail" << QStringList{"PP_CPU"};
    }
    void reading()
    {
        QFETCH(QString, screen);
        QFETCH(QString, model);
        QFETCH(QString, profile);
        QFETCH(QStringList, failing);
        SimProcess *sim = m_phones.get(model, profile);
        QVERIFY(sim);
        ConfigCopy config;
        QVERIFY(config.ok());
        SimLink link(config.path(), model);
        QVERIFY(link.open(sim->port()));
        const QStringList failed = screen == QLatin1String("VCores") ? railFailures(link, config.path(), model)
                                                                      : chipFailures(link, screen);
        QCOMPARE(failed, failing);
        QVERIFY2(link.dialogs.shown.isEmpty(), qPrintable(link.dialogs.shown.join(u'\n')));
        link.port.close();
    }

    void radios_data()
    {
        QTest::addColumn<QString>("profile");
        QTest::addColumn<bool>("alive");
        QTest::newRow("good board") << "good" << true;
        QTest::newRow("dead radios") << "dead-radio" << false;
    }
    void radios()
    {
        QFETCH(QString, profile);
        QFETCH(bool, alive);
        ConfigCopy config;
        SimProcess *sim = m_phones.get(QStringLiteral("IP 7"), profile);
        QVERIFY(sim && config.ok());
        SimLink link(config.path(), QStringLiteral("IP 7"));
        QVERIFY(link.open(sim->port()));
        RFs screen(link.context);
        auto *frame = screen.findChild<QWidget *>(QStringLiteral("FrameBotoes"));
        for (int radio = 0; radio < RadioEngine::RadioCount; ++radio) {
            screen.findChild<QPushButton *>(QStringLiteral("btOn_%1").arg(radio))->click();
            QVERIFY(!frame->isEnabled());
            QTRY_VERIFY_WITH_TIMEOUT(frame->isEnabled(), 20000);
            const QString status = screen.findChild<QLabel *>(QStringLiteral("lbStatus2"))->text();
            const QString expected = RadioEngine::name(quint8(radio)) +
                                     (alive ? QStringLiteral("\r\nCOMUNICAÇÃO OK") : QStringLiteral("\r\nCOMUNICAÇÃO OFF"));
            QCOMPARE(status, expected);
            const QColor colour = screen.findChild<QLabel *>(RadioEngine::backgroundLabel(quint8(radio)))
                                      ->palette().color(QPalette::Window);
            QCOMPARE(colour, alive ? RadioEngine::PassColour : RadioEngine::FailColour);
            QCOMPARE(link.session.connectionFlag(), QStringLiteral("1"));
        }
        QVERIFY(link.dialogs.shown.isEmpty());
    }

    void backlightLevel()
    {
        ConfigCopy config;
        SimProcess *sim = m_phones.get(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY(sim && config.ok());
        SimLink link(config.path(), QStringLiteral("IP 7"));
        QVERIFY(link.open(sim->port()));
        Displays screen(link.context);
        auto *dados = screen.findChild<QPlainTextEdit *>(QStringLiteral("txtDados"));
        screen.findChild<QSlider *>(QStringLiteral("Slider1"))->setValue(37);
        QTRY_VERIFY_WITH_TIMEOUT(dados->toPlainText().contains(QStringLiteral("backlight level 37")), 20000);
        screen.findChild<QPushButton *>(QStringLiteral("btBl_1"))->click();
        QTRY_VERIFY_WITH_TIMEOUT(dados->toPlainText().contains(QStringLiteral("backlight off")), 20000);
    }

    // The live command line, the model recognised as the connect button does (a silent phone
    // cannot be recognised, so its model is given; it gets no verdict, and that is no pass).
    void liveCommandLine_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("profile");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("firstRow"); // the result control and its verdict
        QTest::newRow("chestnut low rail") << QStringList{"chestnut", "--model", "auto"} << "IP 8" << "low-rail" << 1
                                           << "iLDO_V(1) fail";
        QTest::newRow("gps, good") << QStringList{"rf", "--radio", "gps", "--model", "auto"} << "IP 7" << "good" << 0
                                   << "lbFundoGps pass";
        QTest::newRow("wifi, dead") << QStringList{"rf", "--radio", "3", "--model", "auto"} << "IP 7" << "dead-radio" << 1
                                    << "lbFundoWifi fail";
        QTest::newRow("bluetooth, silent") << QStringList{"rf", "--radio", "1", "--model", "IP 7"} << "IP 7" << "silent"
                                           << 1 << "lbFundoBlue none";
    }
    void liveCommandLine()
    {
        QFETCH(QStringList, args);
        QFETCH(QString, model);
        QFETCH(QString, profile);
        QFETCH(int, exitCode);
        QFETCH(QString, firstRow);
        SimProcess *sim = m_phones.get(model, profile);
        QVERIFY(sim);
        const CliRun run = runCli(QStringList{"run"} + args + QStringList{"--port", sim->port(), "--db",
                                                                          SimProcess::shippedConfig(), "--json"});
        QVERIFY2(run.exitCode == exitCode, qPrintable(run.describe()));
        QCOMPARE(run.json.value("model").toString(), model);
        const QJsonObject first = run.json.value("rows").toArray().first().toObject();
        QCOMPARE(first.value("name").toString() + u' ' + first.value("verdict").toString(), firstRow);
        if (firstRow.endsWith(QLatin1String("none")))
            QVERIFY(run.json.value("status").isNull());
    }

    // References learned from the shop's own boards: three good readings recorded in the VCore
    // screen,
    // `vekto-cli refs learn`, then the low-rail board judged live against what was learned.
    void learnedReferenceCatchesTheLowRail()
    {
        ConfigCopy config;
        QVERIFY(config.ok());
        const QString model = QStringLiteral("IP 7");
        {
            // The simulated good boards are alike: one phone stands in for the three.
            SimProcess *good = m_phones.get(model, QStringLiteral("good"));
            QVERIFY(good);
            SimLink link(config.path(), model);
            QVERIFY(link.open(good->port()));
            VCores screen(link.context);
            for (int slot = 1; slot <= 3; ++slot) {
                screen.ExecutaLeitura();
                QTRY_VERIFY_WITH_TIMEOUT(!screen.readingUnderWay(), 40000);
                screen.gravar(slot);
            }
            QVERIFY2(!link.dialogs.shown.join(u'\n').contains(QLatin1String("critical")), qPrintable(link.dialogs.shown.join(u'\n')));
            link.port.close();
        }

        const QStringList db{QStringLiteral("--db"), config.path(), QStringLiteral("--json")};
        const CliRun learned = runCli(QStringList{QStringLiteral("refs"), QStringLiteral("learn"), QStringLiteral("--model"), model} + db);
        QVERIFY2(learned.exitCode == 0, qPrintable(learned.describe()));
        const QJsonObject cpu = rowNamed(learned.json.value(QStringLiteral("rails")).toArray(), QStringLiteral("PP_CPU"));
        QCOMPARE(cpu.value(QStringLiteral("readings")).toInt(), 3);
        QCOMPARE(cpu.value(QStringLiteral("outcome")).toString(), QStringLiteral("learned"));

        const CliRun shown = runCli(QStringList{QStringLiteral("refs"), QStringLiteral("show"), QStringLiteral("--model"), model} + db);
        QVERIFY2(shown.exitCode == 0, qPrintable(shown.describe()));
        const QJsonObject origin = rowNamed(shown.json.value(QStringLiteral("rails")).toArray(), QStringLiteral("PP_CPU"))
                                       .value(QStringLiteral("origin")).toObject();
        QCOMPARE(origin.value(QStringLiteral("state")).toString(), QStringLiteral("learned"));
        QCOMPARE(origin.value(QStringLiteral("boards")).toInt(), 3);

        SimProcess *low = m_phones.get(model, QStringLiteral("low-rail"));
        QVERIFY(low);
        const CliRun judged = runCli(QStringList{QStringLiteral("run"), QStringLiteral("vcore"), QStringLiteral("--port"),
                                                 low->port(), QStringLiteral("--model"), model} + db);
        QVERIFY2(judged.exitCode == 1, qPrintable(judged.describe()));
        const QJsonArray rows = judged.json.value(QStringLiteral("rows")).toArray();
        const QJsonObject lowRail = rowNamed(rows, QStringLiteral("PP_CPU"));
        QCOMPARE(lowRail.value(QStringLiteral("verdict")).toString(), QStringLiteral("fail"));
        const double deviation =
            lowRail.value(QStringLiteral("deviation")).toString().remove(QStringLiteral(" %")).replace(u',', u'.').toDouble();
        QVERIFY2(deviation < -10, qPrintable(lowRail.value(QStringLiteral("deviation")).toString()));
        QCOMPARE(rowNamed(rows, QStringLiteral("I_PP_CPU")).value(QStringLiteral("verdict")).toString(), QStringLiteral("pass"));
    }
};

QTEST_MAIN(TestReadingsSim)
#include "tst_readings_sim.moc"
