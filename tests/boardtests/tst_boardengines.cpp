// The board-test rules without a screen. I2C: how a bus answer is judged device by device, how
// the failure list grows, and the shipped demo references. NAND and additional tests: the size
// line read into a size class (every class edge and gap, the digit rule, the length limits) and
// the status checks with their length thresholds. Radios: which answer passes for which radio
// (plain, case-sensitive substrings, any "OK" included), and the commands behind the buttons.
#include "Board.h"
#include "Database.h"
#include "I2CEngine.h"
#include "NandEngine.h"
#include "OutrosEngine.h"
#include "RadioEngine.h"
#include "SimCatalog.h"

#include <QtTest>

Q_DECLARE_METATYPE(Verdict)

namespace {

const QString Prompt = QStringLiteral("[0000002a:0000001b] :-) ");

QString scan(int bus, const QStringList &addresses)
{
    QString text = QStringLiteral("\r\ni2c -s %1\r\r\nScanning I2C bus %1\r\n").arg(bus);
    for (const QString &a : addresses)
        text += QStringLiteral("  device answered at 0") + a + QStringLiteral("\r\n");
    return text + Prompt;
}

// A "nandsize" answer as the console holds it, whose size text (from just after the ":" to the
// CR LF before the prompt) is exactly `sizeText`.
QString sizeAnswer(const QString &sizeText)
{
    return QStringLiteral("\r\nnandsize\r\r\nnand size check Passed, size in KiB:") + sizeText + QStringLiteral("\r\n")
        + Prompt;
}

// The size text whose value divided by 1,000,000 is `megas` plus `extra`.
QString hexOf(qint64 megas, qint64 extra = 0)
{
    return QString::number(megas * 1000000 + extra, 16).toUpper();
}

// `text` followed by blanks up to `length` characters.
QString padded(const QString &text, int length)
{
    return text + QString(length - text.size(), u' ');
}

} // namespace

class TestBoardEngines : public QObject
{
    Q_OBJECT

private slots:
    void i2cJudge_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("verdicts"); // one letter per row: P pass, F fail, N not judged
        QTest::addColumn<QStringList>("lines");
        const QStringList bus2 = {"2x37-Front Camera", "2x39-Prox ALS Sensor"};
        QTest::newRow("both answer") << scan(2, {"x37", "x39"}) << bus2 << "PP"
                                     << QStringList{"x37 - Front Camera - COMUNICAÇÃO OK",
                                                    "x39 - Prox ALS Sensor - COMUNICAÇÃO OK"};
        QTest::newRow("one silent") << scan(2, {"x37"}) << bus2 << "PF"
                                    << QStringList{"x37 - Front Camera - COMUNICAÇÃO OK",
                                                   "x39 - Prox ALS Sensor - COMUNICAÇÃO OFF"};
        QTest::newRow("both silent") << scan(2, {}) << bus2 << "FF"
                                     << QStringList{"x37 - Front Camera - COMUNICAÇÃO OFF",
                                                    "x39 - Prox ALS Sensor - COMUNICAÇÃO OFF"};
        QTest::newRow("address inside an unrelated token")
            << QStringLiteral("error 0x3915 on bus\r\n") + Prompt << QStringList{"2x39-Prox"} << "P"
            << QStringList{"x39 - Prox - COMUNICAÇÃO OK"};
        QTest::newRow("letter case of the address counts") << scan(0, {"x1A"}) << QStringList{"0x1a-Tristar"} << "F"
                                                           << QStringList{"x1a - Tristar - COMUNICAÇÃO OFF"};
        QTest::newRow("no rows: no line") << scan(5, {"x2a"}) << QStringList{} << "" << QStringList{};
        QTest::newRow("description after the first dash only")
            << scan(0, {"x74"}) << QStringList{"0x74-PMU - main"} << "P" << QStringList{"x74 - PMU - main - COMUNICAÇÃO OK"};
        QTest::newRow("no dash: the text after the address")
            << scan(0, {"x74"}) << QStringList{"0x74PMU"} << "P" << QStringList{"x74 - PMU - COMUNICAÇÃO OK"};
        QTest::newRow("row too short is never passed") << scan(0, {"x74"}) << QStringList{"0x", ""} << "NN"
                                                       << QStringList{"0x - Referência inválida", " - Referência inválida"};
        QTest::newRow("garbage answer") << QStringLiteral("\xFFFD\x1b[0m\x07") + QString(1 << 20, u'?')
                                        << QStringList{"0x74-PMU"} << "F" << QStringList{"x74 - PMU - COMUNICAÇÃO OFF"};
    }
    void i2cJudge()
    {
        QFETCH(QString, answer);
        QFETCH(QStringList, entries);
        QFETCH(QString, verdicts);
        QFETCH(QStringList, lines);
        const I2CBusResult r = I2CEngine::judge(2, answer, entries);
        QString got;
        QStringList gotLines;
        for (const I2CDeviceResult &d : r.devices) {
            got += d.verdict == Verdict::Pass ? u'P' : d.verdict == Verdict::Fail ? u'F' : u'N';
            gotLines << d.line;
        }
        QCOMPARE(got, verdicts);
        QCOMPARE(gotLines, lines);
        QCOMPARE(r.anyFailed(), verdicts.contains(u'F'));
    }

    void failureList_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("before");
        QTest::addColumn<int>("bus");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("after");
        QTest::newRow("nothing failed leaves the list") << "IP 7" << "" << 2 << scan(2, {"x37", "x39"}) << "";
        QTest::newRow("one failing device with its connector")
            << "IP 7" << "" << 2 << scan(2, {"x37"})
            << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx39 - Prox ALS Sensor";
        QTest::newRow("two failing devices, one heading")
            << "IP 7" << "" << 2 << scan(2, {})
            << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx37 - Front Camera\nx39 - Prox ALS Sensor";
        QTest::newRow("IP 7 Plus words in their own order")
            << "IP 7 Plus" << "" << 2 << scan(2, {"x37"})
            << "I2C 2\nJ4503 - Flex Front Camera and Sensor Prox. Cable \nx39 - Prox ALS Sensor";
        QTest::newRow("bus without a connector text") << "IP 6s" << "" << 2 << scan(2, {"x37"})
                                                      << "I2C 2\nx39 - Prox ALS Sensor";
        QTest::newRow("second bus after a blank line")
            << "IP 8 Plus" << "I2C 0\nx74 - PMU" << 3 << scan(3, {})
            << "I2C 0\nx74 - PMU\n\nI2C 3\n0X51 - RF \nx37 - Front Camera\nx39 - Prox ALS Sensor";
        QTest::newRow("a description naming the bus is no heading")
            << "IP 8" << "I2C 1\nDOCK \nx72 - see I2C 3" << 3 << scan(3, {})
            << "I2C 1\nDOCK \nx72 - see I2C 3\n\nI2C 3\nDOCK \nx37 - Front Camera\nx39 - Prox ALS Sensor";
        QTest::newRow("heading already there: devices only")
            << "IP 7" << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx37 - Front Camera" << 2
            << scan(2, {"x37"})
            << "I2C 2\nJ4503 - Flex Front Camera and Prox. Sensor Cable \nx37 - Front Camera\nx39 - Prox ALS Sensor";
    }
    void failureList()
    {
        QFETCH(QString, model);
        QFETCH(QString, before);
        QFETCH(int, bus);
        QFETCH(QString, answer);
        QFETCH(QString, after);
        // The rows of the bus under test, whatever its number.
        QStringList entries;
        for (const QString &e : {QStringLiteral("x37-Front Camera"), QStringLiteral("x39-Prox ALS Sensor")})
            entries << QString::number(bus) + e;
        const I2CBusResult r = I2CEngine::judge(bus, answer, entries);
        QCOMPARE(I2CEngine::appendFailures(before, r, model), after);
    }

    // The demo references must stay those of the simulator's good board: for every model and bus,
    // the rows Config.vkt gives the screen are the simulator's devices in the same order, and the
    // good board's scan passes every one of them.
    void seedMatchesSimulator_data()
    {
        QTest::addColumn<QString>("model");
        for (const SimModel &m : SimCatalog::models())
            QTest::newRow(qPrintable(m.name)) << m.name;
    }
    void seedMatchesSimulator()
    {
        QFETCH(QString, model);
        if (!QFile::exists(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt")))
            QSKIP("Config.vkt was not built");
        QMap<int, QStringList> expected;
        const QList<QByteArray> lines = AnswerStore().dataFile(QStringLiteral("i2c.tsv")).split('\n');
        for (const QByteArray &line : lines.mid(1)) {
            const QList<QByteArray> c = line.split('\t');
            if (c.size() >= 5 && QString::fromUtf8(c[0]) == model)
                expected[c[1].toInt()] << QString::fromUtf8(c[4]);
        }
        QVERIFY(!expected.isEmpty());

        Database db(QStringLiteral(VEKTO_BIN_DIR "/Config.vkt"), Database::Access::ReadOnly);
        Board board(AnswerStore(), *SimCatalog::modelByName(model), Profile::Good);
        for (int bus = 0; bus < I2CEngine::BusCount; ++bus) {
            const QStringList rows = db.i2cTextsStartingWith(model, QString::number(bus));
            QCOMPARE(rows, expected.value(bus));
            const QString answer = QString::fromUtf8(board.answerBody(I2CEngine::command(bus)));
            const I2CBusResult r = I2CEngine::judge(bus, answer, rows);
            QVERIFY2(!r.anyFailed(), qPrintable(model + QStringLiteral(" bus ") + QString::number(bus)));
        }
        // Every bus the automatic run probes has something to check.
        for (int bus : I2CAutoRun::sequence(I2CEngine::busLayout(model)))
            QVERIFY2(expected.contains(bus), qPrintable(model + QStringLiteral(" bus ") + QString::number(bus)));
    }

    void sizeClasses_data()
    {
        QTest::addColumn<QString>("sizeText");
        QTest::addColumn<QString>("caption");
        QTest::addColumn<int>("verdict");
        const int pass = int(Verdict::Pass), fail = int(Verdict::Fail);
        QTest::newRow("3B9ACA") << "3B9ACA" << "3 GB APROX." << fail;
        QTest::newRow("simulated IP 7, with its blank and 0x") << " 0x8000000" << "128 GB" << pass;
        QTest::newRow("N 21 between 16 and 32") << hexOf(21) << "21 GB APROX." << fail;
        // Every edge of every class, and the gaps between them.
        const QList<std::tuple<int, QString>> edges = {
            {0, {}},       {6, {}},       {7, "8 GB"},     {12, "8 GB"},     {13, {}},        {14, "16 GB"},
            {20, "16 GB"}, {22, "32 GB"}, {39, "32 GB"},   {40, {}},         {45, {}},        {46, "64 GB"},
            {79, "64 GB"}, {80, {}},      {81, "128 GB"},  {139, "128 GB"},  {140, {}},       {190, {}},
            {191, "256 GB"}, {349, "256 GB"}, {350, {}},   {351, "512 GB"},  {699, "512 GB"}, {700, {}},
            {701, "1024 GB"}, {1299, "1024 GB"}, {1300, {}}, {5000, {}},
        };
        for (const auto &[n, caption] : edges)
            QTest::addRow("N %d", n) << hexOf(n) << (caption.isEmpty() ? QString::number(n) + " GB APROX." : caption)
                                     << (caption.isEmpty() ? fail : pass);
        // N is rounded down: just below a class edge stays outside it.
        QTest::newRow("6.999999 rounds down to 6") << hexOf(6, 999999) << "6 GB APROX." << fail;
        QTest::newRow("12.999999 rounds down to 12") << hexOf(12, 999999) << "8 GB" << pass;
        // Only upper-case digits count; lower-case and other characters weigh 0 in their place.
        QTest::newRow("upper case 1E000000") << "1E000000" << "512 GB" << pass;
        QTest::newRow("lower case 1e000000") << "1e000000" << "256 GB" << pass;
        QTest::newRow("all lower case") << "ffffffff" << "0 GB APROX." << fail;
        QTest::newRow("letters beyond F") << "1G000000" << "256 GB" << pass;
        QTest::newRow("51 characters") << padded({}, 44) + "8000000" << "128 GB" << pass;
        QTest::newRow("digits after the value") << "8000000 KiB" << "8796093 GB APROX." << fail;
    }
    void sizeClasses()
    {
        QFETCH(QString, sizeText);
        QFETCH(QString, caption);
        QFETCH(int, verdict);
        const NandEngine::Size size = NandEngine::size(sizeAnswer(sizeText));
        QCOMPARE(size.outcome, NandEngine::Size::Outcome::Read);
        QCOMPARE(size.sizeText, sizeText);
        QCOMPARE(NandEngine::sizeCaption(size, QStringLiteral("APROX.")), caption);
        QCOMPARE(int(NandEngine::sizeVerdict(size)), verdict);
    }

    void sizeNotRead_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("outcome");
        using O = NandEngine::Size::Outcome;
        QTest::newRow("52 characters") << sizeAnswer(padded({}, 45) + "8000000") << int(O::TooLong);
        QTest::newRow("no colon") << QStringLiteral("\r\nnandsize\r\r\nnand size check Passed 0x8000000\r\n")
                                         + QStringLiteral("[0000002a-0000001b] :-) ")
                                  << int(O::Unreadable);
        QTest::newRow("no bracket") << QStringLiteral("\r\nnandsize\r\r\nnand size check Passed, size in KiB: 0x8000000\r\n")
                                    << int(O::Unreadable);
        QTest::newRow("colon only inside the prompt") << QStringLiteral("\r\nnandsize\r\r\nsize check Passed 0x8000000\r\n")
                                                             + Prompt
                                                      << int(O::Unreadable);
        QTest::newRow("nothing between") << QStringLiteral("\r\nnandsize\r\r\nnand size check Passed, size in KiB:\r\n")
                                                + Prompt
                                         << int(O::Unreadable);
        QTest::newRow("IP 6") << QStringLiteral("\r\nnandsize\r\r\nCommand \"nandsize\" not found\r\n") + Prompt
                              << int(O::NotAvailable);
        QTest::newRow("the empty answer of a silent phone") << QStringLiteral("\r\n") << int(O::TooShort);
    }
    void sizeNotRead()
    {
        QFETCH(QString, answer);
        QFETCH(int, outcome);
        const NandEngine::Size size = NandEngine::size(answer);
        QCOMPARE(int(size.outcome), outcome);
        QCOMPARE(NandEngine::sizeVerdict(size), Verdict::None);
        QVERIFY(NandEngine::sizeCaption(size, QStringLiteral("APROX.")).isEmpty());
    }

    // The shortest answer read as a size holds 41 characters.
    void sizeThreshold_data()
    {
        QTest::addColumn<int>("length");
        QTest::addColumn<bool>("read");
        QTest::newRow("40") << 40 << false;
        QTest::newRow("41") << 41 << true;
    }
    void sizeThreshold()
    {
        QFETCH(int, length);
        QFETCH(bool, read);
        const QString tail = QStringLiteral(": 0x8000000\r\n[0000002a:0000001b]");
        const QString answer = QString(length - tail.size(), u'.') + tail;
        QCOMPARE(answer.size(), length);
        const NandEngine::Size size = NandEngine::size(answer);
        QCOMPARE(size.outcome == NandEngine::Size::Outcome::Read, read);
        if (read)
            QCOMPARE(size.classGb, 128);
    }

    void nandStatus_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<int>("outcome");
        QTest::addColumn<int>("verdict");
        using O = NandEngine::Status::Outcome;
        const int judged = int(O::Judged), pass = int(Verdict::Pass), fail = int(Verdict::Fail),
                  none = int(Verdict::None);
        const auto answer = [](const QString &command, const QString &line, int length = 0) {
            const QString text = QStringLiteral("\r\n") + command + QStringLiteral("\r\r\n") + line + QStringLiteral("\r\n");
            return padded(text, qMax(length, int(text.size()))) + Prompt;
        };
        QTest::newRow("uid passed") << 0 << answer("nanduid", "NAND UID read Passed\r\nUID: 0B78BF7A") << judged << pass;
        QTest::newRow("Pass without -ed") << 0 << answer("nanduid", "uid read Pass ............") << judged << pass;
        QTest::newRow("upper-case PASSED") << 0 << answer("nanduid", "NAND UID read PASSED ........") << judged << fail;
        QTest::newRow("info by its name line") << 2 << answer("nand --getinfo", "  vendor name: Hynix") << judged << pass;
        QTest::newRow("Name: is not name:") << 2 << answer("nand --getinfo", "  Vendor Name: Hynix ......") << judged
                                            << fail;
        QTest::newRow("failed size") << 1 << answer("nandsize", "nand size check Failed, no response") << judged << fail;
        QTest::newRow("not found") << 0 << answer("nanduid", "Command \"nanduid\" not found") << int(O::NotAvailable)
                                   << none;
        QTest::newRow("not found wins over Passed") << 2 << answer("nand --getinfo", "Passed; firmware not found")
                                                    << int(O::NotAvailable) << none;
        // syscfg list is judged by its length only.
        QTest::newRow("syscfg 7000 with Passed") << 3 << padded("syscfg list Passed", 7000) << judged << fail;
        QTest::newRow("syscfg 7001 without Pass") << 3 << padded("syscfg list", 7001) << judged << pass;
        // Fewer than 61 characters is no answer yet, whatever it says.
        QTest::newRow("60 characters") << 0 << padded("\r\nnanduid\r\r\nNAND UID read Passed", 60) << int(O::TooShort)
                                       << none;
        QTest::newRow("61 characters") << 0 << padded("\r\nnanduid\r\r\nNAND UID read Passed", 61) << judged << pass;
        QTest::newRow("silent phone") << 2 << QStringLiteral("\r\n") << int(O::TooShort) << none;
    }
    void nandStatus()
    {
        QFETCH(int, mode);
        QFETCH(QString, answer);
        QFETCH(int, outcome);
        QFETCH(int, verdict);
        const NandEngine::Status status = NandEngine::status(answer, mode);
        QCOMPARE(int(status.outcome), outcome);
        QCOMPARE(int(status.verdict), verdict);
        QCOMPARE(NandEngine::statusKey(status.verdict).isEmpty(), status.verdict == Verdict::None);
    }

    // The additional tests: which are judged, the length an answer needs, and the DRAM verdict
    // ("Pass" anywhere, case-sensitive).
    void outrosStatus_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<bool>("complete");
        QTest::addColumn<int>("verdict");
        const int pass = int(Verdict::Pass), fail = int(Verdict::Fail), none = int(Verdict::None);
        const QString head = QStringLiteral("\r\ntestmemory\r\r\n");
        const QString prompt = QStringLiteral("\r\n[0000002a:0000001b] :-) ");
        QTest::newRow("Passed") << 5 << head + "testmemory: Passed" + prompt << true << pass;
        QTest::newRow("Pass inside another word") << 6 << head + "block 3 ByPass mode" + prompt << true << pass;
        QTest::newRow("neither") << 5 << head + "memory test walking-1    FAILED" + prompt << true << fail;
        QTest::newRow("lower-case passed") << 6 << head + "memory test: passed" + prompt << true << fail;
        QTest::newRow("Tristar is shown, not judged") << 1 << head + "tristar id: TRISTAR rev B1 Passed" + prompt << true
                                                      << none;
        QTest::newRow("Tristar read") << 2 << head + "tristar dx1: 0x12 (USB data +)" + prompt << true << none;
        // More than 30 characters make an answer, whatever it says.
        QTest::newRow("30 characters") << 5 << QStringLiteral("Pass").leftJustified(30, u'.') << false << none;
        QTest::newRow("31 characters") << 5 << QStringLiteral("Pass").leftJustified(31, u'.') << true << pass;
        QTest::newRow("31 characters of Tristar") << 2 << QString(31, u'.') << true << none;
        QTest::newRow("placeholder of the long test") << 6 << QStringLiteral("TESTE 15s") << false << none;
        QTest::newRow("silent phone") << 5 << QStringLiteral("\r\n") << false << none;
    }
    void outrosStatus()
    {
        QFETCH(int, mode);
        QFETCH(QString, answer);
        QFETCH(bool, complete);
        QFETCH(int, verdict);
        const OutrosEngine::Status status = OutrosEngine::status(answer, mode);
        QCOMPARE(status.complete, complete);
        QCOMPARE(int(status.verdict), verdict);
    }

    void radioVerdict_data()
    {
        QTest::addColumn<int>("radio");
        QTest::addColumn<QString>("answer");
        QTest::addColumn<Verdict>("verdict");
        QTest::addColumn<QString>("matched");

        const QString echo = QStringLiteral("\r\nwifi --on\r\r\n");
        const QString prompt = QStringLiteral("[0000001A:0000BEEF] :-) ");
        // The simulated good board and the dead-radio board, as the console hands them over.
        QTest::newRow("baseband good") << 0
            << "\r\nbaseband --on\r\r\nPowering on baseband\r\r\nBB_HSIC_RDY asserted\r\r\nbaseband --on success\r\r\n" + prompt
            << Verdict::Pass << "BB_HSIC_RDY";
        QTest::newRow("baseband dead") << 0
            << "\r\nbaseband --on\r\r\nPowering on baseband\r\r\nbaseband did not respond, timeout\r\r\n" + prompt
            << Verdict::Fail << "";
        QTest::newRow("baseband already") << 0 << "Baseband is already powered on" << Verdict::Pass
                                          << "Baseband is already powered on";
        QTest::newRow("bluetooth good") << 1 << "Bluetooth power on success" << Verdict::Pass << "on success";
        QTest::newRow("bluetooth dead") << 1 << "Bluetooth power on failed: no response from chip" << Verdict::Fail << "";
        QTest::newRow("gps on the wifi answer") << 2 << echo + "Wifi power on success\r\r\nGPS is already on\r\r\n" + prompt
                                                << Verdict::Pass << "GPS is already on";
        QTest::newRow("wifi on the same answer") << 3 << echo + "Wifi power on success\r\r\nGPS is already on\r\r\n" + prompt
                                                 << Verdict::Pass << "on success";
        QTest::newRow("wifi dead") << 3 << echo + "Wifi power on failed: chip not detected\r\r\n" + prompt
                                   << Verdict::Fail << "";

        // Keys are case-sensitive.
        QTest::newRow("bluetooth Already on") << 1 << "Already on" << Verdict::Pass << "Already on";
        QTest::newRow("bluetooth already on") << 1 << "already on" << Verdict::Fail << "";
        QTest::newRow("on Success") << 2 << "Wifi power on Success" << Verdict::Fail << "";
        QTest::newRow("bb_hsic_rdy") << 0 << "bb_hsic_rdy" << Verdict::Fail << "";
        QTest::newRow("lower-case ok") << 3 << "status ok" << Verdict::Fail << "";

        // Each radio has its own "already on" sentence; another radio's does not count.
        QTest::newRow("wifi sentence for gps") << 2 << "Wifi is already on" << Verdict::Fail << "";
        QTest::newRow("gps sentence for wifi") << 3 << "GPS is already on" << Verdict::Fail << "";
        QTest::newRow("wifi sentence for wifi") << 3 << "Wifi is already on" << Verdict::Pass << "Wifi is already on";
        QTest::newRow("baseband ready for bluetooth") << 1 << "BB_HSIC_RDY" << Verdict::Fail << "";
        QTest::newRow("bluetooth sentence for baseband") << 0 << "Already on" << Verdict::Fail << "";

        // Any "OK" passes, even inside another word: the rule is that coarse by design.
        for (int radio = 0; radio < RadioEngine::RadioCount; ++radio) {
            QTest::addRow("OK alone, radio %d", radio) << radio << "OK" << Verdict::Pass << "OK";
            QTest::addRow("OK in BOOKED, radio %d", radio) << radio << "Command BOOKED nothing" << Verdict::Pass << "OK";
            QTest::addRow("blank, radio %d", radio) << radio << " \r\n\r\n " << Verdict::None << "";
        }
        QTest::newRow("empty") << 1 << "" << Verdict::None << "";
    }

    void radioVerdict()
    {
        QFETCH(int, radio);
        QFETCH(QString, answer);
        QFETCH(Verdict, verdict);
        QFETCH(QString, matched);
        const RadioEngine::RadioResult r = RadioEngine::AnalisaResposta(quint8(radio), answer);
        QCOMPARE(r.verdict, verdict);
        QCOMPARE(r.matchedKey, matched);
        QCOMPARE(r.repeat, verdict == Verdict::Fail);
        const QColor colour = verdict == Verdict::Pass   ? RadioEngine::PassColour
                              : verdict == Verdict::Fail ? RadioEngine::FailColour
                                                         : RadioEngine::NeutralColour;
        QCOMPARE(r.colour, colour);
        QCOMPARE(r.verdictKey, verdict == Verdict::Pass   ? QStringLiteral("COMUNICAÇÃO OK")
                               : verdict == Verdict::Fail ? QStringLiteral("COMUNICAÇÃO OFF")
                                                          : QString());
    }

    void command_data()
    {
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("on");
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("command");
        QTest::addColumn<int>("radio");
        QTest::addColumn<QString>("message");
        QTest::newRow("bluetooth off") << 1 << false << "IP 7" << "bluetooth --off" << 1 << "";
        // GPS is switched and judged through Wi-Fi, also on the first model.
        QTest::newRow("gps off") << 2 << false << "IP X" << "wifi --off" << 2 << "";
        QTest::newRow("gps on IP 6") << 2 << true << "IP 6" << "wifi --on" << 2 << "";
        // Only the exact first model is refused, not its family.
        QTest::newRow("wifi on IP 6 Plus") << 3 << true << "IP 6 Plus" << "wifi --on" << 3 << "";
        QTest::newRow("wifi on IP 6s") << 3 << true << "IP 6s" << "wifi --on" << 3 << "";
    }
    void command()
    {
        QFETCH(int, index);
        QFETCH(bool, on);
        QFETCH(QString, model);
        QFETCH(QString, command);
        QFETCH(int, radio);
        QFETCH(QString, message);
        const auto c = RadioEngine::command(index, on, model);
        QVERIFY(c);
        QCOMPARE(c->command, command);
        QCOMPARE(int(c->radio), radio);
        QCOMPARE(c->messageKey, message);
    }

    void commandOutOfRange()
    {
        QVERIFY(!RadioEngine::command(-1, true, QStringLiteral("IP 7")));
        QVERIFY(!RadioEngine::command(4, true, QStringLiteral("IP 7")));
    }

    // Colour texts read blue, green, red from the left; a mixed colour shows the order.
    void colourText()
    {
        QCOMPARE(RadioEngine::colourText(QColor(0x11, 0x22, 0xAB)), QStringLiteral("&H00AB2211"));
    }
};

QTEST_GUILESS_MAIN(TestBoardEngines)
#include "tst_boardengines.moc"
