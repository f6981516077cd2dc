// `vekto-cli judge rf` on saved answers, run as a user runs it: the exit code follows the
// verdict, nothing judged is never a pass, and bad use is told apart from a failed radio.
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

class TestRfCli : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;

    static QString cli() { return QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"); }

    QString answerFile(const QByteArray &text)
    {
        static int n = 0;
        QFile f(m_dir.filePath(QStringLiteral("answer%1.txt").arg(++n)));
        if (f.open(QIODevice::WriteOnly))
            f.write(text);
        return f.fileName();
    }

    static int run(const QStringList &args, QByteArray *out)
    {
        QProcess p;
        p.start(cli(), args);
        if (!p.waitForFinished(30000)) {
            p.kill();
            p.waitForFinished();
            return -1;
        }
        *out = p.readAllStandardOutput() + p.readAllStandardError();
        return p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    }

private slots:
    void initTestCase()
    {
        if (!QFile::exists(cli()))
            QSKIP("vekto-cli was not built");
    }

    void judge_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<QString>("radio");
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<int>("exitCode");
        QTest::addColumn<QString>("verdict");
        QTest::addColumn<QJsonValue>("status");
        QTest::newRow("baseband ready") << "IP 7" << "0" << QByteArray("\r\nbaseband --on\r\r\nBB_HSIC_RDY\r\r\n") << 0
                                        << "pass" << QJsonValue("Baseband\r\nCOMUNICAÇÃO OK");
        QTest::newRow("bluetooth by name, failed") << "IP X" << "Bluetooth" << QByteArray("power on failed") << 1
                                                   << "fail" << QJsonValue("Bluetooth\r\nCOMUNICAÇÃO OFF");
        QTest::newRow("gps OK in a word") << "IP 8" << "2" << QByteArray("LOOKUP done") << 0 << "pass"
                                          << QJsonValue("Gps\r\nCOMUNICAÇÃO OK");
        // A silent phone: nothing judged, which must not exit 0.
        QTest::newRow("blank answer") << "IP 7" << "3" << QByteArray("\r\n") << 1 << "none" << QJsonValue();
        // The first model has no Wi-Fi test: no verdict, and the message says why.
        QTest::newRow("wifi on IP 6") << "IP 6" << "wifi" << QByteArray("Wifi power on success") << 1 << "none"
                                      << QJsonValue();
    }
    void judge()
    {
        QFETCH(QString, model);
        QFETCH(QString, radio);
        QFETCH(QByteArray, answer);
        QFETCH(int, exitCode);
        QFETCH(QString, verdict);
        QFETCH(QJsonValue, status);
        QByteArray out;
        const int code = run({"judge", "rf", "--model", model, "--radio", radio, "--answer", answerFile(answer), "--json"},
                             &out);
        QVERIFY2(code == exitCode, out.constData());
        const QJsonObject report = QJsonDocument::fromJson(out).object();
        QCOMPARE(report.value("engine").toString(), QStringLiteral("rf"));
        QCOMPARE(report.value("rows").toArray().at(0).toObject().value("verdict").toString(), verdict);
        QCOMPARE(report.value("status"), status.isUndefined() ? QJsonValue(QJsonValue::Null) : status);
        if (model == QLatin1String("IP 6"))
            QCOMPARE(report.value("extra").toObject().value("message").toString(), QStringLiteral("MSG_NAO_PARA_IP6"));
    }

    void badUse_data()
    {
        QTest::addColumn<QStringList>("args");
        QTest::newRow("no radio") << QStringList{"--model", "IP 7", "--answer", "FILE"};
        QTest::newRow("radio 4") << QStringList{"--model", "IP 7", "--radio", "4", "--answer", "FILE"};
        QTest::newRow("unknown radio") << QStringList{"--model", "IP 7", "--radio", "nfc", "--answer", "FILE"};
        QTest::newRow("no model") << QStringList{"--radio", "1", "--answer", "FILE"};
        QTest::newRow("missing file") << QStringList{"--model", "IP 7", "--radio", "1", "--answer", "/nonexistent/a.txt"};
    }
    void badUse()
    {
        QFETCH(QStringList, args);
        const QString file = answerFile("OK");
        args.replaceInStrings(QStringLiteral("FILE"), file);
        QByteArray out;
        QCOMPARE(run(QStringList{"judge", "rf"} + args, &out), 2);
    }
};

QTEST_MAIN(TestRfCli)
#include "tst_rfcli.moc"
