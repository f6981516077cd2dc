#include "AnswerStore.h"
#include "Board.h"
#include "RailTable.h"
#include "SimCatalog.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <fcntl.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

namespace {
const QRegularExpression kPrompt(QStringLiteral("\\[[0-9a-fA-F]{8}:[0-9a-fA-F]{8}\\] :-\\) $"));

QByteArray exchange(Board &board, const QByteArray &command)
{
    board.receive(command + '\r');
    return board.takeOutput(1 << 24);
}

Board boardFor(const QString &model, Profile profile = Profile::Good)
{
    return Board(AnswerStore(), *SimCatalog::modelByName(model), profile);
}

// What the desktop program's console holds after an exchange: one CR LF first, then the
// received bytes with every LF turned into CR LF.
QByteArray consoleText(const QByteArray &received)
{
    QByteArray t = received;
    t.replace("\n", "\r\n");
    return "\r\n" + t;
}

// The value cut the program uses on the console: from the first `first` + offset to the first
// "[" - 2 (1-based positions, as the console routines count).
QByteArray cutToPrompt(const QByteArray &console, char first, int offset)
{
    const qsizetype a = console.indexOf(first) + 1 + offset;
    const qsizetype b = console.indexOf('[') + 1 - 2;
    return console.mid(a - 1, b - a);
}

QStringList modelNames()
{
    QStringList names;
    for (const SimModel &m : SimCatalog::models())
        names << m.name;
    return names;
}

// Reads from fd until the prompt arrives or the sim stays quiet; false when the port fails.
bool readAnswer(int fd, QByteArray &out)
{
    for (int quiet = 0; quiet < 50 && !out.endsWith(":-) ");) {
        pollfd p{fd, POLLIN, 0};
        if (::poll(&p, 1, 100) <= 0) {
            ++quiet;
            continue;
        }
        char buf[1024];
        const ssize_t n = ::read(fd, buf, sizeof buf);
        if (n <= 0)
            return false;
        out.append(buf, n);
    }
    return true;
}

QList<RailRow> railRows(const QString &model)
{
    return RailTable::forModel(RailTable::parse(AnswerStore().dataFile(QStringLiteral("rails.tsv"))), model);
}
}

class TestSim : public QObject
{
    Q_OBJECT
private slots:
    void framing_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QByteArray>("command");
        QTest::newRow("syscfg") << "IP 7" << QByteArray("syscfg print RMd#");
        QTest::newRow("pmuadc") << "IP X" << QByteArray("pmuadc --read all");
        QTest::newRow("unknown") << "IP 8" << QByteArray("frobnicate --now");
        QTest::newRow("empty") << "IP 6" << QByteArray();
        QTest::newRow("help") << "IP 6s" << QByteArray("Help");
    }

    void framing()
    {
        QFETCH(QString, model);
        QFETCH(QByteArray, command);
        Board board = boardFor(model);
        const QByteArray out = exchange(board, command);
        QVERIFY2(out.startsWith(command + "\r\n"), out.left(80).constData());
        QVERIFY(QRegularExpression(kPrompt).match(QString::fromLatin1(out)).hasMatch());
        const qsizetype promptAt = out.lastIndexOf('[');
        const QByteArray body = out.mid(command.size() + 2, promptAt - command.size() - 2);
        QVERIFY(body.isEmpty() || body.endsWith('\n'));
        QVERIFY(!body.contains('\r'));
        QCOMPARE(out.count("] :-) "), 1);
    }

    void commandSplitAcrossWrites()
    {
        Board board = boardFor(QStringLiteral("IP 7"));
        board.receive("sysc");
        QVERIFY(!board.hasOutput());
        board.receive("fg print RMd#\r\n");  // a stray LF after the CR is not a second command
        const QByteArray out = board.takeOutput(1 << 20);
        QVERIFY(out.startsWith("syscfg print RMd#\r\nA1660\n["));
        QCOMPARE(out.count("] :-) "), 1);
    }

    void caseInsensitive_data()
    {
        QTest::addColumn<QByteArray>("typed");
        QTest::addColumn<QByteArray>("canonical");
        QTest::newRow("buttons") << QByteArray("buttoncnt --dqe") << QByteArray("BUTTONCNT --DQE");
        QTest::newRow("reset") << QByteArray("RESET") << QByteArray("Reset");
        QTest::newRow("help") << QByteArray("help") << QByteArray("Help");
        QTest::newRow("memory") << QByteArray("testmemory --1MB") << QByteArray("TESTMEMORY --1MB");
        QTest::newRow("blanks") << QByteArray("tristar --read dx1 --read dx2 --read acc1 --read acc2 --read idx --read vdx")
                                << QByteArray("tristar --read dx1 --read dx2  --read acc1  --read acc2  --read idx --read vdx");
    }

    void caseInsensitive()
    {
        QFETCH(QByteArray, typed);
        QFETCH(QByteArray, canonical);
        Board board = boardFor(QStringLiteral("IP 8"));
        const QByteArray a = board.answerBody(QString::fromLatin1(typed));
        QVERIFY(!a.contains("not found"));
        QCOMPARE(a, board.answerBody(QString::fromLatin1(canonical)));
    }

    void unknownAndMissingCommands_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("command");
        QTest::addColumn<bool>("known");
        QTest::newRow("unknown") << "IP 7" << "xyz" << false;
        for (const char *cmd : {"nanduid", "nandsize", "nand --getinfo"}) {
            QTest::addRow("IP 6 %s", cmd) << "IP 6" << cmd << false;
            QTest::addRow("IP 6 Plus %s", cmd) << "IP 6 Plus" << cmd << false;
            QTest::addRow("IP 6s %s", cmd) << "IP 6s" << cmd << true;
            QTest::addRow("IP X %s", cmd) << "IP X" << cmd << true;
        }
        QTest::newRow("IP 6 syscfg list") << "IP 6" << "syscfg list" << true;
    }

    void unknownAndMissingCommands()
    {
        QFETCH(QString, model);
        QFETCH(QString, command);
        QFETCH(bool, known);
        Board board = boardFor(model);
        const QByteArray body = board.answerBody(command);
        QCOMPARE(body.contains("not found"), !known);
        QCOMPARE(body.contains("Command"), !known);
        if (known && command != QLatin1String("syscfg list"))  // the NAND screen's good answer
            QVERIFY(body.contains("Pass") || body.contains("name:"));
        if (command == QLatin1String("syscfg list"))  // complete only from 7001 console characters
            QVERIFY(consoleText(exchange(board, command.toLatin1())).size() >= 7001);
    }

    void modelNumberCut_data()
    {
        QTest::addColumn<QString>("model");
        for (const SimModel &m : SimCatalog::models())
            QTest::newRow(qPrintable(m.name)) << m.name;
    }

    void modelNumberCut()
    {
        QFETCH(QString, model);
        Board board = boardFor(model);
        const QByteArray console = consoleText(exchange(board, "syscfg print RMd#"));
        QVERIFY(console.size() >= 41);  // the connection counts as validated from 41 characters
        QCOMPARE(QString::fromLatin1(cutToPrompt(console, '#', 4)), SimCatalog::modelByName(model)->regulatoryNumber);
    }

    void nandSizeClass_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("gigabytes");
        QTest::newRow("IP 6s") << "IP 6s" << 64;
        QTest::newRow("IP 7") << "IP 7" << 128;
        QTest::newRow("IP 8") << "IP 8" << 64;
        QTest::newRow("IP X") << "IP X" << 256;
    }

    void nandSizeClass()
    {
        QFETCH(QString, model);
        QFETCH(int, gigabytes);
        Board board = boardFor(model);
        const QByteArray size = cutToPrompt(consoleText(exchange(board, "nandsize")), ':', 1);
        QVERIFY(size.size() <= 51);
        double sum = 0, weight = 1;  // hex read from the last character, upper-case digits only
        for (qsizetype i = size.size() - 1; i >= 0; --i, weight *= 16) {
            const char c = size[i];
            sum += weight * (c >= '0' && c <= '9' ? c - '0' : c >= 'A' && c <= 'F' ? c - 'A' + 10 : 0);
        }
        const int n = int(sum / 1e6);
        const QList<std::tuple<int, int, int>> classes{{7, 12, 8}, {14, 20, 16}, {22, 39, 32}, {46, 79, 64},
                                                       {81, 139, 128}, {191, 349, 256}, {351, 699, 512}};
        int found = 0;
        for (const auto &[lo, hi, gb] : classes)
            if (n >= lo && n <= hi)
                found = gb;
        QCOMPARE(found, gigabytes);
    }

    void railsAgreeWithNominal_data()
    {
        modelNumberCut_data();
    }

    void railsAgreeWithNominal()
    {
        QFETCH(QString, model);
        Board board = boardFor(model);
        const QByteArray console = consoleText(exchange(board, "pmuadc --read all"));
        const QList<RailRow> rows = railRows(model);
        QVERIFY(rows.size() >= 15);
        QSet<QString> labels;
        bool vcore = false, buckLdo = false, nand = false;
        for (const RailRow &r : rows) {
            QVERIFY2(!labels.contains(r.label), qPrintable(r.label));
            labels.insert(r.label);
            const QByteArray label = r.label.toUtf8();
            const qsizetype p = console.indexOf(label);
            QVERIFY2(p > 0 && console[p - 1] == '\n', qPrintable(model + r.label));  // first hit is its own line
            const qsizetype s = p + label.size() + 1, q = console.indexOf(' ', s);
            const QByteArray value = console.mid(s, q - s);
            QVERIFY(value.contains('.'));  // the millivolt formatter needs a decimal point
            QCOMPARE(console[q + 2], r.unit == QLatin1String("mV") ? 'V' : 'A');
            const double v = value.toDouble();
            QVERIFY2(qAbs(v - r.nominal) <= 0.02 * qAbs(r.nominal), qPrintable(model + r.label + value));
            vcore |= r.railClass == 0;
            buckLdo |= r.railClass == 2;
            nand |= r.chip == QLatin1String("NAND");
        }
        QVERIFY(vcore && buckLdo && nand);
    }

    void lowRailIsClearlyOff()
    {
        for (const QString &model : modelNames()) {
            Board low = boardFor(model, Profile::LowRail);
            const QByteArray answer = low.answerBody(QStringLiteral("pmuadc --read all"));
            int off = 0;
            for (const RailRow &r : railRows(model)) {
                const double v = *RailTable::valueAfter(answer, r.label);
                if (qAbs(v - r.nominal) > 0.02 * qAbs(r.nominal)) {
                    ++off;
                    QVERIFY(v < 0.85 * r.nominal);
                }
            }
            QCOMPARE(off, 1);
            QVERIFY(!low.answerBody(QStringLiteral("buck")).isEmpty());
        }
    }

    void chipLabels_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("command");
        QTest::addColumn<QStringList>("labels");
        const QStringList tigris6{"tigris vbus :", "tigris ibus :", "tigris vbat :", "tigris ibat :", "tigris vdd :",
                                  "tigris die_temp :"};
        const QStringList tigris10 = tigris6 + QStringList{"tigris vbus1 :", "tigris vbus2 :", "tigris vldo :", "tigris vntc :"};
        const QStringList chestnut{"chestnut vldo1 :", "chestnut vldo2 :", "chestnut vldo3 :", "chestnut ildo1 :",
                                   "chestnut ildo2 :", "chestnut ildo3 :", "chestnut vneg :", "chestnut ineg :",
                                   "chestnut vin :", "chestnut ground :", "chestnut vboost :"};
        const QString all = QStringLiteral("pmuadc --read all");
        for (const QString &m : modelNames()) {
            const bool late = m.startsWith(QLatin1String("IP 8")) || m == QLatin1String("IP X");
            QTest::addRow("%s tigris", qPrintable(m)) << m << "pmuadc --sel tigris --read all" << (late ? tigris10 : tigris6);
            if (m != QLatin1String("IP X"))
                QTest::addRow("%s chestnut", qPrintable(m)) << m << "pmuadc --sel chestnut --read all" << chestnut;
            const QString ldo = m.startsWith(QLatin1String("IP 6")) ? QStringLiteral("3") : QStringLiteral("7");
            QTest::addRow("%s tristar", qPrintable(m))
                << m << all
                << QStringList{"BIST ldo" + ldo + ":", "BIST ildo" + ldo + ":", "BIST buck3:", "ibuck3:", "BIST ldo6:",
                               "BIST ildo6:"};
        }
        QTest::newRow("IP X acorn") << "IP X" << all
                                    << QStringList{"acorn ground :", "acorn vin :", "acorn vb :", "acorn vp :", "acorn vn :",
                                                   "acorn vh :", "acorn vl :", "acorn va :", "acorn vc :", "BIST buck4:",
                                                   "BIST buck3_sw2:", "acorn die_temp :", "acorn ia :", "acorn in :",
                                                   "acorn ip :", "acorn ih :"};
    }

    void chipLabels()
    {
        QFETCH(QString, model);
        QFETCH(QString, command);
        QFETCH(QStringList, labels);
        Board board = boardFor(model);
        const QByteArray console = consoleText(exchange(board, command.toLatin1()));
        for (const QString &l : labels) {
            const QByteArray label = l.toUtf8();
            const qsizetype p = console.indexOf(label);
            QVERIFY2(p > 0 && console[p - 1] == '\n', qPrintable(l));
            const qsizetype s = p + label.size() + 1, e = console.indexOf(' ', s);
            QVERIFY2(e > s && (console.mid(s, e - s).toDouble() != 0.0 || l.contains(QLatin1String("ground"))), qPrintable(l));
            QVERIFY(console.mid(s, e - s).contains('.'));
        }
    }

    void buckAnswers()
    {
        for (const QString &model : modelNames()) {
            Board board = boardFor(model);
            const QByteArray plain = board.answerBody(QStringLiteral("buck"));
            QVERIFY(!plain.contains("measured"));
            QVERIFY(plain.contains("buck0"));
            // Every ":" of the plain read is followed by a value and " mV" on the same line.
            for (qsizetype c = plain.indexOf(':'); c >= 0; c = plain.indexOf(':', c + 1)) {
                const qsizetype m = plain.indexOf("mV", c);
                QVERIFY(m > c && plain.indexOf('\n', c) > m);
                QVERIFY(plain.mid(c + 2, m - c - 3).contains('.'));
            }
            const QByteArray check = board.answerBody(QStringLiteral("buckcheck 3"));
            const qsizetype t = check.indexOf("target"), u = check.indexOf("measured", t);
            QVERIFY(t >= 0 && u > t);
            QCOMPARE(check.mid(t + 7, check.indexOf(" mV", t) - t - 7), QByteArray("1800"));
            QVERIFY(check.mid(check.indexOf("mV", u) + 3).startsWith("PASS"));
            QVERIFY(board.answerBody(QStringLiteral("buckcheck 42")).contains("not found"));
        }
        Board six = boardFor(QStringLiteral("IP 6"));
        QVERIFY(six.answerBody(QStringLiteral("buckcheck 1")).contains("FAIL"));  // the GPU buck, as on a real board
    }

    void i2cDevices_data()
    {
        modelNumberCut_data();
    }

    void i2cDevices()
    {
        QFETCH(QString, model);
        Board good = boardFor(model);
        Board missing = boardFor(model, Profile::I2cMissing);
        const QList<QByteArray> rows = AnswerStore().dataFile(QStringLiteral("i2c.tsv")).split('\n');
        int seen = 0, lost = 0;
        for (const QByteArray &row : rows) {
            const QList<QByteArray> f = row.split('\t');
            if (f.size() < 5 || f[0] != model.toUtf8())
                continue;
            const QByteArray entry = f[4], address = entry.mid(1, 3), command = "i2c -s " + entry.left(1);
            ++seen;
            QVERIFY2(good.answerBody(QString::fromLatin1(command)).contains(address), entry.constData());
            if (!missing.answerBody(QString::fromLatin1(command)).contains(address)) {
                ++lost;
                QCOMPARE(entry.left(1).toInt(), Board::missingI2cBus(model));
            }
        }
        QVERIFY(seen >= 5);
        QCOMPARE(lost, 1);
    }

    void radios_data()
    {
        QTest::addColumn<QString>("command");
        QTest::addColumn<QStringList>("success");
        const QString ok = QStringLiteral("OK"), on = QStringLiteral("on success");
        QTest::newRow("baseband") << "baseband --on" << QStringList{"Baseband is already powered on", "BB_HSIC_RDY", on, ok};
        QTest::newRow("bluetooth") << "bluetooth --on" << QStringList{"Already on", on, ok};
        QTest::newRow("gps on wifi") << "wifi --on" << QStringList{"GPS is already on", on, ok};
        QTest::newRow("wifi") << "wifi --on" << QStringList{"Wifi is already on", on, ok};
    }

    void radios()
    {
        QFETCH(QString, command);
        QFETCH(QStringList, success);
        for (const QString &model : modelNames()) {
            Board good = boardFor(model), dead = boardFor(model, Profile::DeadRadio);
            const QByteArray g = consoleText(exchange(good, command.toLatin1()));
            const QByteArray d = consoleText(exchange(dead, command.toLatin1()));
            bool goodHit = false;
            for (const QString &s : success) {
                goodHit |= g.contains(s.toUtf8());
                QVERIFY2(!d.contains(s.toUtf8()), qPrintable(model + s));
            }
            QVERIFY(goodHit);
            QVERIFY(!d.contains("not found"));
            QCOMPARE(exchange(dead, "bl -n"), exchange(good, "bl -n"));  // only the radios are dead
        }
    }

    void silentAndChatty()
    {
        Board silent = boardFor(QStringLiteral("IP 7"), Profile::Silent);
        QVERIFY(exchange(silent, "syscfg print RMd#").isEmpty());
        QVERIFY(!silent.hasOutput());

        Board chatty = boardFor(QStringLiteral("IP 7"), Profile::Chatty);
        QVERIFY(!chatty.hasOutput());  // quiet until spoken to
        const QByteArray first = exchange(chatty, "syscfg print RMd#");
        QVERIFY(first.contains("A1660"));
        for (int i = 0; i < 100; ++i) {
            const QByteArray more = chatty.takeOutput(1000);
            QCOMPARE(more.size(), 1000);
            QVERIFY(more.contains('\n'));
        }
        QVERIFY(chatty.hasOutput());
    }

    void unplugCutsLongAnswer()
    {
        Board board = boardFor(QStringLiteral("IP 7"), Profile::Unplug);
        QVERIFY(exchange(board, "syscfg print RMd#").endsWith("] :-) "));  // short answers come whole
        QVERIFY(!board.pulledPlug());
        board.receive("pmuadc --read all\r");
        QVERIFY(!board.pulledPlug());
        const QByteArray part = board.takeOutput(1 << 20);
        QVERIFY(board.pulledPlug());
        Board good = boardFor(QStringLiteral("IP 7"));
        good.receive("syscfg print RMd#\r");
        good.takeOutput(1 << 20);
        const QByteArray whole = exchange(good, "pmuadc --read all");
        QVERIFY(part.size() > 100 && part.size() < whole.size());
        QVERIFY(whole.startsWith(part));
        QVERIFY(!part.contains(":-)"));
        QVERIFY(exchange(board, "Help").isEmpty());  // the cable is gone
    }

    void garbageKeepsFraming()
    {
        Board board = boardFor(QStringLiteral("IP 7"), Profile::Garbage);
        const QByteArray out = exchange(board, "pmuadc --read all");
        QVERIFY(out.startsWith("pmuadc --read all\r\n"));
        QVERIFY(out.endsWith("] :-) "));
        QVERIFY(out.contains('\0'));
        QVERIFY(out.contains('\x1b'));
        QVERIFY(!QString::fromUtf8(out).toUtf8().contains(out));  // not valid UTF-8
        QVERIFY(out.contains("vbuck3: "));
    }

    void rejectOnce()
    {
        Board board = boardFor(QStringLiteral("IP 7"), Profile::RejectOnce);
        const QByteArray first = consoleText(exchange(board, "syscfg print RMd#"));
        QVERIFY(first.contains("Command"));
        const QByteArray second = consoleText(exchange(board, "syscfg print RMd#"));
        QVERIFY(!second.contains("Command"));
        QCOMPARE(cutToPrompt(second, '#', 4), QByteArray("A1660"));
    }

    void overrideFolder()
    {
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath(QStringLiteral("ip7")));
        QFile index(dir.path() + QStringLiteral("/ip7/index.tsv"));
        QVERIFY(index.open(QIODevice::WriteOnly));
        index.write("# recorded on a bench board\nBattery --Properties\tbattery.txt\n");
        index.close();
        QFile answer(dir.path() + QStringLiteral("/ip7/battery.txt"));
        QVERIFY(answer.open(QIODevice::WriteOnly));
        answer.write("Voltage: 4101 mV\n");
        answer.close();
        Board board(AnswerStore(dir.path()), *SimCatalog::modelByName(QStringLiteral("IP 7")), Profile::Good);
        QCOMPARE(board.answerBody(QStringLiteral("battery --properties")), QByteArray("Voltage: 4101 mV\n"));
        QVERIFY(board.answerBody(QStringLiteral("syscfg print RMd#")).contains("A1660"));  // the rest is built in
        Board other(AnswerStore(dir.path()), *SimCatalog::modelByName(QStringLiteral("IP 8")), Profile::Good);
        QVERIFY(!other.answerBody(QStringLiteral("battery --properties")).contains("4101"));
    }


    void realProcessOverPty()
    {
        QProcess sim;
        sim.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-sim"),
                  {QStringLiteral("--model"), QStringLiteral("IP 7"), QStringLiteral("--profile"), QStringLiteral("good")});
        QVERIFY(sim.waitForStarted());
        QVERIFY(sim.waitForReadyRead());
        const QString path = QString::fromLocal8Bit(sim.readLine()).trimmed();
        QVERIFY2(path.startsWith(QLatin1String("/dev/")), qPrintable(path));

        QFile reg(QDir::tempPath() + QStringLiteral("/vekto-sim/") + QString::number(sim.processId()) +
                  QStringLiteral(".port"));
        QVERIFY(reg.open(QIODevice::ReadOnly));
        QCOMPARE(QString::fromUtf8(reg.readLine()).trimmed(), path);
        QCOMPARE(QString::fromUtf8(reg.readLine()).trimmed(), QStringLiteral("vekto-sim IP 7 (good)"));
        reg.close();

        // Opened and closed twice, as the program does on connect, disconnect and reconnect.
        for (int round = 0; round < 2; ++round) {
            const int fd = ::open(path.toLocal8Bit().constData(), O_RDWR | O_NOCTTY);
            QVERIFY(fd >= 0);
            termios tio{};
            tcgetattr(fd, &tio);
            cfmakeraw(&tio);
            tcsetattr(fd, TCSANOW, &tio);
            QCOMPARE(::write(fd, "syscfg print RMd#\r", 18), ssize_t(18));
            QByteArray out;
            const bool ok = readAnswer(fd, out);
            ::close(fd);
            QVERIFY(ok);
            QVERIFY2(out.startsWith("syscfg print RMd#\r\nA1660\n["), out.constData());
            QVERIFY(QRegularExpression(kPrompt).match(QString::fromLatin1(out)).hasMatch());
        }
        sim.terminate();
        QVERIFY(sim.waitForFinished(5000));
        QCOMPARE(sim.exitStatus(), QProcess::NormalExit);
        QCOMPARE(sim.exitCode(), 0);
        QVERIFY(!reg.exists());
    }

    void commandLine()
    {
        QProcess list;
        list.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-sim"), {QStringLiteral("--list-profiles")});
        QVERIFY(list.waitForFinished(5000));
        const QStringList names = QString::fromUtf8(list.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        QCOMPARE(names, (QStringList{"good", "silent", "chatty", "unplug", "garbage", "reject-once", "i2c-missing",
                                     "low-rail", "dead-radio"}));
        for (const QStringList &args : {QStringList{"--model", "IP 9"}, QStringList{"--profile", "flaky"}}) {
            QProcess bad;
            bad.start(QStringLiteral(VEKTO_BIN_DIR "/vekto-sim"), args);
            QVERIFY(bad.waitForFinished(5000));
            QCOMPARE(bad.exitCode(), 2);
            QVERIFY(bad.readAllStandardOutput().isEmpty());
            QVERIFY(!bad.readAllStandardError().isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(TestSim)
#include "tst_sim.moc"
