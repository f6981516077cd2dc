// The radio verdict: which answer passes for which radio (plain, case-sensitive substrings, any
// "OK" included), which command each button sends on which model, and which RF reference list
// a model and modem choice select.
#include "RadioEngine.h"

#include <QtTest>

Q_DECLARE_METATYPE(Verdict)

class TestRfEngine : public QObject
{
    Q_OBJECT

private slots:
    void verdict_data()
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

    void verdict()
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
        QTest::newRow("baseband on") << 0 << true << "IP 7" << "baseband --on" << 0 << "";
        QTest::newRow("bluetooth off") << 1 << false << "IP 7" << "bluetooth --off" << 1 << "";
        // GPS is switched and judged through Wi-Fi.
        QTest::newRow("gps on") << 2 << true << "IP 7" << "wifi --on" << 2 << "";
        QTest::newRow("gps off") << 2 << false << "IP X" << "wifi --off" << 2 << "";
        QTest::newRow("gps on IP 6") << 2 << true << "IP 6" << "wifi --on" << 2 << "";
        QTest::newRow("wifi on") << 3 << true << "IP 8" << "wifi --on" << 3 << "";
        QTest::newRow("wifi on IP 6") << 3 << true << "IP 6" << "" << 3 << "MSG_NAO_PARA_IP6";
        QTest::newRow("wifi off IP 6") << 3 << false << "IP 6" << "" << 3 << "MSG_NAO_PARA_IP6";
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

    void tipoRf_data()
    {
        QTest::addColumn<QString>("model");
        QTest::addColumn<int>("escolha");
        QTest::addColumn<QString>("tipo");
        for (const char *m : {"IP 6", "IP 6 Plus", "IP 6s", "IP 6s Plus"}) {
            QTest::addRow("%s choice 1", m) << m << 1 << "T";
            QTest::addRow("%s choice 2", m) << m << 2 << "T";
        }
        for (const char *m : {"IP 7", "IP 7 Plus", "IP 8", "IP 8 Plus", "IP X"}) {
            QTest::addRow("%s choice 1", m) << m << 1 << "I";
            QTest::addRow("%s choice 2", m) << m << 2 << "Q";
        }
        QTest::newRow("no model") << "" << 1 << "";
    }
    void tipoRf()
    {
        QFETCH(QString, model);
        QFETCH(int, escolha);
        QFETCH(QString, tipo);
        QCOMPARE(RadioEngine::tipoRf(model, escolha), tipo);
    }

    // Colour texts read blue, green, red from the left; a mixed colour shows the order.
    void colourText()
    {
        QCOMPARE(RadioEngine::colourText(QColor(0x11, 0x22, 0xAB)), QStringLiteral("&H00AB2211"));
    }
};

QTEST_MAIN(TestRfEngine)
#include "tst_rfengine.moc"
